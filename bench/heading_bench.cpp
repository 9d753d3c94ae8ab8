// One subject heading into the text of one 382.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "bench_input.h"
#include "service/cantorel_class.h"
#include "service/service_objects.h"

namespace cantorel::bench {
namespace {

void Convert650To382Text(benchmark::State& state) {
  CantorelClass cantorel;
  cantorel.ConfigurationPath(ConfigurationFolder());
  cantorel.LookUpWith(nullptr);
  cantorel.AddFields({}, 1);  // prepares what a first call prepares
  Utf8MarcRecordClass record;
  std::string trailing;
  std::int32_t result = 0;
  std::size_t position = 0;
  for (auto _ : state) {
    const Heading& heading = NextOf(Headings(), position);
    TheMusicClass().Convert650To382_Text(heading.record_type, heading.field_text, record, "id",
                                         trailing, result);
    benchmark::DoNotOptimize(result);
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(Convert650To382Text);

}  // namespace
}  // namespace cantorel::bench

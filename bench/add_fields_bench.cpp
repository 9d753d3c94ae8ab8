// The whole work on one record.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "bench_input.h"
#include "service/cantorel_class.h"

namespace cantorel::bench {
namespace {

void AddFieldsMode1(benchmark::State& state) {
  constexpr std::int32_t kMediumOnly = 1;
  CantorelClass cantorel;
  cantorel.ConfigurationPath(CANTOREL_CONFIG);
  std::size_t position = 0;
  std::int64_t octets = 0;
  for (auto _ : state) {
    const std::string& image = NextOf(Records(), position);
    benchmark::DoNotOptimize(cantorel.AddFields(image, kMediumOnly));
    octets += static_cast<std::int64_t>(image.size());
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
  state.SetBytesProcessed(octets);
}
BENCHMARK(AddFieldsMode1);

}  // namespace
}  // namespace cantorel::bench

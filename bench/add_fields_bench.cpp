// The whole work on one record.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "bench_input.h"
#include "service/cantorel_class.h"

namespace cantorel::bench {
namespace {

// `range(0)` is the performance mode: 1 medium, 2 genre, 3 both.
void AddFields(benchmark::State& state) {
  const auto mode = static_cast<std::int32_t>(state.range(0));
  CantorelClass cantorel;
  cantorel.ConfigurationPath(ConfigurationFolder());
  cantorel.LookUpWith(nullptr);
  std::size_t position = 0;
  std::int64_t octets = 0;
  for (auto _ : state) {
    const std::string& image = NextOf(Records(), position);
    benchmark::DoNotOptimize(cantorel.AddFields(image, mode));
    octets += static_cast<std::int64_t>(image.size());
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
  state.SetBytesProcessed(octets);
}
BENCHMARK(AddFields)->ArgName("mode")->Arg(1)->Arg(2)->Arg(3);

}  // namespace
}  // namespace cantorel::bench

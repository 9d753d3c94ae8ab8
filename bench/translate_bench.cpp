// Records between MARC-8 and UTF-8, as cantorel translate has them.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "bench_input.h"
#include "cli/image_translator.h"

namespace cantorel::bench {
namespace {

std::vector<std::string> Translated(const std::vector<std::string>& images, char set) {
  cli::ImageTranslator translator('\0', set);
  std::vector<std::string> all;
  std::string translated, fault;
  for (const std::string& image : images) {
    if (translator.Translate(image, translated, fault)) all.push_back(translated);
  }
  return all;
}

void TranslateAll(benchmark::State& state, char from, char to) {
  const std::vector<std::string> images = Translated(Records(), from);
  cli::ImageTranslator translator('\0', to);
  std::string translated, fault;
  std::size_t position = 0;
  std::int64_t octets = 0;
  for (auto _ : state) {
    const std::string& image = NextOf(images, position);
    benchmark::DoNotOptimize(translator.Translate(image, translated, fault));
    octets += static_cast<std::int64_t>(image.size());
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
  state.SetBytesProcessed(octets);
}
BENCHMARK_CAPTURE(TranslateAll, marc8_to_utf8, 'M', 'U');
BENCHMARK_CAPTURE(TranslateAll, utf8_to_marc8, 'U', 'M');

}  // namespace
}  // namespace cantorel::bench

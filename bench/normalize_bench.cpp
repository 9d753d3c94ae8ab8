// The comparison form of text.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel::bench {
namespace {

void Normalize(benchmark::State& state, std::string_view text) {
  const Utf8MarcRecordClass record;
  std::string norm;
  for (auto _ : state) {
    norm.clear();
    record.AppendNormString(text, true, norm);
    benchmark::DoNotOptimize(norm.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void NormStringAscii(benchmark::State& state) {
  Normalize(state, "Quintets (Clarinet, violins (2), viola, violoncello) -- Scores and parts.");
}
BENCHMARK(NormStringAscii);

void NormStringAccented(benchmark::State& state) {
  Normalize(state,
            "Dvo\xCC\x8Cra\xCC\x81k, Anton\xC3\xADn: Sla\xCC\x8Cne\xCC\x81 tance \xE2\x80\x93 "
            "pro \xC4\x8Dty\xCC\x8Ci ruce \xC5\x82");
}
BENCHMARK(NormStringAccented);

}  // namespace
}  // namespace cantorel::bench

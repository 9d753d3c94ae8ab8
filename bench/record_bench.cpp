// Loading a record, and loading it and writing it back.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "bench_input.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::bench {
namespace {

void CountRecords(benchmark::State& state, std::int64_t octets) {
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
  state.SetBytesProcessed(octets);
}

void LoadInto(Utf8MarcRecordClass& record, benchmark::State& state) {
  std::size_t position = 0;
  std::int64_t octets = 0;
  for (auto _ : state) {
    const std::string& image = NextOf(Records(), position);
    record.MarcRecordIn(image);
    benchmark::DoNotOptimize(record.FieldCount());
    octets += static_cast<std::int64_t>(image.size());
  }
  CountRecords(state, octets);
}

void Load(benchmark::State& state) {
  Utf8MarcRecordClass record;
  LoadInto(record, state);
}
BENCHMARK(Load);

// What order costs: a load that orders neither fields nor subfields, and one
// that orders both by the defaults.
void LoadWithoutOrder(benchmark::State& state) {
  Utf8MarcRecordClass record;
  record.IgnoreSfdOrder(true);
  LoadInto(record, state);
}
BENCHMARK(LoadWithoutOrder);

void LoadWithDefaultOrder(benchmark::State& state) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderAuth();
  record.SetDefaultFldOrderBib();
  record.SetDefaultFldOrderHold();
  LoadInto(record, state);
}
BENCHMARK(LoadWithDefaultOrder);

void LoadAndWriteBack(benchmark::State& state) {
  Utf8MarcRecordClass record;
  std::string out;
  std::size_t position = 0;
  std::int64_t octets = 0;
  for (auto _ : state) {
    const std::string& image = NextOf(Records(), position);
    record.MarcRecordIn(image);
    record.MarcRecordOut(out);
    benchmark::DoNotOptimize(out.data());
    octets += static_cast<std::int64_t>(image.size());
  }
  CountRecords(state, octets);
}
BENCHMARK(LoadAndWriteBack);

}  // namespace
}  // namespace cantorel::bench

// What the benchmarks work on.

#ifndef CANTOREL_BENCH_BENCH_INPUT_H_
#define CANTOREL_BENCH_BENCH_INPUT_H_

#include <cstddef>
#include <string>
#include <vector>

namespace cantorel::bench {

// Images of the records in the file that the environment variable
// CANTOREL_BENCH_FILE names, or of the sample records.  Read once; a file
// without a record ends the program.
const std::vector<std::string>& Records();

// The configuration folder that CANTOREL_BENCH_CONFIG names, or the starter one.
std::string ConfigurationFolder();

// A subject heading, and leader/06 of its record.
struct Heading {
  std::string record_type;
  std::string field_text;
};

// The LC subject headings (650, second indicator 0) of those records.
const std::vector<Heading>& Headings();

// Goes round a list for ever.
template <typename Item>
const Item& NextOf(const std::vector<Item>& items, std::size_t& position) {
  if (position == items.size()) position = 0;
  return items[position++];
}

}  // namespace cantorel::bench

#endif  // CANTOREL_BENCH_BENCH_INPUT_H_

// An input that comes in small pieces.

#ifndef CANTOREL_TESTS_CLI_SLOW_SOURCE_H_
#define CANTOREL_TESTS_CLI_SLOW_SOURCE_H_

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "cli/input_buffer.h"

namespace cantorel::cli {

// Hands out a text a few octets at a time.
class SlowSource : public OctetSource {
 public:
  SlowSource(std::string_view text, std::size_t step) : rest_(text), step_(step) {}

  std::size_t Read(char* to, std::size_t size) override {
    const std::size_t count = rest_.substr(0, std::min(size, step_)).copy(to, size);
    rest_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view rest_;
  std::size_t step_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_TESTS_CLI_SLOW_SOURCE_H_

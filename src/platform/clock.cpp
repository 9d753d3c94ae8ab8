#include "platform/clock.h"

#include <time.h>

#include <ctime>

namespace cantorel {

std::string CurrentDateTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  char digits[16];
  const std::size_t length = std::strftime(digits, sizeof digits, "%Y%m%d%H%M%S", &local);
  return std::string(digits, length);
}

}  // namespace cantorel

// A limit on how many requests go out in a second, for all threads together.

#ifndef CANTOREL_CLI_RATE_LIMITER_H_
#define CANTOREL_CLI_RATE_LIMITER_H_

#include <chrono>
#include <mutex>

namespace cantorel::cli {

class RateLimiter {
 public:
  // `per_second` is above 0.
  explicit RateLimiter(double per_second);

  // Comes back when the caller may ask.  Those who wait get their turns at equal
  // distances.
  void Wait();

 private:
  using Clock = std::chrono::steady_clock;

  const Clock::duration distance_;
  std::mutex mutex_;
  Clock::time_point next_turn_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RATE_LIMITER_H_

#include "cli/rate_limiter.h"

#include <algorithm>
#include <thread>

namespace cantorel::cli {

RateLimiter::RateLimiter(double per_second)
    : distance_(std::chrono::duration_cast<Clock::duration>(
          std::chrono::duration<double>(1 / per_second))) {}

void RateLimiter::Wait() {
  Clock::time_point turn;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    turn = std::max(next_turn_, Clock::now());
    next_turn_ = turn + distance_;
  }
  std::this_thread::sleep_until(turn);
}

}  // namespace cantorel::cli

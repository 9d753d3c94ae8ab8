// The line in the terminal that tells how far a run has come.

#ifndef CANTOREL_CLI_PROGRESS_H_
#define CANTOREL_CLI_PROGRESS_H_

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cli/conversion_item.h"

namespace cantorel::cli {

// Records, records a second, and, where the sizes of the inputs are known, the
// share of them that is done and the time left.
class Progress {
 public:
  // Without `wanted`, and when standard error is no terminal, nothing is written.
  Progress(const std::vector<std::string>& files, bool wanted);
  ~Progress() { Erase(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // A record has been written.
  void Count(const ConversionItem& item);
  // Brings the line up to date, a few times a second.
  void Show();
  // Takes the line away: something else is to be written.
  void Erase();

 private:
  using Clock = std::chrono::steady_clock;

  void Measure(const std::vector<std::string>& files);
  void Write(Clock::time_point now);

  const bool shown_;
  // Octets of all inputs, 0 when they cannot be known, and of those ahead of each.
  std::uint64_t octets_ = 0;
  std::map<std::string, std::uint64_t, std::less<>> octets_ahead_;
  std::uint64_t records_ = 0;
  std::uint64_t octets_done_ = 0;
  const Clock::time_point begin_ = Clock::now();
  Clock::time_point next_ = begin_;
  bool on_screen_ = false;
};

// "1:05:09", or "5:09" below an hour.
std::string ClockTime(std::uint64_t seconds);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_PROGRESS_H_

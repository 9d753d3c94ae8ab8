#include "cli/progress.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "cli/gzip.h"
#include "platform/terminal.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kInterval(250);

// Of the octets that a compressed file holds nobody knows.
bool IsCompressed(const std::string& file) {
  std::array<char, 2> first{};
  std::ifstream(file, std::ios::binary).read(first.data(), first.size());
  return BeginsAsGzip({first.data(), first.size()});
}

}  // namespace

Progress::Progress(const std::vector<std::string>& files, bool wanted)
    : shown_(wanted && IsTerminal(stderr)) {
  if (shown_) Measure(files);
}

void Progress::Measure(const std::vector<std::string>& files) {
  std::uint64_t octets = 0;
  for (const std::string& file : files) {
    std::error_code error;
    if (!fs::is_regular_file(file, error) || IsCompressed(file)) return;
    octets_ahead_.emplace(file, octets);
    octets += fs::file_size(file, error);
    if (error) return;
  }
  octets_ = octets;
}

void Progress::Count(const ConversionItem& item) {
  if (!shown_) return;
  ++records_;
  if (octets_ == 0) return;
  octets_done_ = octets_ahead_.find(item.source)->second + item.offset + item.octets.size();
}

void Progress::Show() {
  if (!shown_) return;
  const Clock::time_point now = Clock::now();
  if (now < next_) return;
  next_ = now + kInterval;
  Write(now);
}

void Progress::Write(Clock::time_point now) {
  const double seconds = std::max(std::chrono::duration<double>(now - begin_).count(), 0.001);
  std::fprintf(stderr, "\r%" PRIu64 " records, %.0f records/s", records_,
               static_cast<double>(records_) / seconds);
  if (octets_ > 0 && octets_done_ > 0) {
    const double share =
        std::min(1.0, static_cast<double>(octets_done_) / static_cast<double>(octets_));
    const auto left = static_cast<std::uint64_t>(seconds / share - seconds + 0.5);
    std::fprintf(stderr, ", %.0f %%, %s left", share * 100, ClockTime(left).c_str());
  }
  std::fputs("\033[K", stderr);
  on_screen_ = true;
}

void Progress::Erase() {
  if (on_screen_) std::fputs("\r\033[K", stderr);
  on_screen_ = false;
}

std::string ClockTime(std::uint64_t seconds) {
  const auto two_digits = [](std::uint64_t number) {
    return (number < 10 ? ":0" : ":") + std::to_string(number);
  };
  const std::uint64_t minutes = seconds / 60;
  const std::string end = two_digits(seconds % 60);
  if (minutes < 60) return std::to_string(minutes) + end;
  return std::to_string(minutes / 60) + two_digits(minutes % 60) + end;
}

}  // namespace cantorel::cli

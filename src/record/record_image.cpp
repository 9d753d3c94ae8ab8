#include "record/record_image.h"

#include <algorithm>
#include <array>

#include "charset/marc_control.h"
#include "charset/octet_text.h"

namespace cantorel {

namespace {

constexpr std::size_t kShortestRecord = 50;
constexpr std::size_t kEntryMapPosition = 20;  // from 0

// "00" to "99".
constexpr std::array<char, 200> kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// Digits of fixed width; the value of those that lead.
std::int32_t Number(std::string_view image, std::size_t position, std::size_t width) {
  std::int32_t value = 0;
  for (std::size_t i = position; i < position + width; ++i) {
    if (!IsAsciiDigit(image[i])) return LeadingNumber(image.substr(position, width));
    value = value * 10 + (image[i] - '0');
  }
  return value;
}

}  // namespace

std::string_view MarcFrameFault(std::string_view image) {
  if (image.size() < kShortestRecord) return "Too short to be a MARC record";
  if (!std::all_of(image.begin(), image.begin() + 5, IsAsciiDigit)) {
    return "First 5 characters not all numeric";
  }
  const std::int32_t length = Number(image, 0, 5);
  // A text longer than it claims passes, on purpose.
  if (image.size() < static_cast<std::size_t>(length)) {
    return "Record length in leader does not match actual record length";
  }
  const std::int32_t base = BaseAddress(image);
  if (base > length) return "Base address of data longer than record length";
  if (base < 1) return "Base address of data unacceptable";
  if (image[static_cast<std::size_t>(base) - 1] != kEndOfField) {
    return "Directory does not end with end-of-field character";
  }
  if (image.back() != kEndOfRecord) return "Record does not end with end-of-record character";
  if (image[image.size() - 2] != kEndOfField) {
    return "Last field does not end with end-of-field character";
  }
  return {};
}

LeaderLoss FindLeaderLoss(std::string_view image) {
  const std::size_t found = image.substr(0, kLeaderLength).rfind("45");
  if (found == std::string_view::npos || found >= kEntryMapPosition) return {};
  return {found, kEntryMapPosition - found};
}

std::int32_t BaseAddress(std::string_view image) {
  return image.size() < kLeaderLength ? 0 : Number(image, 12, 5);
}

DirectoryEntry ReadDirectoryEntry(std::string_view directory, std::size_t position,
                                  std::string_view data) {
  const std::string_view whole = directory.substr(position, kDirectoryEntryLength);
  const std::int32_t length = Number(whole, 3, 4) - 1;
  const std::int32_t start = Number(whole, 7, 5);
  DirectoryEntry entry{whole, whole.substr(0, 3), {}};
  if (length > 0) {
    entry.text =
        From(data, static_cast<std::size_t>(start)).substr(0, static_cast<std::size_t>(length));
  }
  return entry;
}

void WriteDigits(std::size_t number, std::size_t width, char* place) {
  auto rest = static_cast<std::uint32_t>(number);
  for (; width >= 2; width -= 2) {
    std::copy_n(&kDigitPairs[2 * (rest % 100)], 2, place + width - 2);
    rest /= 100;
  }
  if (width == 1) *place = static_cast<char>('0' + rest % 10);
}

}  // namespace cantorel

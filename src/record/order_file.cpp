#include "record/order_file.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "charset/octet_text.h"
#include "platform/profile_file.h"

namespace cantorel {

namespace {

constexpr std::int32_t kSectionLength = 32000;
constexpr std::string_view kRangesSection = "ExtendedFieldOrder";
constexpr std::string_view kHundredsSection = "FieldOrder";
constexpr std::size_t kTagLength = 3;

// Calls `use` with the key and the value of each setting in a section.
template <typename Use>
void ForEachSetting(std::string_view section, Use use) {
  while (!section.empty()) {
    const std::size_t end = section.find('\0');
    const std::string_view line = section.substr(0, end);
    section = end == std::string_view::npos ? std::string_view() : section.substr(end + 1);
    std::int32_t equals = 0;
    if (IsIniLineSkippable(line, equals)) continue;
    const auto place = static_cast<std::size_t>(equals);
    use(line.substr(0, place - 1), Trim(line.substr(place)));
  }
}

// "600-655 Indicator2" or "880 Paired".
void AddRange(std::string_view setting, FormatFamily family, FieldOrders& orders) {
  const std::size_t blank = setting.find(' ');
  const std::string_view range = setting.substr(0, blank);
  const std::string_view kind = blank == std::string_view::npos ? "" : setting.substr(blank + 1);
  const std::size_t dash = range.find('-');
  const std::string_view high = dash == std::string_view::npos ? range : range.substr(dash + 1);
  orders.Set(family, range.substr(0, dash), high, KindNamed(Trim(kind)));
}

// The tags of a hundred.  Control fields always stand by their tags.
void AddHundred(char digit, FieldOrderKind kind, FormatFamily family, FieldOrders& orders) {
  if (digit == '0') {
    orders.Set(family, "001", "009", FieldOrderKind::kTag);
    orders.Set(family, "010", "099", kind);
    return;
  }
  orders.Set(family, std::string(1, digit) + "00", std::string(1, digit) + "99", kind);
}

}  // namespace

std::string_view OrderFileName(FormatFamily family) {
  switch (family) {
    case FormatFamily::kAuthority:
      return "authsup.cfg";
    case FormatFamily::kBibliographic:
      return "bibsup.cfg";
    case FormatFamily::kHoldings:
      return "holdsup.cfg";
    case FormatFamily::kOther:
      break;
  }
  return {};
}

void ReadFieldOrder(std::string_view file, FormatFamily family, FieldOrders& orders) {
  const std::string ranges = GetIniSection(file, kRangesSection, kSectionLength);
  if (!ranges.empty()) {
    ForEachSetting(
        ranges, [&](std::string_view, std::string_view value) { AddRange(value, family, orders); });
  } else {
    const std::string hundreds = GetIniSection(file, kHundredsSection, kSectionLength);
    ForEachSetting(hundreds, [&](std::string_view key, std::string_view value) {
      if (IsAsciiDigit(key[0])) AddHundred(key[0], KindNamed(value), family, orders);
    });
  }
  orders.Table(family).EnsureGenericRow();
}

std::string ReadSubfieldSection(std::string_view file) {
  return GetIniSection(file, kSubfieldOrderSection, kSectionLength);
}

void SetSubfieldOrders(std::string_view section, SubfieldOrderTable& table) {
  ForEachSetting(section, [&](std::string_view key, std::string_view value) {
    if (key.size() == kTagLength) table.Set(key, value);
  });
}

}  // namespace cantorel

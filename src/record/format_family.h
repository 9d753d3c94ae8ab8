// The four families of record formats that have an order of their own.

#ifndef CANTOREL_RECORD_FORMAT_FAMILY_H_
#define CANTOREL_RECORD_FORMAT_FAMILY_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace cantorel {

enum class FormatFamily : std::uint8_t { kAuthority, kBibliographic, kHoldings, kOther };
inline constexpr std::size_t kFormatFamilies = 4;

// The family of a format code (see Utf8MarcRecordClass::MarcRecordFormat).
constexpr FormatFamily FamilyOf(char format) {
  switch (format) {
    case 'A':
      return FormatFamily::kAuthority;
    case 'B':
    case 'D':
    case 'F':
    case 'M':
    case 'P':
    case 'S':
    case 'U':
      return FormatFamily::kBibliographic;
    case 'H':
      return FormatFamily::kHoldings;
    default:
      return FormatFamily::kOther;
  }
}

// The same of a code that a caller wrote; anything but one letter is "other".
constexpr FormatFamily FamilyOf(std::string_view format) {
  return format.size() == 1 ? FamilyOf(format[0]) : FormatFamily::kOther;
}

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FORMAT_FAMILY_H_

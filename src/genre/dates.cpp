// Chronological subdivisions into dates of creation, 046.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "medium/music_650_to_382_class.h"

namespace cantorel {
namespace {

constexpr std::string_view kBeginning = "o";
constexpr std::string_view kEnd = "p";
constexpr std::string_view kDateSource = "edtf";

bool AreDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

// Whether a comparison form is that of two years, the second of four digits:
// "800 1300", "1800 1899".
bool AreTwoYears(std::string_view norm) {
  if (norm.size() != 8 && norm.size() != 9) return false;
  const std::size_t blank = norm.size() - 5;
  return norm[blank] == ' ' && AreDigits(norm.substr(0, blank)) &&
         AreDigits(norm.substr(blank + 1));
}

std::string_view WithoutPoint(std::string_view text) {
  if (!text.ends_with(',') && !text.ends_with('.')) return text;
  text.remove_suffix(1);
  return Trim(text);
}

// "1800-1899" as the text of $o with a $p behind it; empty for any other text.
std::string YearsOf(std::string_view text, std::string_view norm) {
  const std::string_view years = WithoutPoint(text);
  const std::size_t dash = years.find('-');
  if (dash == std::string_view::npos || !AreTwoYears(norm)) return {};
  constexpr std::size_t kShort = 8;
  std::string dates(norm.size() == kShort ? "0" : "");
  dates += years.substr(0, dash);
  dates += kDelimiter;
  dates += kEnd;
  dates += years.substr(dash + 1);
  return dates;
}

// "19TH CENTURY" as 18, the hundreds of its years; empty for any other text.
std::string CenturyOf(std::string_view norm) {
  constexpr std::string_view kCentury = " CENTURY";
  if (!norm.ends_with(kCentury)) return {};
  norm = Trim(norm.substr(0, norm.size() - kCentury.size()));
  if (norm.size() < 3) return {};
  const std::string_view ending = norm.substr(norm.size() - 2);
  if (ending != "ST" && ending != "ND" && ending != "RD" && ending != "TH") return {};
  const std::int32_t century = LeadingNumber(norm.substr(0, norm.size() - 2));
  return century > 0 ? Utf8MarcRecordClass::LeftPadNumber(century - 1, 2, "0") : std::string();
}

// The year of "TO 1500"; empty for any other text.
std::string_view LastYearOf(std::string_view norm) {
  constexpr std::string_view kTo = "TO ";
  if (!norm.starts_with(kTo)) return {};
  const std::string_view year = Trim(norm.substr(kTo.size()));
  return year.size() == 4 && AreDigits(year) ? year : std::string_view();
}

}  // namespace

void Music650To382Class::Private_655_AddDates(Utf8MarcRecordClass& record, std::string& new_lines) {
  const auto add = [&](std::string_view code, std::string_view date, std::string_view source) {
    Private_655_AddField(record, "046", "  ", code, date, source, new_lines);
  };
  const std::string norm = record.SfdNorm();
  const std::string years = YearsOf(record.SfdTextView(), norm);
  if (!years.empty()) return add(kBeginning, years, kDateSource);
  const std::string century = CenturyOf(norm);
  // Deliberate: the hundreds of a century have no source.
  if (!century.empty()) return add(kBeginning, century, {});
  const std::string_view last_year = LastYearOf(norm);
  if (!last_year.empty()) add(kEnd, last_year, kDateSource);
}

}  // namespace cantorel

#include "record/oclc_number.h"

#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"

namespace cantorel {

namespace {

constexpr std::string_view kOrganization = "(ocolc)";
constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kPlaces = 8;

bool BeginsIgnoringCase(std::string_view text, std::string_view lower) {
  return text.size() >= lower.size() &&
         std::equal(lower.begin(), lower.end(), text.begin(),
                    [](char a, char b) { return a == AsciiLower(b); });
}

}  // namespace

bool IsOclcNumber(std::string_view text) {
  if (BeginsIgnoringCase(text, kOrganization)) return true;
  if (text.size() < 3 || text.substr(0, 2) != "oc") return false;
  return text[2] == 'm' || text[2] == 'l' || text[2] == 'n' || (text[2] >= '1' && text[2] <= '9');
}

std::string CleanOclcNumber(std::string_view whole, OclcNumberForm form) {
  std::string_view text = whole;
  if (BeginsIgnoringCase(text, kOrganization)) text = From(text, kOrganization.size());
  text = Trim(text);
  const std::size_t start = text.find_first_of(kDigits);
  if (start == std::string_view::npos) return std::string(whole);
  const std::string_view prefix = text.substr(0, start);
  std::string_view number = text.substr(start);
  while (number[0] == '0' && number.size() > 1 && IsAsciiDigit(number[1])) number.remove_prefix(1);
  const std::size_t digits = std::min(number.find_first_not_of(kDigits), number.size());
  std::string out = "(OCoLC)";
  if (form.alphabetic_prefix) out += prefix;
  if (form.leading_zeroes && digits < kPlaces) out.append(kPlaces - digits, '0');
  return out.append(number);
}

}  // namespace cantorel

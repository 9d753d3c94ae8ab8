#include "record/oclc_number.h"

#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"

namespace cantorel {

namespace {

constexpr std::string_view kOrganization = "(ocolc)";
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

std::string CleanOclcNumber(std::string_view text, OclcNumberForm form) {
  if (BeginsIgnoringCase(text, kOrganization)) text = From(text, kOrganization.size());
  text = Trim(text);
  const std::size_t digits = std::min(text.find_first_of("0123456789"), text.size());
  const std::string_view prefix = text.substr(0, digits);
  std::string_view number = text.substr(digits);
  while (number.size() > 1 && number[0] == '0') number.remove_prefix(1);
  std::string out = "(OCoLC)";
  if (form.alphabetic_prefix) out += prefix;
  if (form.leading_zeroes && number.size() < kPlaces) out.append(kPlaces - number.size(), '0');
  return out.append(number);
}

}  // namespace cantorel

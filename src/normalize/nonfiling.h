// Where a title or heading may have a part that is left out in filing.
//
// Two ways mark such a part, an article as a rule: an indicator that counts its
// characters (MARC 21, first or second indicator of some fields), or a pair of
// control characters around it, the nonfiling zone.

#ifndef CANTOREL_NORMALIZE_NONFILING_H_
#define CANTOREL_NORMALIZE_NONFILING_H_

#include <cstddef>
#include <string_view>

namespace cantorel {

// The octets that open and close a nonfiling zone.
struct NonfilingMarkers {
  std::string_view begin;
  std::string_view end;
};

NonfilingMarkers NonfilingMarkersOf(bool utf8);

// The indicator, 1 or 2, that counts the nonfiling characters of a field; 0 for
// a field without such a count.  `format` is a record format letter.
std::size_t NonfilingIndicator(std::string_view format, std::string_view tag);

// The number of characters that the indicator counts, 0 to 9; 0 for anything but
// a digit and when `indicator` is 0.
std::size_t NonfilingCount(std::string_view indicators, std::size_t indicator);

// True when the text may have a nonfiling part; false is certain.
bool MayHaveNonfilingPart(std::string_view format, std::string_view tag,
                          std::string_view indicators, std::string_view text, bool utf8);

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_NONFILING_H_

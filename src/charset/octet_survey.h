// Which 8-bit character set the octets of a record speak for.
//
// A record whose leader does not claim UTF-8 may be MARC-8 in any of its
// variants.  The octets that occur tell which: the octets 192 to 198 and 190
// are signs of one variant or another, 144 to 221 outside of these belong to
// the single-octet variant, and an escape means designations.

#ifndef CANTOREL_CHARSET_OCTET_SURVEY_H_
#define CANTOREL_CHARSET_OCTET_SURVEY_H_

#include <array>
#include <string>
#include <string_view>

namespace cantorel {

class OctetSurvey {
 public:
  // Notes which octets occur in a text.
  explicit OctetSurvey(std::string_view text);

  // "M" MARC-8, "O" and "V" its variants, "Y" MARC-8 with symbols, "X" a variant
  // that may be either.
  char Letter() const;

  // The letter and, behind a blank, "Illegal character(s): " with the illegal
  // octets in decimal, if any occur.
  std::string Describe() const;

 private:
  bool Any(unsigned first, unsigned last) const;

  std::array<bool, 256> seen_{};
  bool plain_ = false;  // nothing but printable ASCII and MARC's own controls
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_OCTET_SURVEY_H_

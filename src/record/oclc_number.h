// OCLC control numbers in 035 $a.

#ifndef CANTOREL_RECORD_OCLC_NUMBER_H_
#define CANTOREL_RECORD_OCLC_NUMBER_H_

#include <string>
#include <string_view>

namespace cantorel {

// True for a text that begins "(OCoLC)" in any case, or "ocm", "ocl", "ocn", or
// "oc" and a digit from 1 to 9.
bool IsOclcNumber(std::string_view text);

struct OclcNumberForm {
  bool alphabetic_prefix;  // keep "ocm", "ocn" ... ahead of the digits
  bool leading_zeroes;     // digits filled up to eight places
};

// The number behind "(OCoLC)" in the form asked for, what follows its digits
// included.  A text without digits comes back as it is.
std::string CleanOclcNumber(std::string_view whole, OclcNumberForm form);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_OCLC_NUMBER_H_

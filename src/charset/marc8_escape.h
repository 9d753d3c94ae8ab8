// The escape sequences of MARC-8: which set they put in force, and where.
//
// Octets below 128 are of the set in force as G0, those above of the set in
// force as G1 (ISO 2022, as MARC 21 uses it).

#ifndef CANTOREL_CHARSET_MARC8_ESCAPE_H_
#define CANTOREL_CHARSET_MARC8_ESCAPE_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "charset/marc8_character.h"

namespace cantorel {

struct Marc8Escape {
  bool is_g1 = false;
  std::size_t length = 0;  // with the escape character
  char code[3] = {};       // such as "s", "(N", ")!E"
  std::size_t code_size = 0;

  std::string_view Code() const { return {code, code_size}; }
};

// Reads the sequence that `text` begins with.  False for an escape that names
// nothing: it is followed by none of "s", "p", "g", "b", "(", ")", "$", "!", or
// the text ends, or goes on with a control, before the sequence is complete.
bool ReadMarc8Escape(std::string_view text, Marc8Escape& escape);

// One half of the sets in force.  A code that no set has makes it unknown.
struct Marc8Half {
  Marc8Designation designation;
  bool known = true;

  explicit Marc8Half(std::string_view code);
  explicit constexpr Marc8Half(Marc8Set set) : designation{set, {}} {}
  bool operator==(const Marc8Half& other) const;
};

// The two sets in force.
class Marc8Sets {
 public:
  void Reset() { *this = Marc8Sets(); }
  void Assign(Marc8Half g0, Marc8Half g1);

  // Takes an escape sequence in.  Several in a row count as one change.
  void Take(const Marc8Escape& escape);

  // To be called before text is read: a new G0 that came without a G1 brings its
  // partner along (Cyrillic and Arabic their extended sets, all others Latin).
  void Settle();

  const Marc8Half& G0() const { return g0_; }
  const Marc8Half& G1() const { return g1_; }
  bool G0IsLatin() const { return g0_.known && g0_.designation.set == Marc8Set::kLatin; }
  // In the usual halves: ASCII below 128, ANSEL above.
  bool BothAreLatin() const {
    return g0_ == Marc8Half(Marc8Set::kLatin) && g1_ == Marc8Half(Marc8Set::kLatin);
  }

 private:
  Marc8Half g0_{Marc8Set::kLatin};
  Marc8Half g1_{Marc8Set::kLatin};
  Marc8Half last_g0_{Marc8Set::kLatin};  // the one that the text before was read in
  bool g1_came_ = false;                 // since that text
  bool settled_ = true;
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_ESCAPE_H_

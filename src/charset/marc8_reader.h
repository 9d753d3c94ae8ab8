// Field text from MARC-8 to UTF-8.
//
// The text is read once from front to end.  Stretches that are the same in both
// are copied whole; marks wait for the letter behind them; octets that no table
// has become a token, "[MARC+" and their hexadecimal digits and "]", so that
// nothing is lost.  The sets in force return to Latin at every subfield.

#ifndef CANTOREL_CHARSET_MARC8_READER_H_
#define CANTOREL_CHARSET_MARC8_READER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc8_escape.h"
#include "charset/pending_marks.h"

namespace cantorel {

// True when no octet of a text means another character in MARC-8 than in UTF-8.
bool IsSameInMarc8(std::string_view text);

class Marc8Reader {
 public:
  // `letter` is "M", "O" or "V".  In an 880 marks of every set go behind their
  // letters, in other fields those of the Latin sets.  `marks` is a work space;
  // the text is appended to `out`, which holds the field from its beginning.
  Marc8Reader(char letter, bool is_880, PendingMarks& marks, std::string& out)
      : letter_(letter), is_880_(is_880), marks_(marks), out_(out) {
    marks_.Clear();
  }

  Marc8Sets& Sets() { return sets_; }

  // Translates a field text, or a part of one in the sets in force.
  void Read(std::string_view text);

  // Some octets became tokens.
  bool Error() const { return error_; }

 private:
  void ReadOne(std::string_view& text);
  void ReadDelimiter(std::string_view& text);
  bool ReadEscape(std::string_view& text);
  bool ReadNotation(std::string_view& text);
  void ReadCharacter(std::string_view& text);
  std::size_t CharacterLength(std::string_view text) const;
  void Put(std::uint32_t code_point, Marc8Set set);
  void PutToken(std::string_view octets);
  void Flush();

  char letter_;
  bool is_880_;
  bool error_ = false;
  Marc8Sets sets_;
  PendingMarks& marks_;
  std::string& out_;
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_READER_H_

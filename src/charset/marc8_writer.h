// Field text from UTF-8 to MARC-8.
//
// Each subfield begins and ends in Latin.  A character that the set in force has
// stays in it; any other takes the first set that has it, behind an escape.
// Marks go in front of their letter.  A character that no set has is written as
// numeric notation, so that the way back restores it.

#ifndef CANTOREL_CHARSET_MARC8_WRITER_H_
#define CANTOREL_CHARSET_MARC8_WRITER_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc8_character.h"
#include "charset/pending_marks.h"

namespace cantorel {

// The sets that were used, each once, in order of first use.
class Marc8SetsUsed {
 public:
  void Add(Marc8Set set);
  void Add(const Marc8SetsUsed& others);
  void Clear() { count_ = 0; }

  // The subfields of the 066 that announces them: delimiter, "c" and the code of
  // the set for each of another script.  Empty for none.
  std::string FieldText() const;

  // The code of the first script, as a $6 names it: "(3", "(N", "$1" ...  Empty
  // without one.
  std::string_view Script() const;

 private:
  static constexpr std::size_t kSets = 11;
  std::array<Marc8Set, kSets> sets_{};
  std::size_t count_ = 0;
};

// True when no octet of a text means another character in UTF-8 than in MARC-8.
bool IsSameInUtf8(std::string_view text);

class Marc8Writer {
 public:
  // `letter` is "M", "O" or "V".  `marks` is a work space; the text is appended
  // to `out`.
  Marc8Writer(char letter, bool is_880, PendingMarks& marks, std::string& out)
      : letter_(letter), is_880_(is_880), marks_(marks), out_(out) {}

  // Translates a whole field text.
  void Write(std::string_view text);

  const Marc8SetsUsed& Used() const { return used_; }

 private:
  // A letter and where the text goes on behind it and its marks.
  struct Cluster {
    std::uint32_t base;
    bool well_formed;
    std::size_t end;
  };

  void WriteSubfield(std::string_view text);
  std::size_t WriteAscii(std::string_view text, std::size_t from);
  Cluster ReadCluster(std::string_view text, std::size_t from);
  void WriteCluster(const Cluster& cluster, std::string_view rest);
  void WriteAsNotation(std::uint32_t base);
  void WriteMarks(Marc8Set base_set);
  bool MarksStandIn(Marc8Set set) const;
  bool IsUnwritable(const Cluster& cluster, std::string_view rest) const;
  bool ChooseForm(std::uint32_t code_point, std::string_view rest, Marc8Form& form) const;
  void SwitchTo(Marc8Set set);
  void SetScriptOfLink(std::size_t field_start);

  char letter_;
  bool is_880_;
  bool g1_moved_ = false;  // G1 was designated away from Latin
  Marc8Set set_ = Marc8Set::kLatin;
  Marc8Set script_ = Marc8Set::kLatin;  // of the $6 of an 880
  std::uint32_t right_half_ = 0;        // of a double mark, for the next letter
  Marc8SetsUsed used_;
  PendingMarks& marks_;
  std::string& out_;
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_WRITER_H_

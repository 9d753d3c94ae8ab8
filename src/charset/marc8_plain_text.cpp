// MARC-8 text that is not part of a field, to UTF-8.

#include <algorithm>
#include <cstddef>

#include "charset/combining_marks.h"
#include "charset/marc8_character.h"
#include "charset/marc_control.h"
#include "charset/numeric_notation.h"
#include "charset/pending_marks.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::string_view kRunLetters = "sgbp";

// In plain text gamma is also written "g"; the code table has "c".
constexpr char kOtherGamma = 'g';
constexpr std::uint32_t kGamma = 0x03B3;

class PlainTextReader {
 public:
  PlainTextReader(char letter, std::string& out) : letter_(letter), out_(out) {}

  void Read(std::string_view text) {
    while (!text.empty()) ReadOne(text);
    Flush();
  }

 private:
  void ReadOne(std::string_view& text) {
    NumericNotation notation;
    if (text[0] == kEscape) {
      ReadEscape(text);
    } else if (text[0] == '&' && ReadHexNotation(text, notation)) {
      Flush();
      AppendUtf8(notation.code_point, out_);
      text.remove_prefix(notation.length);
    } else {
      ReadOctet(text[0]);
      text.remove_prefix(1);
    }
  }

  // An escape into a set that is not one of the runs stays, with its text.
  void ReadEscape(std::string_view& text) {
    if (text.size() > 1 && kRunLetters.find(text[1]) != std::string_view::npos) {
      ReadMarc8Designation(text.substr(1, 1), run_);
      text.remove_prefix(2);
      return;
    }
    Flush();
    const std::size_t length = std::min(text.find(kEscape, 1), text.size());
    out_.append(text, 0, length);
    text.remove_prefix(length);
  }

  void ReadOctet(char octet) {
    const std::uint32_t code_point = CodePointOf(octet);
    if (code_point == kNoCodePoint) {
      out_ += octet;
    } else if (const std::uint8_t mark_class = MarkClass(code_point); mark_class != kNoMark) {
      marks_.Add(code_point, mark_class);
      return;
    } else {
      AppendUtf8(code_point, out_);
    }
    Flush();
  }

  std::uint32_t CodePointOf(char octet) const {
    if (run_.set == Marc8Set::kGreekSymbols && octet == kOtherGamma) return kGamma;
    const Marc8Designation designation = Octet(octet) < 0x80 ? run_ : Marc8Designation{};
    return UcsOfMarc8Octets(letter_, designation, {&octet, 1});
  }

  void Flush() {
    if (marks_.Empty()) return;
    for (const PendingMark& mark : marks_.InOrderOfUtf8()) AppendUtf8(mark.code_point, out_);
    marks_.Clear();
  }

  char letter_;
  Marc8Designation run_;  // of the octets below 128; those above are Latin
  PendingMarks marks_;
  std::string& out_;
};

}  // namespace

std::string Utf8CharClass::Marc82Utf8(std::string_view text, std::string_view set_in) {
  std::string utf8;
  PlainTextReader(set_in.empty() ? 'M' : set_in[0], utf8).Read(text);
  return utf8;
}

}  // namespace cantorel

#include "charset/decomposition.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "charset/combining_marks.h"
#include "charset/marc_control.h"
#include "charset/substitutes.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "charset/windows_text.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// The halves of a double mark, in UTF-8.
struct Halves {
  std::string_view left;
  std::string_view right;
};

constexpr Halves kTildeHalves = {"\xEF\xB8\xA2", "\xEF\xB8\xA3"};
constexpr Halves kLigatureHalves = {"\xEF\xB8\xA0", "\xEF\xB8\xA1"};

// A double mark gets its second half only if it and what follows have this many
// octets.
constexpr std::size_t kOctetsForTwoHalves = 4;

// An octet of the text becomes three at most: a double mark of two octets has two
// halves of three.
constexpr std::size_t kMostOctetsForOne = 3;

bool IsDoubleMark(std::uint32_t code_point) {
  return code_point == kDoubleTilde || code_point == kDoubleLigature;
}

// The start of the character that ends before `end`: of its first octet, or of
// the ASCII octet that loose continuation octets stand behind.
std::size_t StartOfCharacter(std::string_view text, std::size_t end) {
  std::size_t start = end - 1;
  while (start > 0 && IsUtf8Continuation(text[start])) --start;
  return start;
}

// The first octets of the characters that may be replaced.  Most marks, Cyrillic
// letters and ideographs need no further look.
constexpr std::array<bool, 256> kMayBeReplaced = [] {
  std::array<bool, 256> may{};
  for (unsigned octet = 0xC2; octet <= 0xCB; ++octet) may[octet] = true;  // U+0080 to U+02FF
  // Double marks, Cyrillic i, U+1000, U+2000, and private-use characters.
  for (const unsigned octet : {0xCD, 0xD0, 0xE1, 0xE2, 0xEE}) may[octet] = true;
  return may;
}();

// The text is walked from its end, so that a character is seen with what follows
// it already replaced.  The new text grows from the end of its room to the front;
// what stays is copied a stretch at a time.
class BackwardDecomposition {
 public:
  explicit BackwardDecomposition(std::string_view text) : text_(text), kept_end_(text.size()) {}

  // The characters are offered from the last to the first.
  void Offer(std::size_t start, std::size_t end) {
    if (!kMayBeReplaced[Octet(text_[start])]) return;
    const std::uint32_t code_point = Utf8CodePoint(text_.substr(start, end - start));
    if (IsDoubleMark(code_point)) {
      Keep(end);
      PrependHalves(code_point == kDoubleTilde ? kTildeHalves : kLigatureHalves, end - start);
    } else {
      substitute_.clear();
      if (!FindSubstitute(code_point, end)) return;
      Keep(end);
      Prepend(substitute_);
    }
    kept_end_ = start;
  }

  // False, with `out` as it was, if nothing was replaced.
  bool Finish(std::string& out) {
    if (room_.empty()) return false;
    Keep(0);
    out.assign(room_, front_);
    return true;
  }

 private:
  bool FindSubstitute(std::uint32_t code_point, std::size_t end) {
    const bool before_ascii = IsAscii(Following(end));
    return before_ascii ? AppendWindowsSubstitute(code_point, substitute_)
                        : AppendSubstitute(code_point, substitute_);
  }

  // The octet behind `end`; empty at the end of the text.
  std::string_view Following(std::size_t end) const {
    if (end < kept_end_) return text_.substr(end, 1);
    return std::string_view(room_).substr(front_, 1);
  }

  // Copies what stays from `start` on.
  void Keep(std::size_t start) {
    if (room_.empty()) {
      room_.resize(text_.size() * kMostOctetsForOne);
      front_ = room_.size();
    }
    Prepend(text_.substr(start, kept_end_ - start));
  }

  void Prepend(std::string_view octets) {
    front_ -= octets.size();
    octets.copy(room_.data() + front_, octets.size());
  }

  void PrependHalves(Halves halves, std::size_t mark_size) {
    const std::size_t following = room_.size() - front_;
    // Nothing goes between a delimiter and its code.
    if (mark_size + following >= kOctetsForTwoHalves && room_[front_] != kDelimiter) {
      const std::string next(Utf8CharAt(room_, front_));
      front_ += next.size();
      Prepend(halves.right);
      Prepend(next);
    }
    Prepend(halves.left);
  }

  std::string_view text_;
  std::size_t kept_end_;  // what stays in front of it is not yet copied
  std::string room_;
  std::size_t front_ = 0;
  std::string substitute_;
};

}  // namespace

bool DecomposeText(std::string_view text, std::string& out) {
  BackwardDecomposition decomposition(text);
  for (std::size_t end = text.size(); end > 0;) {
    const std::size_t start = Octet(text[end - 1]) < 0x80 ? end - 1 : StartOfCharacter(text, end);
    decomposition.Offer(start, end);
    end = start;
  }
  return decomposition.Finish(out);
}

std::string Utf8MarcRecordClass::DecomposeUnicodeCharactersInString(std::string_view text,
                                                                    bool& changed) const {
  std::string decomposed;
  changed = DecomposeText(text, decomposed);
  if (!changed) return std::string(text);
  SqueezeBlanks(decomposed);
  return decomposed;
}

// Control fields 001 to 009 hold no text to decompose.
void Utf8MarcRecordClass::DecomposeAllFields() {
  characters_decomposed_ = false;
  const std::int16_t loaded = table_.Count();
  std::string built;
  std::string decomposed;
  for (std::int16_t row = 0; row < loaded; ++row) {
    const FieldRecord& field = table_.Field(row);
    if (field.is_control || field.deleted) continue;
    std::string_view text = field.whole_text;
    if (text.empty()) {
      built.clear();
      AppendText(field, built);
      text = built;
    }
    if (IsAscii(text) || !DecomposeText(text, decomposed)) continue;
    FldPointer(row);
    SqueezeBlanks(decomposed);
    FldText(decomposed);
    characters_decomposed_ = true;
  }
}

}  // namespace cantorel

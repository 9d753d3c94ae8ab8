#include "charset/decomposition.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "charset/marc_control.h"
#include "charset/substitutes.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "charset/windows_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::uint32_t kDoubleTilde = 0x0360;
constexpr std::uint32_t kDoubleInvertedBreve = 0x0361;

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

bool IsDoubleMark(std::uint32_t code_point) {
  return code_point == kDoubleTilde || code_point == kDoubleInvertedBreve;
}

// The start of the character that ends before `end`: of its first octet, or of
// the ASCII octet that loose continuation octets stand behind.
std::size_t StartOfCharacter(std::string_view text, std::size_t end) {
  std::size_t start = end - 1;
  while (start > 0 && IsUtf8Continuation(text[start])) --start;
  return start;
}

// The text is walked from its end, so that a character is seen with what follows
// it already replaced; it grows backward, octets reversed.
class BackwardDecomposition {
 public:
  explicit BackwardDecomposition(std::size_t size) { reversed_.reserve(size + size / 4); }

  void Prepend(std::string_view character) {
    const std::uint32_t code_point = Utf8CodePoint(character);
    if (IsDoubleMark(code_point)) {
      PrependHalves(code_point == kDoubleTilde ? kTildeHalves : kLigatureHalves, character.size());
      return;
    }
    substitute_.clear();
    const bool replaced = code_point != kNoCodePoint && Substitute(code_point);
    PrependOctets(replaced ? substitute_ : character);
  }

  std::string Take() {
    std::reverse(reversed_.begin(), reversed_.end());
    return std::move(reversed_);
  }

 private:
  bool Substitute(std::uint32_t code_point) {
    const bool before_ascii = reversed_.empty() || Octet(reversed_.back()) < 0x80;
    return before_ascii ? AppendWindowsSubstitute(code_point, substitute_)
                        : AppendSubstitute(code_point, substitute_);
  }

  void PrependOctets(std::string_view octets) { reversed_.append(octets.rbegin(), octets.rend()); }

  void PrependHalves(Halves halves, std::size_t mark_size) {
    if (mark_size + reversed_.size() >= kOctetsForTwoHalves) InsertBehindNext(halves.right);
    PrependOctets(halves.left);
  }

  // Nothing goes between a delimiter and its code.
  void InsertBehindNext(std::string_view mark) {
    if (reversed_.back() == kDelimiter) return;
    const std::size_t next = std::min(Utf8AnnouncedOctets(reversed_.back()), reversed_.size());
    reversed_.insert(reversed_.size() - next, std::string(mark.rbegin(), mark.rend()));
  }

  std::string reversed_;
  std::string substitute_;
};

// True when the text has a character that may be replaced.
bool HasCandidate(std::string_view text) {
  std::string substitute;
  for (std::size_t i = 0; i < text.size();) {
    if (Octet(text[i]) < 0x80) {
      ++i;
      continue;
    }
    const std::string_view character = Utf8CharAt(text, i);
    i += character.size();
    const std::uint32_t code_point = Utf8CodePoint(character);
    if (IsDoubleMark(code_point) || AppendWindowsSubstitute(code_point, substitute)) return true;
  }
  return false;
}

}  // namespace

bool DecomposeText(std::string_view text, std::string& out) {
  if (!HasCandidate(text)) return false;
  BackwardDecomposition decomposition(text.size());
  for (std::size_t end = text.size(); end > 0;) {
    const std::size_t start = StartOfCharacter(text, end);
    decomposition.Prepend(text.substr(start, end - start));
    end = start;
  }
  std::string decomposed = decomposition.Take();
  if (decomposed == text) return false;
  out = std::move(decomposed);
  return true;
}

std::string Utf8MarcRecordClass::DecomposeUnicodeCharactersInString(std::string_view text,
                                                                    bool& changed) const {
  std::string decomposed;
  changed = DecomposeText(text, decomposed);
  return changed ? RemoveRepeatedCharacters(decomposed, " ") : std::string(text);
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
    FldText(RemoveRepeatedCharacters(decomposed, " "));
    characters_decomposed_ = true;
  }
}

}  // namespace cantorel

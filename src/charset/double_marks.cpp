#include "charset/double_marks.h"

#include <cstddef>
#include <cstdint>

#include "charset/combining_marks.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::uint32_t kMistakenLigature = 0xCDA1;
constexpr std::uint32_t kMistakenTilde = 0xCDA0;
constexpr std::string_view kMistakenFirstOctets = "\xEC\xB6";  // of both
constexpr std::string_view kHalfFirstOctets = "\xEF\xB8";      // of all four halves

std::uint32_t CodePointAt(std::string_view text, std::size_t position) {
  return Utf8CodePoint(Utf8CharAt(text, position));
}

std::uint32_t RightHalfOf(std::uint32_t left) {
  return left == kLigatureLeft ? kLigatureRight : left == kDoubleTildeLeft ? kDoubleTildeRight : 0;
}

std::size_t SkipMarks(std::string_view text, std::size_t i, std::uint32_t but_for) {
  while (i < text.size()) {
    const std::uint32_t code_point = CodePointAt(text, i);
    if (MarkClass(code_point) == kNoMark || code_point == but_for) break;
    if (RightHalfOf(code_point) != 0) break;
    i += Utf8AnnouncedOctets(text[i]);
  }
  return i;
}

// Where the right half is that belongs to a left half ending at `i`: behind the
// next letter, other marks between; npos if it is not there.
std::size_t FindRightHalf(std::string_view text, std::size_t i, std::uint32_t right) {
  i = SkipMarks(text, i, right);
  if (i >= text.size() || MarkClass(CodePointAt(text, i)) != kNoMark) return std::string_view::npos;
  if (Octet(text[i]) < ' ') return std::string_view::npos;
  i = SkipMarks(text, i + Utf8AnnouncedOctets(text[i]), right);
  return i < text.size() && CodePointAt(text, i) == right ? i : std::string_view::npos;
}

bool IsLatinLetter(std::uint32_t code_point) {
  const Category category = CategoryOfCodePoint(code_point);
  return code_point < 0x0250 && category >= Category::kLl && category <= Category::kLo;
}

}  // namespace

std::string JoinHalfMarks(std::string_view text) {
  std::string joined;
  std::size_t done = 0;
  for (std::size_t i = text.find(kHalfFirstOctets); i != std::string_view::npos;
       i = text.find(kHalfFirstOctets, i + 1)) {
    const std::uint32_t left = CodePointAt(text, i);
    const std::uint32_t right = RightHalfOf(left);
    if (i < done || right == 0) continue;
    const std::size_t behind_left = i + Utf8AnnouncedOctets(text[i]);
    const std::size_t end = FindRightHalf(text, behind_left, right);
    if (end == std::string_view::npos) continue;
    joined += text.substr(done, i - done);
    AppendUtf8(left == kLigatureLeft ? kDoubleLigature : kDoubleTilde, joined);
    joined += text.substr(behind_left, end - behind_left);
    done = end + Utf8AnnouncedOctets(text[end]);
  }
  return joined.append(text.substr(done));
}

bool MayHoldMistakenDoubleMarks(std::string_view text) {
  return text.find(kMistakenFirstOctets) != std::string_view::npos;
}

std::string SplitMistakenDoubleMarks(std::string_view text) {
  std::string split;
  std::uint32_t before = 0;
  std::uint32_t right_half = 0;  // for the letter that comes next
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8CharAt(text, i);
    const std::uint32_t code_point = Utf8CodePoint(character);
    i += character.size();
    const bool ligature = code_point == kMistakenLigature;
    const bool mistaken = (ligature || code_point == kMistakenTilde) && IsLatinLetter(before) &&
                          IsLatinLetter(CodePointAt(text, i));
    before = code_point;
    if (mistaken) {
      AppendUtf8(ligature ? kLigatureLeft : kDoubleTildeLeft, split);
      right_half = ligature ? kLigatureRight : kDoubleTildeRight;
      continue;
    }
    split += character;
    if (right_half != 0) AppendUtf8(right_half, split);
    right_half = 0;
  }
  return split;
}

}  // namespace cantorel

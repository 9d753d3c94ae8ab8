#include "charset/right_to_left.h"

#include <cstddef>
#include <cstdint>

#include "charset/marc_control.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::string_view kRightToLeftMark = "\xE2\x80\x8F";       // U+200F
constexpr std::string_view kLeftToRightEmbedding = "\xE2\x80\xAA";  // U+202A
constexpr std::string_view kPopFormatting = "\xE2\x80\xAC";         // U+202C
constexpr std::string_view kOpeningBrackets = "([{";
constexpr std::string_view kClosingBrackets = ")]}";

// What a character means for the direction of a text.
enum class Direction { kLeftToRight, kNumber, kRightToLeft, kMark, kNeutral };

bool IsRightToLeft(std::uint32_t code_point) {
  return (code_point >= 0x05D0 && code_point <= 0x05F4) ||
         (code_point >= 0x0600 && code_point <= 0x06FF);
}

Direction DirectionOf(std::string_view character) {
  const std::uint32_t code_point = Utf8CodePoint(character);
  if (code_point == kNoCodePoint) return Direction::kNeutral;
  if (IsRightToLeft(code_point)) return Direction::kRightToLeft;
  const Category category = CategoryOfCodePoint(code_point);
  if (category >= Category::kLl && category <= Category::kLo) return Direction::kLeftToRight;
  if (category == Category::kNd) return Direction::kNumber;
  return category == Category::kMn ? Direction::kMark : Direction::kNeutral;
}

// A stretch of left-to-right text, as it grows.
class Stretch {
 public:
  bool Begun() const { return begin_ != end_; }
  bool HasLetter() const { return has_letter_; }
  std::size_t Begin() const { return begin_; }
  std::size_t End() const { return end_; }

  void Take(std::string_view character, std::size_t position, Direction direction) {
    const std::size_t behind = position + character.size();
    const bool text = direction == Direction::kLeftToRight || direction == Direction::kNumber;
    if (text && !Begun()) begin_ = position;
    if (!text && !Begun()) return;
    const bool continues = direction == Direction::kMark && end_ == position;
    if (text || continues || ClosesBracket(character[0])) end_ = behind;
    has_letter_ = has_letter_ || direction == Direction::kLeftToRight;
  }

 private:
  // Counts the brackets open inside; true for one that closes such a bracket.
  bool ClosesBracket(char c) {
    if (kOpeningBrackets.find(c) != std::string_view::npos) ++open_brackets_;
    if (open_brackets_ == 0 || kClosingBrackets.find(c) == std::string_view::npos) return false;
    --open_brackets_;
    return true;
  }

  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t open_brackets_ = 0;
  bool has_letter_ = false;
};

// Appends a subfield's text with its left-to-right stretches embedded.  Numbers
// alone need no embedding.
void AppendEmbedded(std::string_view text, std::string& out) {
  std::size_t done = 0;
  Stretch stretch;
  const auto finish = [&] {
    if (stretch.HasLetter()) {
      out += text.substr(done, stretch.Begin() - done);
      out += kLeftToRightEmbedding;
      out += text.substr(stretch.Begin(), stretch.End() - stretch.Begin());
      out += kPopFormatting;
      done = stretch.End();
    }
    stretch = Stretch();
  };
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8CharAt(text, i);
    const Direction direction = DirectionOf(character);
    if (direction == Direction::kRightToLeft) {
      finish();
    } else {
      stretch.Take(character, i, direction);
    }
    i += character.size();
  }
  finish();
  out += text.substr(done);
}

}  // namespace

bool HasRightToLeftText(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (Octet(text[i]) >= 0x80 && IsRightToLeft(Utf8CodePoint(Utf8CharAt(text, i)))) return true;
  }
  return false;
}

std::string MarkDirections(std::string_view field) {
  std::string marked(field.substr(0, field.find(kDelimiter)));
  field.remove_prefix(marked.size());
  while (!field.empty()) {
    const std::string_view subfield = field.substr(0, field.find(kDelimiter, 1));
    field.remove_prefix(subfield.size());
    const std::string_view text = subfield.size() > 2 ? subfield.substr(2) : std::string_view();
    if (text.empty() || subfield[1] == '6') {
      marked += subfield;
      continue;
    }
    marked += subfield.substr(0, 2);
    if (text.find(kLeftToRightEmbedding) == std::string_view::npos) {
      AppendEmbedded(text, marked);
    } else {
      marked += text;
    }
    if (!text.ends_with(kRightToLeftMark)) marked += kRightToLeftMark;
  }
  return marked;
}

}  // namespace cantorel

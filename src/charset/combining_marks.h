// The combining marks of MARC-8's Latin set, and how several on one letter
// follow each other.

#ifndef CANTOREL_CHARSET_COMBINING_MARKS_H_
#define CANTOREL_CHARSET_COMBINING_MARKS_H_

#include <array>
#include <cstddef>
#include <cstdint>

namespace cantorel {

// Canonical combining classes (Unicode Standard, 3.11); a mark has no other.
inline constexpr std::uint8_t kNoMark = 0;
inline constexpr std::uint8_t kAttachedBelow = 202;
inline constexpr std::uint8_t kBelow = 220;
inline constexpr std::uint8_t kAbove = 230;
inline constexpr std::uint8_t kAboveRight = 232;

// The double marks, and the halves that MARC-8 makes them of.
inline constexpr std::uint32_t kDoubleTilde = 0x0360;
inline constexpr std::uint32_t kDoubleLigature = 0x0361;
inline constexpr std::uint32_t kLigatureLeft = 0xFE20;
inline constexpr std::uint32_t kLigatureRight = 0xFE21;
inline constexpr std::uint32_t kDoubleTildeLeft = 0xFE22;
inline constexpr std::uint32_t kDoubleTildeRight = 0xFE23;

namespace combining_marks {

struct Mark {
  char16_t code_point;
  std::uint8_t mark_class;
};

inline constexpr Mark kMarks[] = {
    {0x0300, kAbove},         {0x0301, kAbove},         {0x0302, kAbove},      {0x0303, kAbove},
    {0x0304, kAbove},         {0x0306, kAbove},         {0x0307, kAbove},      {0x0308, kAbove},
    {0x0309, kAbove},         {0x030A, kAbove},         {0x030B, kAbove},      {0x030C, kAbove},
    {0x0310, kAbove},         {0x0313, kAbove},         {0x0315, kAboveRight}, {0x031C, kBelow},
    {0x0323, kBelow},         {0x0324, kBelow},         {0x0325, kBelow},      {0x0326, kBelow},
    {0x0327, kAttachedBelow}, {0x0328, kAttachedBelow}, {0x032E, kBelow},      {0x0332, kBelow},
    {0x0333, kBelow},
};

inline constexpr std::uint32_t kFirst = 0x0300;
inline constexpr std::size_t kSpan = 0x34;

inline constexpr std::array<std::uint8_t, kSpan> kClasses = [] {
  std::array<std::uint8_t, kSpan> classes{};
  for (const Mark& mark : kMarks) classes[mark.code_point - kFirst] = mark.mark_class;
  return classes;
}();

}  // namespace combining_marks

// The class of a mark; kNoMark for any other character, also for marks that only
// other sets have, such as Hebrew points.
constexpr std::uint8_t MarkClass(std::uint32_t code_point) {
  if (code_point >= kLigatureLeft && code_point <= kDoubleTildeRight) return kAbove;
  const std::uint32_t place = code_point - combining_marks::kFirst;
  return place < combining_marks::kSpan ? combining_marks::kClasses[place] : kNoMark;
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_COMBINING_MARKS_H_

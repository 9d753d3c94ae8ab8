#include "charset/octet_category.h"

#include <algorithm>
#include <array>

#include "charset/utf8.h"

namespace cantorel {

namespace {

struct OctetRange {
  unsigned char first;
  unsigned char last;
  Category category;
};

// Octets outside these ranges are "Po".
constexpr OctetRange kRanges[] = {
    {0, 31, Category::kCc},    {32, 32, Category::kZs},   {34, 34, Category::kPi},
    {39, 39, Category::kPi},   {40, 40, Category::kPs},   {41, 41, Category::kPe},
    {45, 45, Category::kPd},   {48, 59, Category::kNd},   {60, 60, Category::kPs},
    {62, 62, Category::kPe},   {65, 90, Category::kLu},   {91, 91, Category::kPs},
    {93, 93, Category::kPe},   {97, 122, Category::kLl},  {123, 123, Category::kPs},
    {125, 125, Category::kPe}, {145, 145, Category::kLl}, {160, 160, Category::kLl},
    {161, 166, Category::kLu}, {175, 175, Category::kLl}, {177, 182, Category::kLl},
    {192, 198, Category::kSo}, {199, 201, Category::kNd}, {208, 227, Category::kNd},
    {228, 255, Category::kMn},
};

constexpr std::array<Category, 256> MakeTable() {
  std::array<Category, 256> table{};
  table.fill(Category::kPo);
  for (const OctetRange& range : kRanges) {
    for (unsigned octet = range.first; octet <= range.last; ++octet) table[octet] = range.category;
  }
  return table;
}

constexpr std::array<Category, 256> kTable = MakeTable();

}  // namespace

Category OctetCategory(char octet, char set) {
  const unsigned value = Octet(octet);
  const bool superscript_digit = set == 'V' && value >= 192 && value <= 198;
  return superscript_digit ? Category::kNd : kTable[value];
}

}  // namespace cantorel

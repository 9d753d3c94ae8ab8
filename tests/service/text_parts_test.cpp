#include "service/text_parts.h"

#include <gtest/gtest.h>

#include <limits>

namespace cantorel {
namespace {

struct ChopCase {
  std::string_view text;
  std::string_view delimiter;
  std::string_view part;  // handed out
  std::string_view rest;  // left in the text
};

TEST(TextParts, ChopsAtTheFirstDelimiter) {
  constexpr ChopCase kCases[] = {
      {"a\nb\nc", "\n", "a", "b\nc"}, {"abc", "\n", "abc", ""}, {"\nabc", "\n", "", "abc"},
      {"abc\n", "\n", "abc", ""},     {"", "\n", "", ""},       {"a--b", "--", "a", "b"},
      {"a-b", "--", "a-b", ""},       {"abc", "", "", "abc"},
  };
  for (const ChopCase& c : kCases) {
    std::string_view text = c.text;
    std::string_view head = "left over";
    ChopAtFirst(text, head, c.delimiter);
    EXPECT_EQ(head, c.part) << c.text;
    EXPECT_EQ(text, c.rest) << c.text;
  }
}

TEST(TextParts, ChopsAtTheLastDelimiter) {
  constexpr ChopCase kCases[] = {
      {"a\\b\\c", "\\", "c", "a\\b"}, {"abc", "\\", "abc", ""}, {"abc\\", "\\", "", "abc"},
      {"\\abc", "\\", "abc", ""},     {"", "\\", "", ""},       {"a---b", "--", "b", "a-"},
      {"abc", "", "", "abc"},
  };
  for (const ChopCase& c : kCases) {
    std::string_view text = c.text;
    std::string_view tail = "left over";
    ChopAtLast(text, tail, c.delimiter);
    EXPECT_EQ(tail, c.part) << c.text;
    EXPECT_EQ(text, c.rest) << c.text;
  }
}

TEST(TextParts, ReadsTheNumberThatATextBeginsWith) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::pair<std::string_view, std::int32_t> cases[] = {
      {"", 0},
      {"   ", 0},
      {"17", 17},
      {"  17 ", 17},
      {"17a", 17},
      {"a17", 0},
      {"-3", -3},
      {"+3", 3},
      {"-", 0},
      {"- 3", 0},
      {"007", 7},
      {"99999999999999999999", Limits::max()},
      {"\xFF", 0},
      {"2147483648", Limits::max()},
      {"-99999999999", Limits::min()},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(SignedLeadingNumber(text), number) << text;
}

TEST(TextParts, EncodesEveryOctetAsTwoDigits) {
  std::string octets;
  for (int octet = 0; octet < 256; ++octet) octets += static_cast<char>(octet);
  const std::string hex = HexEncode(octets);
  ASSERT_EQ(hex.size(), 512u);
  for (int octet = 0; octet < 256; ++octet) {
    char expected[3];
    std::snprintf(expected, sizeof(expected), "%02X", static_cast<unsigned>(octet));
    EXPECT_EQ(hex.substr(static_cast<std::size_t>(octet) * 2, 2), expected);
  }
  std::string line = "0\t655 7";
  AppendHexEncoded(
      "\x1F"
      "a\xC3",
      line);
  EXPECT_EQ(line, "0\t655 71F61C3");
}

}  // namespace
}  // namespace cantorel

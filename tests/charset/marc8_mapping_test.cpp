#include "charset/marc8_mapping.h"

#include <gtest/gtest.h>

#include <string_view>

namespace cantorel {
namespace {

constexpr std::string_view kSingleOctetSets = "12345678:;";

Marc8Set SetOf(char short_code) {
  return static_cast<Marc8Set>(short_code);
}

std::uint32_t UcsOfForm(const Marc8Form& form) {
  std::uint32_t code = 0;
  for (const char octet : form.Octets()) code = code << 8 | Octet(octet);
  return form.set == Marc8Set::kEacc ? UcsOfEacc(code)
                                     : UcsOfMarc8(form.set, static_cast<unsigned char>(code));
}

TEST(Marc8Mapping, HasAllEaccCodesAndEachCharacterComesBack) {
  int codes = 0;
  for (std::uint32_t code = 0x1F1F1F; code <= 0x808080; ++code) {
    const std::uint32_t code_point = UcsOfEacc(code);
    if (code_point == kNoCodePoint) continue;
    ++codes;
    Marc8Form form;
    ASSERT_TRUE(Marc8FormOf(code_point, form)) << std::hex << code;
    ASSERT_EQ(form.set, Marc8Set::kEacc) << std::hex << code;
    ASSERT_EQ(UcsOfForm(form), code_point) << std::hex << code;
  }
  EXPECT_EQ(codes, 15739);
  EXPECT_EQ(UcsOfEacc(0xFF213351), kNoCodePoint);
}

TEST(Marc8Mapping, EveryCodeOfASingleOctetSetIsFoundInThatSet) {
  for (const char set : kSingleOctetSets) {
    for (unsigned octet = 0; octet < 256; ++octet) {
      const std::uint32_t code_point = UcsOfMarc8(SetOf(set), static_cast<unsigned char>(octet));
      const bool only_itself = code_point == octet && octet > 0x20;
      if (code_point == kNoCodePoint || only_itself) continue;
      Marc8Form form;
      ASSERT_TRUE(Marc8FormIn(code_point, SetOf(set), form)) << set << ' ' << octet;
      EXPECT_EQ(Octet(form.octets[0]), octet) << set;
    }
  }
}

TEST(Marc8Mapping, TakesTheFirstSetAndThePlainCode) {
  const struct {
    std::uint32_t code_point;
    char set;
    std::string_view octets;
  } kCases[] = {
      {'A', '1', "A"},
      {0x7F, '1', "\x7F"},
      {0x03B1, '2', "a"},
      {0x0300, '1', "\xE1"},
      {0x201C, '7', "\x7A"},
      {0x0451, ':', "\xC4"},
      {0x4E99, '9', "\x4B\x30\x57"},   // 213057 is a variant
      {0x4EC3, '9', "\x21\x30\x68"},   // two plain codes: the lower
      {0x212C4, '9', "\x21\x75\x59"},  // beyond U+FFFF
  };
  for (const auto& test : kCases) {
    Marc8Form form;
    ASSERT_TRUE(Marc8FormOf(test.code_point, form)) << std::hex << test.code_point;
    EXPECT_EQ(static_cast<char>(form.set), test.set) << std::hex << test.code_point;
    EXPECT_EQ(form.Octets(), test.octets) << std::hex << test.code_point;
  }
  Marc8Form form;
  for (const std::uint32_t code_point :
       {0x80u, 0xE9u, 0x200Fu, 0x2603u, 0xD800u, 0x1F600u, kNoCodePoint}) {
    EXPECT_FALSE(Marc8FormOf(code_point, form)) << std::hex << code_point;
  }
}

TEST(Marc8Mapping, AnswersForOneSetByItsPublishedTable) {
  const struct {
    std::uint32_t code_point;
    char set;
    std::string_view octets;  // empty: the set has none
  } kCases[] = {
      {0x03B1, '8', "\x61"}, {0x03B1, '1', ""},  {',', '6', ","}, {',', '7', ""},
      {'\\', '5', ""},       {' ', '8', " "},    {' ', '9', ""},  {0x0301, '8', "\x22"},
      {0x0306, ';', "\xFD"}, {']', ':', "\xDD"}, {']', '6', ""},
  };
  for (const auto& test : kCases) {
    Marc8Form form;
    EXPECT_EQ(Marc8FormIn(test.code_point, SetOf(test.set), form), !test.octets.empty())
        << std::hex << test.code_point << ' ' << test.set;
    EXPECT_EQ(form.Octets(), test.octets) << std::hex << test.code_point << ' ' << test.set;
  }
}

}  // namespace
}  // namespace cantorel

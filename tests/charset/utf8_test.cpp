#include "charset/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "charset/published_unicode.h"
#include "charset/utf8_code_point.h"

namespace cantorel {
namespace {

TEST(Utf8, TheFirstOctetAloneTellsTheLength) {
  for (unsigned octet = 0; octet < 256; ++octet) {
    const std::size_t expected = octet < 0xC0 ? 1 : octet < 0xE0 ? 2 : octet < 0xF0 ? 3 : 4;
    EXPECT_EQ(Utf8AnnouncedOctets(static_cast<char>(octet)), expected) << octet;
  }
}

TEST(Utf8, ACharacterCutOffByTheEndIsWhatIsLeft) {
  EXPECT_EQ(Utf8CharAt("a\xE2\x84", 1), "\xE2\x84");
  EXPECT_EQ(Utf8CharAt("a\xF0", 1), "\xF0");
  EXPECT_EQ(Utf8CharAt("a", 1), "");
  EXPECT_EQ(Utf8Length("a\xE2\x84"), 2u);
  EXPECT_EQ(Utf8Length("\x80\x80"), 2u);
}

TEST(Utf8, OctetsAndCodePointsAreEachOthersInverse) {
  for (std::uint32_t c = 0; c <= 0xFFFF; ++c) {
    const std::string octets = Utf8Of(c);
    ASSERT_EQ(Utf8CodePoint(octets), c);
    ASSERT_EQ(OctetValueOfCodePoint(c), Utf8OctetValue(octets));
    std::string appended;
    AppendUtf8(c, appended);
    ASSERT_EQ(appended, octets);
  }
  EXPECT_EQ(Utf8CodePoint("\xF0\x9D\x84\x9E"), 0x1D11Eu);
}

TEST(Utf8, OctetsThatAreNotOneShortestCharacterHaveNoCodePoint) {
  for (std::string_view octets :
       {"", "\x80", "\xC3", "\xC3\x41", "\xC1\xBF", "\xE0\x9F\xBF", "\xE2\x84", "\xE2\x84\x41",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80", "\xFF\xBF\xBF\xBF", "ab",
        "\xC3\xA9\xA9"}) {
    EXPECT_EQ(Utf8CodePoint(octets), kNoCodePoint) << testing::PrintToString(octets);
  }
}

}  // namespace
}  // namespace cantorel

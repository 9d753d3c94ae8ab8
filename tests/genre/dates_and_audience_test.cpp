// Subdivisions that tell a time, an audience, a creator or a style.

#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

class DatesAndAudienceTest : public GenreTest {};

TEST_F(DatesAndAudienceTest, DatesOfCreation) {
  struct {
    std::string_view subdivision;
    std::string_view expected;
  } cases[] = {
      {"1800-1899", "046  $o1800$p1899$2edtf"},
      {"1800-1899.", "046  $o1800$p1899$2edtf"},
      {"800-1300,", "046  $o0800$p1300$2edtf"},
      {"1800-1899, new", ""},
      {"1800/1899", ""},
      {"18x0-1899", ""},
      {"100-99999", ""},
      {"1900-", ""},
      {"19th century", "046  $o18"},
      {"1st century.", "046  $o00"},
      {"22ND Century", "046  $o21"},
      {"0th century", ""},
      {"19 century", ""},
      {"th century", ""},
      {"To 19th century", ""},
      {"19th century B.C.", ""},
      {"To 1500", "046  $p1500$2edtf"},
      {"To 150", ""},
      {"To 15000", ""},
      {"Early works to 1800", ""},
      {"", ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.subdivision);
    const std::string heading = "$aCanzoni$y" + std::string(test.subdivision);
    EXPECT_EQ(DeriveFrom({{"650", " 0", heading}}), test.expected);
    EXPECT_EQ(Messages().size(), 1) << "the heading itself gave nothing";
  }
  EXPECT_EQ(DeriveFrom({{"650", " 0", "$aCanzoni$y1800-1899$y1800-1899$yTo 1500"},
                        {"046", "  ", "$p1500"}}),
            "046  $o1800$p1899$2edtf");
}

}  // namespace
}  // namespace cantorel

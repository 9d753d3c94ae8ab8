#include "cli/heading_command.h"

#include <gtest/gtest.h>

#include <string>

namespace cantorel::cli {
namespace {

TEST(HeadingCommandTest, ReadsHeadingsAsPeopleWriteThem) {
  const struct {
    std::string heading;
    std::string field_text;
  } cases[] = {
      {"Flute music", "\037aFlute music"},
      {"  $a Flute music  ", "\037aFlute music"},
      {"Operas $v Vocal scores with piano", "\037aOperas\037vVocal scores with piano"},
      {"Suites$xHistory $z France$ySince 1900",
       "\037aSuites\037xHistory\037zFrance\037ySince 1900"},
      // Nothing may pass for a further field or its identifier.
      {"Flute\nmusic\t12", "\037aFlute music 12"},
      // As records hold it.
      {"Ba\u011Flama music", "\037aBag\u0306lama music"},
      {"Duets $", "\037aDuets"},
      {"Duets $v", "\037aDuets"},
      {"$", ""},
      {"", ""},
  };
  for (const auto& [heading, field_text] : cases) {
    EXPECT_EQ(HeadingFieldText(heading), field_text) << heading;
  }
}

}  // namespace
}  // namespace cantorel::cli

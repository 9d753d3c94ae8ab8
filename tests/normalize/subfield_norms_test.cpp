// The comparison forms kept with each subfield.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

class SubfieldNorms : public testing::Test {
 protected:
  void SetUp() override { record_.NewRecord("c", "m"); }

  void Add(std::string_view tag, std::string_view indicators, std::string text) {
    for (char& c : text) {
      if (c == '$') c = '\x1F';
    }
    record_.FldAdd(tag, indicators, text);
  }

  // The two forms of the first subfield with a code, joined by "|".
  std::string Norms(std::string_view code) {
    if (!record_.SfdFindFirst(code, "")) return "none";
    return record_.SfdNorm() + "|" + record_.SfdNormNaco();
  }

  Utf8MarcRecordClass record_;
};

TEST_F(SubfieldNorms, FirstSubfieldLosesItsNonfilingPart) {
  Add("245", "14", "$athe sea, the storm$bthe wind, the rain");
  EXPECT_EQ(Norms("a"), "SEA THE STORM|SEA, THE STORM");
  EXPECT_EQ(Norms("b"), "THE WIND THE RAIN|THE WIND THE RAIN");
  EXPECT_EQ(record_.FldInd(), "14") << "the count itself stays";
}

TEST_F(SubfieldNorms, LaterAKeepsItsNonfilingPart) {
  Add("245", "14", "$bX$athe sea");
  EXPECT_EQ(Norms("a"), "THE SEA|THE SEA");
}

TEST_F(SubfieldNorms, FirstAAndInsertedAGoByTheCommaRule) {
  Add("100", "1 ", "$aBach, J. S., Sir$d1685-");
  EXPECT_EQ(Norms("a"), "BACH J S SIR|BACH, J S SIR");
  Add("600", "10", "$tx$aBach, J. S., Sir");
  EXPECT_EQ(Norms("a"), "BACH J S SIR|BACH, J S SIR");
  Add("600", "10", "$tx$aPlato,@b,");
  EXPECT_EQ(Norms("a"), "PLATO B|PLATO, B") << "an at sign counts as in plain text";
}

TEST_F(SubfieldNorms, AtSignIsKeptInAllButTheFirstA) {
  Add("856", "4 ", "$aa@b$ua@b");
  EXPECT_EQ(Norms("a"), "A B|A B");
  EXPECT_EQ(Norms("u"), "A B|A@B");
}

TEST_F(SubfieldNorms, ControlFieldHasThemToo) {
  Add("001", "", "ocm-12");
  ASSERT_TRUE(record_.SfdMoveFirst(true));
  EXPECT_EQ(record_.SfdNorm(), "OCM 12");
}

TEST_F(SubfieldNorms, AreThoseOfTheTimeOfAdding) {
  Add("650", " 0", "$aDvo\u0301\u0159\u00E1k");
  record_.SfdMoveFirst(true);
  record_.NormalizationScheme("P");
  EXPECT_EQ(record_.SfdNorm(), "DVOK");
  record_.SfdChange("a", "Smetana");
  EXPECT_EQ(record_.SfdNorm(), "SMETANA");
}

}  // namespace
}  // namespace cantorel

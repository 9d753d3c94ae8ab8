// OCLC numbers: what is one, and its cleaned forms.

#include "record/oclc_number.h"

#include <gtest/gtest.h>

#include <string_view>

namespace cantorel {
namespace {

TEST(OclcNumber, IsKnownByItsBeginning) {
  for (std::string_view text :
       {"(OCoLC)1", "(ocolc)x", "(OCOLC)", "ocm1", "ocl7", "ocn", "oc1", "oc9x"}) {
    EXPECT_TRUE(IsOclcNumber(text)) << text;
  }
  for (std::string_view text :
       {"", "oc", "oc0", "ocx1", "OCM1", "on123", " ocm1", "(OCoLC", "(DLC)1"}) {
    EXPECT_FALSE(IsOclcNumber(text)) << text;
  }
}

TEST(OclcNumber, CleanedByPrefixAndZeroes) {
  const struct {
    std::string_view text;
    std::string_view bare;
    std::string_view zeroes;
    std::string_view prefix;
    std::string_view both;
  } cases[] = {
      {"ocm00012345", "(OCoLC)12345", "(OCoLC)00012345", "(OCoLC)ocm12345", "(OCoLC)ocm00012345"},
      {"(OCoLC)ocn123456789", "(OCoLC)123456789", "(OCoLC)123456789", "(OCoLC)ocn123456789",
       "(OCoLC)ocn123456789"},
      {"(ocolc) 7", "(OCoLC)7", "(OCoLC)00000007", "(OCoLC)7", "(OCoLC)00000007"},
      {"oc12 ", "(OCoLC)12", "(OCoLC)00000012", "(OCoLC)oc12", "(OCoLC)oc00000012"},
      {"ocm000", "(OCoLC)0", "(OCoLC)00000000", "(OCoLC)ocm0", "(OCoLC)ocm00000000"},
      {"ocm0012 (vol. 2)", "(OCoLC)12 (vol. 2)", "(OCoLC)00000012 (vol. 2)",
       "(OCoLC)ocm12 (vol. 2)", "(OCoLC)ocm00000012 (vol. 2)"},
      {"(OCoLC)none", "(OCoLC)none", "(OCoLC)none", "(OCoLC)none", "(OCoLC)none"},
      {"ocm", "ocm", "ocm", "ocm", "ocm"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CleanOclcNumber(c.text, {false, false}), c.bare);
    EXPECT_EQ(CleanOclcNumber(c.text, {false, true}), c.zeroes);
    EXPECT_EQ(CleanOclcNumber(c.text, {true, false}), c.prefix);
    EXPECT_EQ(CleanOclcNumber(c.text, {true, true}), c.both);
    EXPECT_EQ(CleanOclcNumber(c.bare, {false, false}), c.bare) << "cleaned twice";
  }
}

}  // namespace
}  // namespace cantorel

#include <gtest/gtest.h>

#include <string>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

TEST(XmlUnconditionText, UndoesReferences) {
  const Utf8MarcRecordClass record;
  const struct {
    const char* text;
    const char* result;
  } cases[] = {
      {"", ""},
      {"&lt;a&amp;b&gt; &quot;&apos;", "<a&b> \"'"},
      {"&amp;lt;", "&lt;"},  // one level only
      {"caf&eacute; &Eacute; &alefsym; &brvbar;", "caf\xC3\xA9 \xC3\x89 \xE2\x84\xB5 \xC2\xA6"},
      {"&#193;&#xC1;&#XC1;&#x266D;&#x1D11E;",
       "\xC3\x81\xC3\x81\xC3\x81\xE2\x99\xAD\xF0\x9D\x84\x9E"},
      {"&ang;", "8736"},
      {"a&nbsp;b\xC2\xA0\xC2\xA0"
       "c\xC2",
       "a b  c\xC2"},
      // What is no reference stays.
      {"R&B; rock & roll; AT&T", "R&B; rock & roll; AT&T"},
      {"&EACUTE;&;&#;&#x;&#12a;&#-1;& amp;", "&EACUTE;&;&#;&#x;&#12a;&#-1;& amp;"},
      {"&#8;&#xFFFE;&#xD800;&#x110000;&#99999999999;",
       "&#8;&#xFFFE;&#xD800;&#x110000;&#99999999999;"},
      // What would build fields is dropped.
      {"a&#31;&#0;b&#x1D;&#30;c&#28;", "abc&#28;"},
      {"&&amp;&", "&&&"},
      {"&amp", "&amp"},
  };
  for (const auto& c : cases) EXPECT_EQ(record.XmlUnconditionText(c.text), c.result) << c.text;
}

TEST(XmlUnconditionText, TakesTimeInProportionToTheText) {
  const Utf8MarcRecordClass record;
  const std::string ampersands(5'000'000, '&');
  EXPECT_EQ(record.XmlUnconditionText(ampersands), ampersands);
}

}  // namespace
}  // namespace cantorel

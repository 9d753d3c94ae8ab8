// Headings with a qualifier behind a comma.

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "genre/heading_lists.h"
#include "genre/heading_lists_comma_table.h"
#include "platform/profile_file.h"

namespace cantorel {
namespace {

constexpr std::string_view kHeadingsAlone = "List3";
constexpr std::string_view kLanguages = "LanguagesByName";
constexpr std::int32_t kLongestValue = 200;

const LanguageHeading* FindLanguageHeading(std::string_view heading) {
  const auto* row =
      std::lower_bound(std::begin(kLanguageHeadings), std::end(kLanguageHeadings), heading,
                       [](const LanguageHeading& r, std::string_view h) { return r.heading < h; });
  return row != std::end(kLanguageHeadings) && row->heading == heading ? row : nullptr;
}

}  // namespace

bool HeadingLists::TestComma(std::string_view before, std::string_view before_norm,
                             std::string_view after, std::string& key, std::string& value) {
  const std::string tail = Norm(after);
  bool found = false;
  if (tail == "ARRANGED" || tail == "SACRED" || tail == "UNACCOMPANIED") {
    found = TestQualifier(tail, before, key, value);
  }

  std::string codes;
  if (!FindIniValue(derivation_table_, kLanguages, TableKey(LowerCase(tail)), kLongestValue,
                    codes)) {
    return found;
  }
  if (AddLanguageHeading(before_norm)) found = true;
  if (found) context_.music.Private_655_TestLanguageCode(codes, tail, context_.record);
  return found;
}

// The heading without its qualifier: by the table, else by its wording.  What
// "sacred" qualifies is read by its wording too, but only a heading of the table
// counts as found and becomes sacred music, which is deliberate.
bool HeadingLists::TestQualifier(std::string_view qualifier, std::string_view before,
                                 std::string& key, std::string& value) {
  const bool arranged = qualifier == "ARRANGED";
  const bool sacred = qualifier == "SACRED";
  if (arranged) context_.AddGenre("Arrangements (Music)");
  key = TableKey(Norm(before));
  if (!FindIniValue(derivation_table_, kHeadingsAlone, key + "_1", kLongestValue, value)) {
    const bool known = TestHeading(before, arranged);
    if (!known || sacred) return false;
  }
  context_.music.Private_655_TestAndAdd(kHeadingsAlone, key, context_.record, context_.new_lines);
  if (sacred) context_.AddGenre("Sacred music");
  return true;
}

bool HeadingLists::AddLanguageHeading(std::string_view heading) {
  const LanguageHeading* row = FindLanguageHeading(heading);
  if (row == nullptr) return false;
  const bool marc8 = context_.record.CharacterSetOut() != "U" && !row->genre_marc8.empty();
  context_.AddGenre(marc8 ? row->genre_marc8 : row->genre);
  AddPeople("385", row->audience);
  AddPeople("386", row->creator);
  return true;
}

void HeadingLists::AddPeople(std::string_view tag, std::string_view people) {
  if (people.empty()) return;
  context_.music.Private_655_AddField(context_.record, tag, "  ", "a", people, "lcdgt",
                                      context_.new_lines);
}

}  // namespace cantorel

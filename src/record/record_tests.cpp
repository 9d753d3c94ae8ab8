// Tests of a whole record for subfields that are empty or stand where none
// should.  They read the table or the image and move no cursor.

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/record_image.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::size_t kShortestTagList = 3;
constexpr std::size_t kIndicators = 2;

void AddLine(std::string_view tag, std::string_view fault, std::string& message) {
  if (!message.empty()) message += "\r\n";
  message.append(tag).append(fault);
}

// The code behind the delimiter at `place`; a blank where there is none.
char CodeBehind(std::string_view text, std::size_t place) {
  const std::string_view code = From(text, place + 1).substr(0, 1);
  return code.empty() || code[0] == kDelimiter ? ' ' : code[0];
}

bool HasBlankCode(std::string_view text) {
  for (std::size_t i = text.find(kDelimiter); i != std::string_view::npos;
       i = text.find(kDelimiter, i + 1)) {
    if (CodeBehind(text, i) == ' ') return true;
  }
  return false;
}

// The code of the first subfield that is not one of `may_precede`; '\0' without
// one.  A text that does not begin with a delimiter counts as $a, as when it is
// loaded.
char LeadingCode(std::string_view text, std::string_view may_precede) {
  if (text.empty()) return '\0';
  if (text[0] != kDelimiter) return 'a';
  for (std::size_t i = 0; i != std::string_view::npos; i = text.find(kDelimiter, i + 1)) {
    const char code = CodeBehind(text, i);
    if (may_precede.find(code) == std::string_view::npos) return code;
  }
  return '\0';
}

// What a field is to begin with, '\0' for a field that is not tested.
struct LeadingRule {
  char code = '\0';
  std::string_view may_precede;
};

struct TagRange {
  std::string_view first;
  std::string_view last;
  std::string_view may_precede;
};

// Headings and titles of bibliographic records; all begin with $a.
constexpr TagRange kTestedTags[] = {
    {"100", "130", "68"}, {"222", "222", "68"},  {"240", "240", "68"},
    {"245", "245", "68"}, {"400", "440", "68"},  {"600", "651", "68"},
    {"655", "655", "68"}, {"700", "740", "68i"}, {"800", "830", "68"},
};

// The subdivisions among the headings of authority records.
struct SubdivisionCode {
  std::string_view tag_ending;
  char code;
};
constexpr SubdivisionCode kSubdivisions[] = {{"80", 'x'}, {"81", 'z'}, {"82", 'y'}, {"85", 'v'}};

LeadingRule AuthorityRule(std::string_view tag) {
  if (tag[0] != '1' && tag[0] != '4' && tag[0] != '5') return {};
  const auto* found = std::find_if(std::begin(kSubdivisions), std::end(kSubdivisions),
                                   [&](const auto& s) { return s.tag_ending == tag.substr(1); });
  return {found == std::end(kSubdivisions) ? 'a' : found->code, "wi68"};
}

LeadingRule BibliographicRule(std::string_view tag) {
  const auto* found =
      std::find_if(std::begin(kTestedTags), std::end(kTestedTags),
                   [&](const TagRange& r) { return r.first <= tag && tag <= r.last; });
  return found == std::end(kTestedTags) ? LeadingRule() : LeadingRule{'a', found->may_precede};
}

}  // namespace

std::string_view Utf8MarcRecordClass::TagsToTestForEmptySubfields() const {
  if (format_code_ == 'A') return empty_test_auth_;
  return format_code_ == 'H' ? empty_test_hold_ : empty_test_bib_;
}

bool Utf8MarcRecordClass::TestRecordForEmptySubfields(std::string& message) const {
  message.clear();
  const std::string_view tags = TagsToTestForEmptySubfields();
  const bool all = tags.size() < kShortestTagList;
  for (std::int16_t f = first_field_; f != kNoRow; f = table_.Field(f).next) {
    const FieldRecord& field = table_.Field(f);
    if (field.deleted || field.is_control || !(all || TagCompare(tags, field.Tag()))) continue;
    for (std::int16_t s = field.first_subfield; s != kNoRow;) {
      const SubfieldRecord& subfield = table_.Subfield(field, s);
      s = subfield.next;
      if (subfield.deleted || !subfield.text.empty()) continue;
      AddLine(field.Tag(), std::string(" has empty subfield $") + subfield.code, message);
    }
  }
  return !message.empty();
}

// Hands tag and text of each data field in the image loaded to `test`.
template <typename Test>
bool Utf8MarcRecordClass::TestImage(Test test, std::string& message) const {
  message.clear();
  if (image_.empty()) return false;
  for (std::size_t i = 0; i + kDirectoryEntryLength <= directory_.size();
       i += kDirectoryEntryLength) {
    const DirectoryEntry entry = ReadDirectoryEntry(directory_, i, data_);
    if (entry.tag.substr(0, 2) == "00" || entry.text.size() < kIndicators) continue;
    test(entry.tag, entry.text.substr(kIndicators));
  }
  return !message.empty();
}

bool Utf8MarcRecordClass::TestRecordForLeadingSubfield(std::string& message) const {
  message.clear();
  static constexpr std::string_view kTestedFormats = "ABDFMPSU";
  if (kTestedFormats.find(format_code_) == std::string_view::npos) return false;
  const auto test = [&](std::string_view tag, std::string_view text) {
    const LeadingRule rule = format_code_ == 'A' ? AuthorityRule(tag) : BibliographicRule(tag);
    if (rule.code == '\0') return;
    const char code = LeadingCode(text, rule.may_precede);
    if (code == '\0' || code == rule.code) return;
    AddLine(tag, std::string(" began with unexpected subfield $") + code, message);
  };
  return TestImage(test, message);
}

bool Utf8MarcRecordClass::TestRecordForBlankSubfieldCodes(std::string& message) const {
  const auto test = [&](std::string_view tag, std::string_view text) {
    if (HasBlankCode(text)) AddLine(tag, " has 'blank' subfield", message);
  };
  return TestImage(test, message);
}

}  // namespace cantorel

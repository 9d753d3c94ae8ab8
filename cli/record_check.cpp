#include "cli/record_check.h"

#include <algorithm>
#include <cctype>

#include "charset/marc_control.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "record/record_image.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kScheme = 9;  // position of the character coding scheme in the leader
constexpr std::size_t kIndicators = 2;

// A field by itself needs a companion: a record with less is too short to be one.
constexpr std::string_view kCompanion = "companion of\x1E";

bool IsControl(const FieldEntry& entry) {
  return entry.Tag().substr(0, 2) == "00";
}

bool IsDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsTag(std::string_view tag) {
  return std::all_of(tag.begin(), tag.end(),
                     [](char c) { return Octet(c) < 0x80 && std::isalnum(c) != 0; });
}

// Where the first octets stand that are no UTF-8; npos when there are none.
std::size_t FindIllFormed(std::string_view text) {
  if (IsAscii(text)) return text.npos;
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8CharAt(text, i);
    if (Utf8CodePoint(character) == kNoCodePoint) return i;
    i += character.size();
  }
  return text.npos;
}

void AppendEntry(std::string_view tag, std::size_t length, std::size_t start, std::string& out) {
  char digits[9];
  WriteDigits(length, 4, digits);
  WriteDigits(start, 5, digits + 4);
  out.append(tag).append(digits, sizeof digits);
}

// The image of a record with one field of another, and the leader of that.
void MakeFieldImage(std::string_view leader, const FieldEntry& entry, std::string& image) {
  image = leader;
  AppendEntry("001", kCompanion.size(), 0, image);
  AppendEntry(entry.Tag(), entry.text.size() + 1, kCompanion.size(), image);
  image += kEndOfField;
  const std::size_t base = image.size();
  image.append(kCompanion).append(entry.text);
  image += kEndOfField;
  image += kEndOfRecord;
  WriteDigits(image.size(), 5, image.data());
  WriteDigits(base, 5, image.data() + 12);
}

}  // namespace

const std::vector<RecordFinding>& RecordCheck::Check(std::string_view image) {
  findings_.clear();
  layout_ = {};
  if (!record_.IsMarc(image)) {
    findings_.push_back({record_.IsMarcErrorText()});
    return findings_;
  }
  base_ = static_cast<std::size_t>(BaseAddress(image));
  layout_.Read(image, record_.RemoveDuplicative035Fields());
  CheckLeader(image);
  for (const FieldEntry& entry : layout_.Entries()) {
    CheckStructure(entry);
    if (image[kScheme] == 'a') CheckCharacters(entry);
    if (!IsControl(entry)) CheckForEmptySubfields(entry);
  }
  RunRecordTests(image);
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const auto& a, const auto& b) { return a.octet < b.octet; });
  return findings_;
}

std::string_view RecordCheck::ControlNumber() const {
  for (const FieldEntry& entry : layout_.Entries()) {
    if (entry.Tag() == "001") return entry.text;
  }
  return {};
}

void RecordCheck::CheckLeader(std::string_view image) {
  const std::string told(image.substr(0, 5));
  if (std::stoul(told) != image.size()) {
    findings_.push_back({"Leader tells a length of " + told + ", and the record has " +
                         std::to_string(image.size()) + " octets"});
  }
  if (layout_.Directory().size() % kDirectoryEntryLength != 0) {
    findings_.push_back({"Directory ends in the middle of an entry", base_ - 1});
  }
  const char scheme = image[kScheme];
  if (scheme != 'a' && scheme != ' ') {
    findings_.push_back({"Leader position 09 is neither blank nor a", kScheme});
  } else if (scheme == ' ' && !IsAscii(layout_.Data()) &&
             FindIllFormed(layout_.Data()) == std::string_view::npos) {
    findings_.push_back({"Leader position 09 tells MARC-8, and the record is in UTF-8", kScheme});
  }
  if (ControlNumber().empty()) findings_.push_back({"There is no control number, 001"});
}

void RecordCheck::CheckStructure(const FieldEntry& entry) {
  const std::string_view data = layout_.Data();
  if (!IsTag(entry.Tag())) Add(entry, "is no tag");
  if (!IsDigits(entry.whole.substr(3))) {
    Add(entry, "has a length or a start that is no number");
    return;
  }
  if (entry.overruns) {
    Add(entry, "ends behind the record");
  } else if (entry.length > 0 && data[entry.start + entry.length - 1] != kEndOfField) {
    Add(entry, "does not end with an end-of-field character");
  }
  const std::size_t inside = entry.text.find(kEndOfField);
  if (inside != std::string_view::npos) {
    Add(entry, "has an end-of-field character inside", inside);
  }
  if (entry.text.empty()) {
    Add(entry, "has nothing in it");
  } else if (!IsControl(entry) && entry.text.find(kDelimiter) != kIndicators) {
    Add(entry, "does not begin with two indicators and a subfield");
  }
}

void RecordCheck::CheckCharacters(const FieldEntry& entry) {
  const std::size_t place = FindIllFormed(entry.text);
  if (place != std::string_view::npos) Add(entry, "has octets that are no UTF-8", place);
}

// Loading drops an empty subfield behind the first one, and so the test of the
// record class for them does not see it: the image is looked at instead.
void RecordCheck::CheckForEmptySubfields(const FieldEntry& entry) {
  const std::string_view text = entry.text;
  for (std::size_t i = text.find(kDelimiter); i != text.npos; i = text.find(kDelimiter, i + 1)) {
    const std::string_view rest = text.substr(i + 1);
    const bool empty = rest.size() == 1 || (rest.size() > 1 && rest[1] == kDelimiter);
    if (!empty || rest[0] == ' ' || rest[0] == kDelimiter) continue;
    Add(entry, std::string("has empty subfield $") + rest[0], i);
  }
}

// The tests tell tags.  Which of the fields is meant is found by testing each by
// itself, in the few records where there is something to find.
void RecordCheck::RunRecordTests(std::string_view image) {
  record_.MarcRecordIn(image);
  const std::string_view leader = image.substr(0, kLeaderLength);
  using Tested = const Utf8MarcRecordClass&;
  LocateFindings([](Tested r, std::string& m) { return r.TestRecordForLeadingSubfield(m); },
                 leader);
  LocateFindings([](Tested r, std::string& m) { return r.TestRecordForBlankSubfieldCodes(m); },
                 leader);
}

template <typename Test>
void RecordCheck::LocateFindings(const Test& test, std::string_view leader) {
  std::string message;
  if (!test(record_, message)) return;
  for (const FieldEntry& entry : layout_.Entries()) {
    if (entry.text.empty()) continue;
    MakeFieldImage(leader, entry, field_image_);
    field_record_.MarcRecordIn(field_image_);
    if (!test(field_record_, message)) continue;
    for (std::size_t start = 0, end = 0; end != message.npos; start = end + 2) {
      end = message.find("\r\n", start);
      findings_.push_back({message.substr(start, end - start), OctetOf(entry), entry.row});
    }
  }
}

void RecordCheck::Add(const FieldEntry& entry, std::string_view fault, std::size_t place) {
  std::string text(entry.Tag());
  text.append(" ").append(fault);
  findings_.push_back({std::move(text), OctetOf(entry) + place, entry.row});
}

}  // namespace cantorel::cli

#include "genre/configuration_check.h"

#include <algorithm>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "genre/derivation_table_build.h"
#include "medium/code_point_escapes.h"
#include "medium/configuration_files.h"
#include "medium/medium_vocabulary.h"
#include "platform/profile_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// The tags of fields that the table gives.
constexpr std::string_view kTags[] = {"655", "385", "386"};
// The subfields of a 382 that name a performer.
constexpr std::string_view kTermCodes = "abdp";

// How much of a value is read, by its section.
std::size_t LongestValue(std::string_view section) {
  return section == "MUSICALSTYLE" ? 1000 : 200;
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), AsciiUpper);
  return upper;
}

std::string_view TakeUpTo(char mark, std::string_view& text) {
  const std::string_view head = text.substr(0, text.find(mark));
  text = From(text, head.size() + 1);
  return head;
}

}  // namespace

void ConfigurationCheck::BeginFile(std::string_view name) {
  file_ = name;
  line_number_ = 0;
  section_.clear();
  keys_.clear();
}

// True for a setting.
bool ConfigurationCheck::BeginLine(std::string_view line) {
  ++line_number_;
  const ProfileLine read = ReadProfileLine(line);
  if (read.kind == ProfileLine::Kind::kSection) section_ = UpperCase(read.name);
  if (read.kind != ProfileLine::Kind::kSetting) return false;
  key_ = read.name;
  value_ = read.value;
  if (!keys_.insert(section_ + "=" + UpperCase(key_)).second) {
    Find("repeats a key; the first one counts");
  }
  if (value_.empty()) Find("has no value");
  return true;
}

void ConfigurationCheck::Find(const std::string& what) {
  findings_.push_back(std::string(file_) + ":" + std::to_string(line_number_) + ": " + key_ + " " +
                      what);
}

void ConfigurationCheck::ReadVocabulary(std::string_view text) {
  BeginFile(kVocabularyFileName);
  text = SkipUtf8Signature(text);
  std::unordered_set<std::string> instrument_terms;
  while (!text.empty()) {
    if (!BeginLine(TakeProfileLine(text))) continue;
    std::string term(value_.substr(0, value_.find('\t')));
    if (section_ == "INSTRUMENTS") instrument_terms.insert(term);
    // An ensemble is looked up among the instruments first.
    if (section_ == "ENSEMBLES" && !instrument_terms.contains(term)) {
      Find("has a term that no instrument has: " + term);
    }
    preferred_terms_.insert(std::move(term));
  }
}

void ConfigurationCheck::ReadTable(std::string_view text) {
  BeginFile(kDerivationTableFileName);
  text = SkipUtf8Signature(text);
  bool signed_table = false;
  while (!text.empty()) {
    if (!BeginLine(TakeProfileLine(text))) continue;
    if (value_.size() > LongestValue(section_)) {
      Find("is longer than " + std::to_string(LongestValue(section_)) + " octets and will be cut");
    }
    if (section_ == "FILESIGNATURE" && UpperCase(key_) == "FILEPRESENT") signed_table = true;
    if (section_ == "LIST12") CheckMedium(value_);
    if (section_ == "LIST2" || section_ == "LIST3" || section_ == "LIST5") CheckField(value_);
    if (section_ == "LIST6") {
      const std::size_t context_end = value_.find("//");
      CheckField(context_end == std::string_view::npos ? value_ : value_.substr(context_end + 2));
    }
  }
  if (!signed_table) {
    findings_.push_back(std::string(file_) + ": is not there, or has no [FileSignature]");
  }
}

void ConfigurationCheck::CheckTerm(std::string_view term) {
  if (preferred_terms_.contains(DecodeCodePointEscapes(term))) return;
  Find("has a term that the vocabulary does not prefer: " + std::string(term));
}

// A line of List 12 is a field 382 behind its first delimiter and code.
void ConfigurationCheck::CheckMedium(std::string_view field) {
  CheckTerm(TakeUpTo(kDelimiter, field));
  while (!field.empty()) {
    const std::string_view subfield = TakeUpTo(kDelimiter, field);
    if (subfield.empty() || kTermCodes.find(subfield[0]) == std::string_view::npos) continue;
    CheckTerm(subfield.substr(1));
  }
}

void ConfigurationCheck::CheckField(std::string_view line) {
  const std::string tag(TakeUpTo('\t', line).substr(0, 3));
  if (std::find(std::begin(kTags), std::end(kTags), tag) == std::end(kTags)) {
    Find("has the unknown tag " + tag);
  }
  TakeUpTo('\t', line);
  if (line.empty()) Find("has no source");
}

void CheckWorkbook(std::string_view folder, const Utf8MarcRecordClass& record,
                   std::string_view table, std::vector<std::string>& findings) {
  const std::string name(kDerivationWorkbookName);
  WorkbookError error = WorkbookError::kNone;
  const auto workbook = OpenWorkbook(std::string(folder) + name, error);
  if (error == WorkbookError::kMissing) return;
  std::string text;
  DerivationBuild build;
  if (workbook) error = MakeDerivationTable(*workbook, record, text, build);
  for (const std::string_view sheet : build.missing_sheets) {
    findings.push_back(name + ": has no sheet " + std::string(sheet));
  }
  for (const LeftOutRow& row : build.left_out) findings.push_back(name + ": " + Describe(row));
  if (error != WorkbookError::kNone) {
    findings.push_back(name + ": " + std::string(Describe(error)));
  } else if (text != table) {
    findings.push_back(name + ": gives another table; run cantorel config build");
  }
}

}  // namespace cantorel

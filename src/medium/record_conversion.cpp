// The 382 fields of one record.

#include <cstddef>

#include "medium/field_382.h"
#include "medium/finished_382.h"
#include "medium/heading_grammar.h"
#include "medium/music_650_to_382_class.h"
#include "platform/event_pump.h"

namespace cantorel {

namespace {

constexpr std::string_view kNoRecordId = "NONE";
constexpr std::string_view kTitleTags = "130 240 700 710 711";

enum ConversionStatus : std::int32_t {
  kNoVocabulary = -2,
  kNoHeading = 0,
  kNoneProductive = 1,
  kSomeProductive = 2,
  kAllProductive = 3,
};

enum OutcomeBit : std::int32_t {
  kFieldsAdded = 1,
  kAllExistingDealtWith = 2,
  kSomeExistingLeft = 4,
};

bool IsMusic(std::string_view leader_type) {
  return leader_type == "c" || leader_type == "d" || leader_type == "j";
}

bool IsSubjectHeading(std::string_view tag, std::string_view indicators) {
  return tag >= "600" && tag <= "651" && indicators.size() > 1 && indicators[1] == '0';
}

// A plain field keeps the indicators that it has.
void ReplaceField(Utf8MarcRecordClass& record, std::int16_t pointer, const MarkedForm& field) {
  record.FldPointer(pointer);
  if (field.has_prefix) record.FldInd(field.Indicators());
  record.FldText(field.text);
}

void AppendLine(std::string& lines, std::string_view line) {
  if (!lines.empty()) lines += '\n';
  lines += line;
}

}  // namespace

void Music650To382Class::Convert650To382_Text(std::string_view /*leader_type*/,
                                              std::string_view field_text,
                                              Utf8MarcRecordClass& record,
                                              std::string_view record_id, std::string& trailing,
                                              std::int32_t& result) {
  vocabulary_.CurrentHeading(field_text);
  MediumContext context{record, vocabulary_, report_, field_text, record_id};
  const HeadingSettings settings{derivation_table_, subfield_2_};
  result = ParseHeading(context, settings, field_text, buffer_, trailing);
  heading_was_of_interest_ = context.of_interest;
}

void Music650To382Class::Convert650To382_Marc(Utf8MarcRecordClass& record, std::int32_t& status,
                                              bool add_to_record, std::string& added_fields,
                                              std::int32_t& outcome) {
  report_.CloseInstrumentList();
  added_fields.clear();
  outcome = 0;
  const std::string leader_type = record.GetLeaderValue(6, 1);
  if (!IsMusic(leader_type)) return;

  existing_382_fields_.RemoveAll();
  new_382_fields_.RemoveAll();
  NoteRecordId(record);

  HeadingCounts counts;
  status = ReadHeadings(record, leader_type, counts);
  if (status != kSomeProductive && status != kAllProductive) return;
  RemoveLesserResults(record, existing_382_fields_, new_382_fields_);
  outcome = OutcomeOf(DeliverFields(record, add_to_record, added_fields));
}

void Music650To382Class::NoteRecordId(Utf8MarcRecordClass& record) {
  const bool has_001 = record.FldFindFirst("001", {});
  session_.returned_001_text = has_001 ? record.FldText() : std::string();
  record_id_ = has_001 ? session_.returned_001_text : std::string{kNoRecordId};
}

// The subject headings, and the titles when those gave nothing.
std::int32_t Music650To382Class::ReadHeadings(Utf8MarcRecordClass& record,
                                              std::string_view leader_type, HeadingCounts& counts) {
  if (!ReadSubjectHeadings(record, leader_type, counts)) return kNoVocabulary;
  if (!counts.has_382_information && !ReadTitleMedia(record, leader_type, counts)) {
    return kNoVocabulary;
  }
  // Titles alone give nothing, whatever was read from them.
  if (counts.headings == 0) return kNoHeading;
  if (counts.productive == 0) return kNoneProductive;
  return counts.productive == counts.headings ? kAllProductive : kSomeProductive;
}

// Notes the existing 382 fields and converts the headings.  False when there is
// no vocabulary.
bool Music650To382Class::ReadSubjectHeadings(Utf8MarcRecordClass& record,
                                             std::string_view leader_type, HeadingCounts& counts) {
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    YieldToHost();
    const std::string_view tag = record.FldTagView();
    if (tag == "382") {
      NoteExisting382(record);
      counts.has_382_information = true;
      continue;
    }
    if (!IsSubjectHeading(tag, record.FldIndView())) continue;

    ++counts.headings;
    heading_text_.clear();
    record.AppendFldText(heading_text_);
    std::int32_t result = 0;
    Convert650To382_Text(leader_type, heading_text_, record, record_id_, trailing_, result);
    if (result == kNoInstrumentVocabulary) return false;
    if (result == kHeadingGaveField) {
      KeepFinishedField(record);
      ++counts.productive;
      counts.has_382_information = true;
    } else {
      report_.AddNonProductive382(record.FldTagView(), heading_text_);
    }
  }
  return true;
}

// Converts the $m of titles, which are not reported when they give nothing.
bool Music650To382Class::ReadTitleMedia(Utf8MarcRecordClass& record, std::string_view leader_type,
                                        HeadingCounts& counts) {
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    if (kTitleTags.find(record.FldTagView()) == std::string_view::npos) continue;
    heading_text_.clear();
    record.AppendFldText(heading_text_);
    if (!HasSubfield(heading_text_, 'm')) continue;

    std::int32_t result = 0;
    ConvertTitleMedium(leader_type, heading_text_, record, record_id_, trailing_, result);
    if (result == kNoInstrumentVocabulary) return false;
    if (result != kHeadingGaveField) continue;
    KeepFinishedField(record);
    ++counts.productive;
  }
  return true;
}

void Music650To382Class::NoteExisting382(Utf8MarcRecordClass& record) {
  heading_text_.clear();
  record.AppendFldText(heading_text_);
  Comparison382Form(record, heading_text_, kWholeMediumCodes, comparison_form_);
  existing_382_fields_.Add(comparison_form_, record.FldPointer());
}

void Music650To382Class::KeepFinishedField(Utf8MarcRecordClass& record) {
  buffer_ += trailing_;
  CorrectFinished382(record, vocabulary_, session_.ensembles_take_e, buffer_);
  Comparison382Form(record, buffer_, kWholeMediumCodes, comparison_form_);
  new_382_fields_.Add(comparison_form_, buffer_);
}

// Writes new fields over the existing ones that they equal, and adds the others.
// True when a field was added.
bool Music650To382Class::DeliverFields(Utf8MarcRecordClass& record, bool add_to_record,
                                       std::string& added_fields) {
  bool added = false;
  for (const auto& [key, field] : new_382_fields_) {
    if (field.empty()) continue;
    const MarkedForm marked = ReadMarkedForm(field);
    if (std::int16_t* pointer = existing_382_fields_.Find(key)) {
      // A field in row 0 is neither rewritten nor added, which is deliberate: a
      // record with nothing ahead of its 382 is left alone.
      if (*pointer <= 0) continue;
      ReplaceField(record, *pointer, marked);
      *pointer = kDealtWith;
      continue;
    }
    if (add_to_record) record.FldAdd("382", marked.Indicators(), marked.text);
    AppendLine(added_fields, field);
    added = true;
  }
  return added;
}

std::int32_t Music650To382Class::OutcomeOf(bool added) const {
  // Without any existing field, added fields count as if some had been left:
  // this is deliberate.
  if (existing_382_fields_.Count() == 0) return added ? kFieldsAdded | kSomeExistingLeft : 0;
  std::int32_t outcome = added ? kFieldsAdded : 0;
  for (const auto& [key, pointer] : existing_382_fields_) {
    if (pointer > kDealtWith) return outcome | kSomeExistingLeft;
  }
  return outcome | kAllExistingDealtWith;
}

}  // namespace cantorel

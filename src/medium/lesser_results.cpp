#include "medium/lesser_results.h"

#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "medium/finished_382.h"

namespace cantorel {

namespace {

// What a new field says, apart from its counts.
struct NewMedium {
  std::string form;
  bool has_counts = false;
};

// The existing fields that say the same, apart from their counts.
struct ExistingMedium {
  bool any_has_counts = false;
  std::vector<std::size_t> without_counts;  // indexes of the map of existing fields
};

using ExistingMedia = std::unordered_map<std::string, ExistingMedium>;

std::vector<NewMedium> NewMedia(const Utf8MarcRecordClass& record, const New382Map& new_fields) {
  std::vector<NewMedium> media(new_fields.Count());
  for (std::size_t i = 0; i < media.size(); ++i) {
    const std::string& field = new_fields.At(i).second;
    Comparison382Form(record, field, kMediumWithoutCountCodes, media[i].form);
    media[i].has_counts = HasCountSubfield(field);
  }
  return media;
}

ExistingMedia MediaOfRecord(Utf8MarcRecordClass& record, const Existing382Map& existing_fields) {
  ExistingMedia media;
  std::string text;
  std::string form;
  for (std::size_t i = 0; i < existing_fields.Count(); ++i) {
    record.FldPointer(existing_fields.At(i).second);
    text.clear();
    record.AppendFldText(text);
    Comparison382Form(record, text, kMediumWithoutCountCodes, form);
    ExistingMedium& medium = media[form];
    if (HasCountSubfield(text)) {
      medium.any_has_counts = true;
    } else {
      medium.without_counts.push_back(i);
    }
  }
  return media;
}

void DiscardAgainstNewFields(const std::vector<NewMedium>& media, New382Map& new_fields) {
  std::unordered_set<std::string_view> forms_with_counts;
  for (const NewMedium& medium : media) {
    if (medium.has_counts) forms_with_counts.insert(medium.form);
  }
  for (std::size_t i = 0; i < media.size(); ++i) {
    if (!media[i].has_counts && forms_with_counts.count(media[i].form) != 0) {
      new_fields.At(i).second.clear();
    }
  }
}

// Hands the existing fields without counts over to a new field with counts.
// Only the first of them can be replaced; the others stay in the record and
// count as dealt with.  A field handed over earlier goes on to the later new
// field, and the earlier one is then neither added nor replaces anything: both
// are deliberate.
void HandOver(const std::string& new_key, ExistingMedium& medium, Existing382Map& existing_fields) {
  std::vector<std::size_t> handed_over;
  for (std::size_t i : medium.without_counts) {
    const std::int16_t pointer = existing_fields.At(i).second;
    existing_fields.At(i).second = kDealtWith;
    if (existing_fields.Add(new_key, pointer)) handed_over.push_back(existing_fields.Count() - 1);
  }
  medium.without_counts = std::move(handed_over);
}

void SettleAgainstRecord(const std::vector<NewMedium>& media, ExistingMedia& existing_media,
                         Existing382Map& existing_fields, New382Map& new_fields) {
  // The last new field gets no turn, which is deliberate.
  for (std::size_t i = 0; i + 1 < media.size(); ++i) {
    auto& [key, field] = new_fields.At(i);
    if (field.empty()) continue;
    const auto found = existing_media.find(media[i].form);
    if (found == existing_media.end()) continue;
    if (media[i].has_counts) {
      HandOver(key, found->second, existing_fields);
    } else if (found->second.any_has_counts) {
      field.clear();
    }
  }
}

}  // namespace

void RemoveLesserResults(Utf8MarcRecordClass& record, Existing382Map& existing_fields,
                         New382Map& new_fields) {
  if (new_fields.Count() < 2) return;
  const std::vector<NewMedium> media = NewMedia(record, new_fields);
  DiscardAgainstNewFields(media, new_fields);
  if (existing_fields.Count() == 0) return;
  ExistingMedia existing_media = MediaOfRecord(record, existing_fields);
  SettleAgainstRecord(media, existing_media, existing_fields, new_fields);
}

}  // namespace cantorel

// One derived field: new, or the same as one that the record has.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "medium/music_650_to_382_class.h"

namespace cantorel {
namespace {

struct DerivedField {
  std::string_view tag;
  std::string_view indicators;
  std::string_view code;
  std::string_view text;
  std::string_view source;
  std::string_view subfield_3;  // delimiter, "3", text; or empty
};

// Audience and creators are told apart by their source as well.
bool HasSourceInKey(std::string_view tag) {
  return tag == "385" || tag == "386";
}

bool EndsInPoint(std::string_view text) {
  return text.ends_with(')') || text.ends_with('.') || text.ends_with('-');
}

// Sets the first subfield of a code; adds one unless `only_change`.
void SetSubfield(Utf8MarcRecordClass& record, std::string_view code, std::string_view text,
                 bool only_change) {
  if (!record.SfdFindFirst(code, {})) {
    if (!only_change) record.SfdAdd(code, text);
  } else if (record.SfdTextView() != text) {
    record.SfdText(text);
  }
}

// Gives the record's current field what was derived.
void Rewrite(Utf8MarcRecordClass& record, const DerivedField& field) {
  if (record.FldIndView() != field.indicators) record.FldInd(field.indicators);
  SetSubfield(record, "a", field.text, true);
  if (!field.source.empty()) SetSubfield(record, "2", field.source, false);
  if (!field.subfield_3.empty()) SetSubfield(record, "3", field.subfield_3.substr(2), false);
}

// Rewrites the existing field that `place` tells of (line number and row in one)
// and refreshes its line.
void RewriteExisting(Utf8MarcRecordClass& record, const DerivedField& field, std::int32_t& place,
                     std::vector<std::string>& lines) {
  const std::int32_t number = (place + 500) / 1000;
  const std::int32_t row = place - number * 1000;
  place = -place;
  // Deliberate: a row of 500 or more reads as one below 0.  Such a field counts
  // as existing and stays as it is.
  if (row < 0) return;

  const std::int16_t heading_row = record.FldPointer();
  const std::int16_t heading_subfield = record.SfdPointer();
  record.FldPointer(static_cast<std::int16_t>(row));
  Rewrite(record, field);
  std::string& line = lines[static_cast<std::size_t>(number) - 1];
  line = record.FldTag() + record.FldInd();
  record.AppendFldText(line);
  record.FldPointer(heading_row);
  record.SfdPointer(heading_subfield);
}

void AppendNewLine(const DerivedField& field, std::string& new_lines) {
  if (!new_lines.empty()) new_lines += '\n';
  new_lines += field.tag;
  new_lines += field.indicators;
  new_lines += kDelimiter;
  new_lines += field.code;
  new_lines += field.text;
  if (!field.source.empty()) {
    new_lines += kDelimiter;
    new_lines += '2';
    new_lines += field.source;
  }
  if (field.tag != "046") new_lines += field.subfield_3;
}

}  // namespace

void Music650To382Class::Private_655_AddField(Utf8MarcRecordClass& record, std::string_view tag,
                                              std::string_view indicators, std::string_view code,
                                              std::string_view text, std::string_view source,
                                              std::string& new_lines) {
  genre_.productive = true;
  std::string punctuated(Trim(text));

  std::string key(tag);
  key += code;
  record.AppendNormString(punctuated, true, key);
  std::string key_without_source;
  if (HasSourceInKey(tag)) {
    key += '2';
    if (!source.empty()) key_without_source = key;
    record.AppendNormString(source, true, key);
  } else if (terminal_punctuation_.find(tag) != std::string::npos && !EndsInPoint(punctuated)) {
    punctuated += '.';
  }
  key += genre_.subfield_3_part;

  const DerivedField field{tag, indicators, code, punctuated, source, genre_.subfield_3_part};
  if (std::int32_t* place = genre_.existing_field_keys.Find(key)) {
    if (*place > 0 && tag != "046") {
      RewriteExisting(record, field, *place, genre_.existing_field_lines);
    }
    return;
  }
  if (genre_.existing_keys_without_source.Exists(key_without_source)) return;
  genre_.existing_field_keys.Add(key, 0);
  AppendNewLine(field, new_lines);
}

}  // namespace cantorel

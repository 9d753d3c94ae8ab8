// The derivation table as the conversion reads it.
//
//   [List3]
//   STRING_QUARTETS_1=655#7<tab>Chamber music<tab>lcgft
//   STRING_QUARTETS_2=655#7<tab>Art music<tab>lcgft

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "genre/derivation_table_build.h"
#include "genre/derivation_text.h"
#include "medium/music_650_to_382_class.h"
#include "platform/profile_file.h"

namespace cantorel {
namespace {

constexpr std::int32_t kLongestLine = 200;

std::string_view TakeColumn(std::string_view& line) {
  const std::size_t tab = line.find('\t');
  const std::string_view column = line.substr(0, tab);
  line = tab == std::string_view::npos ? std::string_view() : line.substr(tab + 1);
  return column;
}

// The tag and indicators behind the context of a List 6 line; the context itself
// demands nothing.
std::string_view BehindContext(std::string_view column) {
  const std::size_t end = column.find("//");
  return end == std::string_view::npos ? column : column.substr(end + 2);
}

char Indicator(char written) {
  return written == '#' ? ' ' : written;
}

}  // namespace

void Music650To382Class::Private_655_TestAndAdd(std::string_view list, std::string_view key,
                                                Utf8MarcRecordClass& record,
                                                std::string& new_lines) {
  constexpr std::size_t kTagAndIndicators = 5;
  std::string numbered(key);
  for (char& c : numbered) {
    if (c == ' ') c = '_';
  }
  numbered += '_';
  const std::size_t key_length = numbered.size();
  std::string line;
  for (std::int32_t number = 1;; ++number) {
    numbered.resize(key_length);
    numbered += std::to_string(number);
    if (!FindIniValue(derivation_table_, list, numbered, kLongestLine, line)) return;
    line = DecodeTableEscapes(line);
    std::string_view rest = line;
    std::string_view field = TakeColumn(rest);
    if (list == "List6") field = BehindContext(field);
    if (field.size() < kTagAndIndicators) continue;  // no line that a build wrote
    const char indicators[] = {Indicator(field[3]), Indicator(field[4])};
    const std::string term = record.XmlUnconditionText(TakeColumn(rest), true);
    Private_655_AddField(record, field.substr(0, 3), std::string_view(indicators, 2), "a", term,
                         TakeColumn(rest), new_lines);
  }
}

std::string Music650To382Class::Private_655_DecodeEscapes(std::string_view text) const {
  return DecodeTableEscapes(text);
}

std::string Music650To382Class::Private_655_Initialize_Translate(std::string_view text) const {
  return TranslateEscapes(text);
}

std::string Music650To382Class::Private_655_Initialize_TranslateBack(std::string_view text) const {
  return TranslateIntoEscapes(text);
}

std::string Music650To382Class::Private_655_Initialize_CleanText(std::string_view text) const {
  return CleanCellText(text);
}

// The build is tried once in the life of the object, with whatever outcome; so
// `ok` tells of that one.  It says that a table could be written, not that there
// was a workbook to make it from: whether a table is there is for the caller to
// see.
void Music650To382Class::Private_655_Initialize(Utf8MarcRecordClass& record,
                                                Utf8CharClass& /*char_object*/, bool& ok) {
  InitializeStyleQualifiers();
  if (genre_.table_build_tried) {
    ok = genre_.table_built;
    return;
  }
  ok = false;
  if (spreadsheet_.empty()) return;
  genre_.table_build_tried = true;
  DerivationBuild build;
  BuildDerivationTable(record.FldOrderFolder(), record, build);
  genre_.table_built = build.folder_takes_files;
  ok = genre_.table_built;
}

}  // namespace cantorel

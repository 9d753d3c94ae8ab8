// Subject headings and fixed fields into 655, 046, 370, 385 and 386.

#include <string>

#include "genre/closing_passes.h"
#include "genre/record_pass.h"
#include "medium/music_650_to_382_class.h"

namespace cantorel {
namespace {

bool IsMusic(std::string_view leader_type) {
  return leader_type == "c" || leader_type == "d" || leader_type == "j";
}

}  // namespace

void Music650To382Class::Convert6xxTo655_Marc(Utf8MarcRecordClass& record,
                                              Utf8MarcRecordClass& scratch_record,
                                              Utf8CharClass& /*char_object*/,
                                              std::string& existing_lines, std::string& new_lines,
                                              std::string& spare) {
  if (IsMusic(record.GetLeaderValue(6, 1))) {
    new_lines.clear();
    genre_.existing_field_keys.RemoveAll();
    Private_655_CollectExistingFields(record);
    Private_655_ProcessRecord(record, scratch_record, new_lines, spare);
  }
  existing_lines.clear();
  for (const std::string& line : genre_.existing_field_lines) {
    if (!existing_lines.empty()) existing_lines += '\n';
    existing_lines += line;
  }
}

void Music650To382Class::Private_655_ProcessRecord(Utf8MarcRecordClass& record,
                                                   Utf8MarcRecordClass& scratch_record,
                                                   std::string& new_lines, std::string& spare) {
  GenreContext context{*this, genre_, record, new_lines};
  RecordPass(context, scratch_record, spare, session_.returned_001_text).Run();
  ConcludeRecord(context, operating_mode_, session_.field_selector);
}

}  // namespace cantorel

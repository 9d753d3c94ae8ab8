// Subject headings and fixed fields into 655, 046, 370, 385 and 386.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// Nothing is derived without the lists of the derivation table: no line is
// made, and the record stays as it is.
void Music650To382Class::Convert6xxTo655_Marc(Utf8MarcRecordClass& /*record*/,
                                              Utf8MarcRecordClass& /*scratch_record*/,
                                              Utf8CharClass& /*char_object*/,
                                              std::string& existing_lines, std::string& new_lines,
                                              std::string& /*spare*/) {
  existing_lines.clear();
  new_lines.clear();
  genre_.candidate_fields.clear();
  genre_.excluded_for_excerpts.clear();
}

}  // namespace cantorel

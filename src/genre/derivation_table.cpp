// The table of derivations, "Music6xxTo655.txt", and its making.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// Nothing is looked up in the table.
void Music650To382Class::Private_655_TestAndAdd(std::string_view /*list*/, std::string_view /*key*/,
                                                Utf8MarcRecordClass& /*record*/,
                                                std::string& /*new_lines*/) {}

void Music650To382Class::Private_655_Initialize(Utf8MarcRecordClass& /*record*/,
                                                Utf8CharClass& /*char_object*/, bool& ok) {
  InitializeStyleQualifiers();
  if (genre_.table_build_tried) {
    ok = genre_.table_built;
    return;
  }
  ok = false;
  if (spreadsheet_.empty()) return;
  // There is no reader of workbooks, so that no table can be built; one that
  // stands in the folder is left alone.
  genre_.table_build_tried = true;
}

}  // namespace cantorel

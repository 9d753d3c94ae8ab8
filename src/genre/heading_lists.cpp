// The heading lists: genre terms from the wording of a heading.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// No heading is known by its wording.
void Music650To382Class::Private_655_TestHeading(std::string_view /*text*/,
                                                 Utf8MarcRecordClass& /*record*/,
                                                 std::string& /*new_lines*/,
                                                 bool /*strip_arranged*/, bool& found) {
  found = false;
}

}  // namespace cantorel

// Subdivisions that tell a place or a time.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// No time is read from a $y.
void Music650To382Class::Private_655_AddDates(Utf8MarcRecordClass& /*record*/,
                                              std::string& /*new_lines*/) {}

// No authority is asked for a place, so that none is found.
void Music650To382Class::Private_655_AddPlace(Utf8MarcRecordClass& /*record*/,
                                              Utf8MarcRecordClass& /*scratch_record*/,
                                              std::string_view /*first_z*/,
                                              std::string_view /*second_z*/,
                                              std::string& /*new_lines*/, std::string& /*spare*/,
                                              bool& found) {
  found = false;
}

}  // namespace cantorel

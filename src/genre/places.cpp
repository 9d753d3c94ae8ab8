// Geographic subdivisions into places of origin, 370.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

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

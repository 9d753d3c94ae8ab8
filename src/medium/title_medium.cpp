// The medium in the $m of a title heading.

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// No title is read for its medium: nothing is made, and the buffer is empty.
void Music650To382Class::ConvertTitleMedium(std::string_view /*leader_type*/,
                                            std::string_view /*field_text*/,
                                            Utf8MarcRecordClass& /*record*/,
                                            std::string_view /*record_id*/, std::string& trailing,
                                            std::int32_t& result) {
  buffer_.clear();
  trailing.clear();
  result = 0;
}

}  // namespace cantorel

// Messages about the field under work.

#ifndef CANTOREL_GENRE_FIELD_MESSAGE_H_
#define CANTOREL_GENRE_FIELD_MESSAGE_H_

#include <algorithm>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "medium/music_650_to_382_class.h"

namespace cantorel {

// A general message with tag and text of the record's current field, "$" for the
// delimiter.
inline void AddFieldMessage(Music650To382Class& music, std::string_view message,
                            const Utf8MarcRecordClass& record) {
  std::string text = record.FldText();
  std::replace(text.begin(), text.end(), kDelimiter, '$');
  music.Private_655_AddMessage(message, record.FldTagView(), text);
}

}  // namespace cantorel

#endif  // CANTOREL_GENRE_FIELD_MESSAGE_H_

// Records and field texts as tests write them: "$" for the delimiter, a field
// as one line "245 10$aTitle", and images put together octet by octet without
// help of the record class.

#ifndef CANTOREL_TESTS_RECORD_MARC_TEXT_H_
#define CANTOREL_TESTS_RECORD_MARC_TEXT_H_

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "record/utf8_marc_record_class.h"

namespace cantorel {

inline constexpr std::string_view kMusicLeader = "00000ncm a2200000 i 4500";

inline std::string Text(std::string_view readable) {
  std::string text(readable);
  std::replace(text.begin(), text.end(), '$', '\x1F');
  return text;
}

inline std::string Readable(std::string text) {
  std::replace(text.begin(), text.end(), '\x1F', '$');
  return text;
}

inline std::string Digits(std::size_t number, int width) {
  char digits[24];
  std::snprintf(digits, sizeof digits, "%0*zu", width, number);
  return digits;
}

// An image of a directory and a data section as they are given.
inline std::string Frame(std::string_view directory, std::string_view data,
                         std::string_view leader = kMusicLeader) {
  const std::size_t base = leader.size() + directory.size() + 1;
  std::string image(leader);
  image.append(directory).append("\x1E").append(data).append("\x1D");
  image.replace(0, 5, Digits(image.size(), 5));
  image.replace(12, 5, Digits(base, 5));
  return image;
}

// An image of fields, each "tag, what follows" as in the record: "001x",
// "24510$aTitle".
inline std::string Image(const std::vector<std::string>& fields,
                         std::string_view leader = kMusicLeader) {
  std::string directory;
  std::string data;
  for (const std::string& field : fields) {
    const std::string body = Text(field.substr(3)) + '\x1E';
    directory += field.substr(0, 3) + Digits(body.size(), 4) + Digits(data.size(), 5);
    data += body;
  }
  return Frame(directory, data, leader);
}

// The live fields in record order, each in the form that Image takes.
inline std::vector<std::string> Fields(Utf8MarcRecordClass& record) {
  std::vector<std::string> fields;
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    fields.push_back(record.FldTag() + record.FldInd() + Readable(record.FldText()));
  }
  return fields;
}

}  // namespace cantorel

#endif  // CANTOREL_TESTS_RECORD_MARC_TEXT_H_

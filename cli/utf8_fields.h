// The fields of an ISO 2709 image as they stand and in the order in which they
// stand, their text in UTF-8.

#ifndef CANTOREL_CLI_UTF8_FIELDS_H_
#define CANTOREL_CLI_UTF8_FIELDS_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {

struct Utf8Field {
  std::string_view tag;
  std::string_view indicators;  // of a data field; fewer than two in a damaged one
  std::string_view text;        // without indicators and end of field
  bool is_control = false;
  bool has_tokens = false;  // octets that are no characters stand as "[MARC+...]"
};

class Utf8Fields {
 public:
  // `image` is one that IsMarc passes, and must live until the next one.
  void Open(std::string_view image);

  std::string_view Leader() const { return leader_; }
  // The image is in MARC-8 or a variant of it.
  bool IsTranslated() const { return translated_; }

  // The next field that has any text; false behind the last one.  It is good
  // until the next one is asked for.
  bool Next(Utf8Field& field);
  void Rewind() { position_ = 0; }

  // Indicators and text of a data field in the character set of the image.
  std::string InUtf8(std::string_view tag, std::string_view field);

 private:
  void Translate(Utf8Field& field);

  std::string_view leader_;
  std::string_view directory_;
  std::string_view data_;
  std::size_t position_ = 0;  // in the directory
  bool translated_ = false;
  std::string format_;
  std::string indicators_;
  std::string text_;
  Utf8MarcRecordClass translator_;
};

// The image of a record that was read: as it came, or in `repaired` with the
// blanks that its leader lost.  Empty, and `fault` telling why, for what is no
// record.
std::string_view SoundImage(std::string_view octets, std::string& repaired,
                            std::string_view& fault);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_UTF8_FIELDS_H_

// The ISO 2709 image of a MARCXML record: its leader and its fields as they
// stand and in the order in which they stand, nothing added.

#ifndef CANTOREL_DISPLAY_MARCXML_IMAGE_H_
#define CANTOREL_DISPLAY_MARCXML_IMAGE_H_

#include <string>
#include <string_view>

#include "display/marcxml_scanner.h"

namespace cantorel {

class MarcXmlImage {
 public:
  // Makes the image of the record that `xml` holds, with `prefix` (colon
  // included) ahead of the names of its elements.  The text is UTF-8.
  //
  // Of the leader, lengths, counts and entry map are those of the image, and
  // position 09 is "a" when any character is beyond ASCII.  CR and LF lay the
  // text out and vanish.  False for a record that the structure has no room or
  // no form for; `fault` says why.
  bool Make(std::string_view xml, std::string_view prefix, std::string& image, std::string& fault);

 private:
  bool AddPart(const MarcXmlPart& part, std::string& fault);
  bool BeginField(std::string_view attributes, std::string& fault);
  bool EndField(std::string& fault);
  bool AddSubfield(const MarcXmlPart& part, std::string& fault);
  void AddIndicator(std::string_view attributes, std::string_view name);
  std::string_view Attribute(std::string_view attributes, std::string_view name);
  void AddText(std::string_view text);
  void WriteImage(std::string& image) const;

  // Their memory serves every record.
  std::string leader_;
  std::string directory_;
  std::string data_;
  std::string attribute_;
  bool in_field_ = false;
  std::string tag_;  // of the field that is being read
  std::size_t field_start_ = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_MARCXML_IMAGE_H_

// Takes the text of one MARCXML record apart.
//
// The text is read as it stands, front to back, and never refused: what is
// damaged gives the parts that can be made out.  Comments, processing
// instructions and unknown elements are passed over.

#ifndef CANTOREL_DISPLAY_MARCXML_SCANNER_H_
#define CANTOREL_DISPLAY_MARCXML_SCANNER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace cantorel {

// A start tag or an element without content between its brackets:
// "controlfield tag='001'".
struct XmlTag {
  std::string_view name;        // with its prefix
  std::string_view attributes;  // what stands behind the name
  std::size_t length = 0;       // of all of it, brackets included
  bool is_end = false;          // "</name>"
  bool is_empty = false;        // "<name/>"
  bool is_cut = false;          // the text ends ahead of the ">"
};

// Reads the tag that begins at `position`, where a "<" stands.  What is no tag,
// or is cut, has the length 0.
XmlTag XmlTagAt(std::string_view xml, std::size_t position);

// The length of the comment, CDATA section, processing instruction or
// declaration that begins at `position`, where a "<" stands; up to the end of
// the text when it is not closed.  0 when none begins there.
std::size_t XmlAsideLength(std::string_view xml, std::size_t position);

// The value of an attribute as it is written, references not undone; `found`
// says whether it is there.
std::string_view XmlAttribute(std::string_view attributes, std::string_view name, bool& found);

struct MarcXmlPart {
  enum Kind { kLeader, kControlField, kDataField, kSubfield };
  Kind kind = kLeader;
  std::string_view attributes;  // for XmlAttribute
  std::string_view text;        // references not undone; empty for a data field
};

class MarcXmlScanner {
 public:
  // `prefix` stands ahead of the names of the elements, colon included: "marc:",
  // "marcxml:", or nothing.  Both texts must outlive the scanner.
  MarcXmlScanner(std::string_view xml, std::string_view prefix) : xml_(xml), prefix_(prefix) {}

  // The next part; false at the end of the record or of the text.  The part is
  // good until the next one is asked for.  A subfield belongs to the data field
  // delivered last.
  bool Next(MarcXmlPart& part);

 private:
  std::string_view LocalName(std::string_view name) const;
  bool ReadTag(const XmlTag& tag, MarcXmlPart& part);
  std::string_view ReadText(std::string_view name);

  std::string_view xml_;
  std::string_view prefix_;
  std::size_t position_ = 0;
  bool in_data_field_ = false;
  bool at_end_ = false;
  std::string assembled_;  // a text that does not stand in one piece
};

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_MARCXML_SCANNER_H_

// Reads MARCXML of any length, a record at a time.

#ifndef CANTOREL_CLI_MARCXML_READER_H_
#define CANTOREL_CLI_MARCXML_READER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "cli/input_buffer.h"
#include "cli/record_reader.h"
#include "display/marcxml_image.h"
#include "display/marcxml_scanner.h"

namespace cantorel::cli {

// Each record element ("record", "marc:record" or "marcxml:record", inside
// whatever other elements) is a piece: its ISO 2709 image.  One that has no such
// image, or does not end, is a piece with a fault, its octets being those of the
// element.  So is the end of an input that breaks off, and an input that is not
// in UTF-8.
class MarcXmlReader : public RecordReader {
 public:
  explicit MarcXmlReader(InputBuffer&& input) : input_(std::move(input)) {}
  bool Next(Piece& piece) override;
  bool ReadsMarcXml() const override { return true; }

 private:
  enum class Extent { kWhole, kWrapper, kBroken };

  bool CanRead();
  bool FindRecord();
  Extent MeasureRecord();
  bool NextTag(XmlTag& tag);
  bool More();
  bool GiveRecord(Piece& piece);
  bool GiveFault(std::string_view fault, Piece& piece);
  bool GiveEnd(Piece& piece);

  InputBuffer input_;
  std::uint64_t count_ = 0;
  bool opened_ = false;
  bool finished_ = false;
  bool collection_open_ = false;

  // Positions count from the octet that the input stands at.
  std::size_t looked_at_ = 0;  // up to where tags were read
  std::size_t tag_start_ = 0;  // of the tag read last
  bool in_record_ = false;     // a record element begins at position 0
  std::string prefix_;         // of its name
  std::size_t length_ = 0;     // of the element

  MarcXmlImage maker_;
  std::string image_;
  std::string fault_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_MARCXML_READER_H_

// Any octets as MARCXML: read as a stream, where each record must come out as an
// image that has its frame (or is too short for any text) or with a fault, and taken
// in as a record.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "cli/input_buffer.h"
#include "cli/marcxml_reader.h"
#include "record/utf8_marc_record_class.h"

namespace {

constexpr std::size_t kShortestRecord = 50;

// A few octets at a time, so that everything is cut somewhere.
class SmallPieces : public cantorel::cli::OctetSource {
 public:
  explicit SmallPieces(std::string_view octets) : octets_(octets) {}

  std::size_t Read(char* to, std::size_t size) override {
    static constexpr std::size_t kMost = 7;
    const std::size_t count = octets_.copy(to, std::min(size, kMost));
    octets_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view octets_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static cantorel::Utf8MarcRecordClass record;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  SmallPieces source(text);
  cantorel::cli::MarcXmlReader reader{cantorel::cli::InputBuffer(source)};
  for (cantorel::cli::Piece piece; reader.Next(piece);) {
    if (!piece.fault.empty() || piece.octets.size() < kShortestRecord) continue;
    if (!record.IsMarc(piece.octets)) std::abort();
  }
  record.XmlRecordIn(text);
  return 0;
}

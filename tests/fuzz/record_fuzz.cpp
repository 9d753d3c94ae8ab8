// Any octets as the image of a record: the character set that they speak for, and
// the record loaded, translated and written.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "record/utf8_marc_record_class.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static cantorel::Utf8MarcRecordClass record;
  const std::string_view image(reinterpret_cast<const char*>(data), size);
  if (record.CharacterizeCharacterSet(image).empty()) std::abort();
  record.CharacterSetOut("U");
  record.MarcRecordIn(image);
  record.CharacterSetOut("M");
  record.CharacterSetOut("ULC");
  record.MarcRecordIn(record.MarcRecordOut());
  return 0;
}

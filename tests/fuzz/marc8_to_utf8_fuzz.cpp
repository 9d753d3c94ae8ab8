// Field text of any octets from MARC-8 to UTF-8.  The first octet chooses variant
// and tag.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static constexpr std::array<std::string_view, 3> kLetters = {"M", "O", "V"};
  static constexpr std::array<std::string_view, 3> kTags = {"245", "880", "130"};
  static cantorel::Utf8MarcRecordClass record;
  record.CharacterSetIn(kLetters[data[0] % 3]);
  record.UseDoubleWidthDiacritics((data[0] & 0x80) != 0);
  std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::string indicators = "19";
  bool changed = false;
  bool error = false;
  record.TranslateMarc2Utf8OneField("B", kTags[data[0] / 3 % 3], indicators, text, changed, error);
  return 0;
}

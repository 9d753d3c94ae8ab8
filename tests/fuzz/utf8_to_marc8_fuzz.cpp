// Field text of any octets from UTF-8 to MARC-8 and back: once it has come back as
// text of which $6 names the script, it must come back the same again, since
// nothing is lost on the way out.  The first octet chooses variant and tag.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace {

std::string ThereAndBack(cantorel::Utf8MarcRecordClass& record, std::string_view letter,
                         std::string_view tag, std::string text) {
  std::string indicators = "10";
  bool changed = false;
  bool error = false;
  record.TranslateUtf82MarcOneField(tag, indicators, text, changed, error, letter);
  record.CharacterSetIn(letter);
  record.TranslateMarc2Utf8OneField("B", tag, indicators, text, changed, error);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static constexpr std::array<std::string_view, 3> kLetters = {"M", "O", "V"};
  static cantorel::Utf8MarcRecordClass record;
  const std::string_view letter = kLetters[data[0] % 3];
  const std::string_view tag = (data[0] & 0x80) != 0 ? "880" : "245";
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string settled =
      ThereAndBack(record, letter, tag, ThereAndBack(record, letter, tag, text));
  // What reads as a notation becomes its character, even that of another.
  if (text.find("&#") != text.npos || settled.find("&#") != settled.npos) return 0;
  if (ThereAndBack(record, letter, tag, settled) != settled) std::abort();
  return 0;
}

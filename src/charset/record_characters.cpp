// What a record answers about characters and scripts.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/octet_category.h"
#include "charset/octet_text.h"
#include "charset/script_ranges.h"
#include "charset/special_letters.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

bool IsLetterOf8BitSet(char c) {
  return IsAsciiUpper(c) || IsAsciiLower(c) || kSpecialUpper.find(c) != std::string_view::npos ||
         kSpecialLower.find(c) != std::string_view::npos;
}

// The script letter of one character; '\0' for none.
char ScriptOf(std::string_view character) {
  const std::uint32_t value = Utf8OctetValue(character);
  for (const ScriptRange& range : kScriptRanges) {
    if (value >= range.first && value <= range.last) return range.letter;
  }
  return '\0';
}

bool IsRightToLeft(std::string_view character) {
  if (character.size() != 2) return false;
  const char script = ScriptOf(character);
  return script == kHebrew || script == kArabic;
}

}  // namespace

bool Utf8MarcRecordClass::CharIsAlpha(std::string_view character) const {
  if (character.empty()) return false;
  if (!Utf8()) return IsLetterOf8BitSet(character[0]);
  const std::string_view category = CategoryName(CategoryOf(character));
  return !category.empty() && category[0] == 'L';
}

std::string Utf8MarcRecordClass::CharCategory(std::string_view character) const {
  if (character.empty()) return {};
  return std::string(CategoryName(Utf8() ? CategoryOf(character)
                                         : OctetCategory(character[0], character_set_out_)));
}

bool Utf8MarcRecordClass::ContainsRightToLeftCharacters(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (IsRightToLeft(Utf8CharAt(text, i))) return true;
  }
  return false;
}

std::string Utf8MarcRecordClass::VernacularDataCharacterize(std::string_view text) {
  bool found[256] = {};
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (Octet(text[i]) >= 0x80) found[Octet(ScriptOf(Utf8CharAt(text, i)))] = true;
  }
  std::string letters;
  for (const ScriptRange& range : kScriptRanges) {
    if (found[Octet(range.letter)]) letters += range.letter;
    found[Octet(range.letter)] = false;
  }
  return letters;
}

}  // namespace cantorel

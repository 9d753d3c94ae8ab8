// What a record answers about characters and the direction of writing.

#include <cstddef>
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

bool IsRightToLeft(std::string_view character) {
  if (character.size() != 2) return false;
  const char script = ScriptOf(Utf8OctetValue(character));
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

}  // namespace cantorel

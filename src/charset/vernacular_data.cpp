// What a record answers about writing in other scripts than Latin.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/script_ranges.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// Script letters, noted in any order, told in that of the ranges.
class ScriptsFound {
 public:
  void Add(char letter) { found_[Octet(letter)] = true; }
  std::string Letters() {
    std::string letters;
    for (const ScriptRange& range : kScriptRanges) {
      bool& found = found_[Octet(range.letter)];
      if (found) letters += range.letter;
      found = false;
    }
    return letters;
  }

 private:
  bool found_[256] = {};
};

bool IsLetter(Category category) {
  return category >= Category::kLl && category <= Category::kLo;
}

// Letters that belong to Latin text although they stand behind Greek, as octet
// values: Latin Extended Additional, and U+2000 to U+2E7F with the letter-like
// symbols (the script l of MARC-8 is among them).
constexpr std::uint32_t kGreekBegins = 0xCDB0;
bool IsLatinBehindGreek(std::uint32_t value) {
  return (value >= 0xE1B880 && value <= 0xE1BBBF) || (value >= 0xE28080 && value <= 0xE2B9BF);
}

bool IsVernacular(std::string_view character) {
  const std::uint32_t value = Utf8OctetValue(character);
  if (value < kGreekBegins) return false;
  if (ScriptOf(value) != '\0') return true;
  return !IsLatinBehindGreek(value) && IsLetter(CategoryOf(character));
}

bool HasVernacularCharacter(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (Octet(text[i]) >= 0x80 && IsVernacular(Utf8CharAt(text, i))) return true;
  }
  return false;
}

// The script of a MARC-8 set by the final character of its designation; '\0'
// for the Latin sets and for none.
char ScriptOfMarc8Set(char final) {
  switch (final) {
    case '1':
      return kIdeographs;
    case '2':
      return kHebrew;
    case '3':
    case '4':
      return kArabic;
    case 'N':
    case 'Q':
      return kCyrillic;
    case 'S':
      return kGreek;
    default:
      return '\0';
  }
}

// The scripts that the designations in a MARC-8 text call for: an escape, the
// characters that say to which half of the code, and the set's final character.
std::string DesignatedScripts(std::string_view text) {
  ScriptsFound scripts;
  for (std::size_t i = text.find(kEscape); i != std::string_view::npos;
       i = text.find(kEscape, i + 1)) {
    const std::size_t final = text.find_first_not_of("(,)-$", i + 1);
    if (final == std::string_view::npos || final == i + 1) continue;
    scripts.Add(ScriptOfMarc8Set(text[final]));
  }
  return scripts.Letters();
}

}  // namespace

std::string Utf8MarcRecordClass::VernacularDataCharacterize(std::string_view text) {
  ScriptsFound scripts;
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (Octet(text[i]) >= 0x80) scripts.Add(ScriptOf(Utf8OctetValue(Utf8CharAt(text, i))));
  }
  return scripts.Letters();
}

std::string Utf8MarcRecordClass::FldCharacterizeVernacularData() const {
  const std::string text = FldText();
  return Utf8() ? VernacularDataCharacterize(text) : DesignatedScripts(text);
}

bool Utf8MarcRecordClass::HoldsVernacular(std::string_view text) const {
  return Utf8() ? HasVernacularCharacter(text) : !DesignatedScripts(text).empty();
}

bool Utf8MarcRecordClass::FldContainsVernacularData() const {
  return HoldsVernacular(FldText());
}

bool Utf8MarcRecordClass::SfdContainsVernacularData() const {
  return HasSubfield() && HoldsVernacular(CurrentSubfield().text);
}

bool Utf8MarcRecordClass::VernacularDataPresent() const {
  std::string text;
  for (std::int16_t row = first_field_; row != kNoRow; row = table_.Field(row).next) {
    if (table_.Field(row).deleted) continue;
    text.clear();
    AppendText(table_.Field(row), text);
    if (HoldsVernacular(text)) return true;
  }
  return false;
}

}  // namespace cantorel

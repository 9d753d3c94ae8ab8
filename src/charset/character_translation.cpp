// Utf8CharClass between MARC-8 and UTF-8, one character at a time.

#include "charset/marc8_character.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

char LetterOf(std::string_view set) {
  return set.empty() ? 'M' : set[0];
}

// How many characters the code takes that `text` begins with: three for the
// Latin set behind "!", two behind a bracket or "$", otherwise one.
std::size_t DesignationLength(std::string_view text) {
  if (text.empty() || std::string_view("()$").find(text[0]) == std::string_view::npos) return 1;
  return text.substr(1, 1) == "!" ? 3 : 2;
}

}  // namespace

void Utf8CharClass::TranslateMarc2Utf8OneCharacter(std::string_view set_in, std::string_view code,
                                                   std::string_view octets, std::string& utf8,
                                                   bool& changed, bool& error) {
  std::string translation;
  Marc8Designation designation;
  std::uint32_t code_point = kNoCodePoint;
  if (ReadMarc8Designation(code, designation)) {
    code_point = UcsOfMarc8Octets(LetterOf(set_in), designation, octets);
  }
  error = code_point == kNoCodePoint;
  if (!error) AppendUtf8(code_point, translation);
  changed = !error && translation != octets;
  utf8 = std::move(translation);
}

std::string Utf8CharClass::TranslateUtf82MarcOneCharacter(std::string_view set_out,
                                                          std::string_view octets,
                                                          std::string& code, bool& error) {
  Marc8Form form;
  error = !Marc8FormOf(LetterOf(set_out), Utf8CodePoint(octets), form);
  if (error) {
    code.clear();
    return {};
  }
  code.assign(1, static_cast<char>(form.set));
  return std::string(form.Octets());
}

std::string Utf8CharClass::TranslateUtf82MarcShortCodeToLong(std::string_view short_code) {
  if (short_code.size() != 1) return std::string(short_code);
  const std::string_view long_code = Marc8LongCode(static_cast<Marc8Set>(short_code[0]));
  return std::string(long_code.empty() ? short_code : long_code);
}

void Utf8CharClass::Marc8Char(std::string_view marc8) {
  std::string_view letter = "M";
  std::string_view code = "s";
  if (marc8.size() > 1) {
    letter = marc8.substr(0, 1);
    marc8.remove_prefix(1);
    code = marc8.substr(0, DesignationLength(marc8));
    marc8.remove_prefix(code.size());
  }
  std::string utf8;
  bool changed = false;
  bool error = false;
  TranslateMarc2Utf8OneCharacter(letter, code, marc8, utf8, changed, error);
  if (error) return;
  // The UCS form stays that of the character before.  That is deliberate.
  in_setter_ = true;
  Utf8Char(utf8);
  in_setter_ = false;
}

}  // namespace cantorel

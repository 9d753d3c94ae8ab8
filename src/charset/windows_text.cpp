#include "charset/windows_text.h"

#include <cstddef>

#include "charset/marc8_character.h"
#include "charset/marc_control.h"
#include "charset/numeric_notation.h"
#include "charset/substitutes.h"
#include "charset/utf8_code_point.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr unsigned kFirstOwnOctet = 0x80;
constexpr unsigned kOwnOctets = 0x20;

// Code page 1252 differs from ISO 8859-1 in the octets 80 to 9F; the five that it
// leaves free are control characters there.
constexpr char16_t kOwnCharacters[kOwnOctets] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint32_t UcsOfWindows(unsigned octet) {
  const unsigned place = octet - kFirstOwnOctet;
  return place < kOwnOctets ? kOwnCharacters[place] : octet;
}

bool IsDoubleQuotationMark(std::uint32_t code_point) {
  return code_point >= 0x201C && code_point <= 0x201E;
}

// One character, in whichever way MARC-8 text can hold it.
void AppendMarc8(std::uint32_t code_point, std::string& out) {
  Marc8Form form;
  if (!Marc8FormOf(code_point, form)) return AppendNotation(code_point, out);
  if (form.set == Marc8Set::kLatin) {
    out += form.Octets();
    return;
  }
  const std::string_view code = Marc8LongCode(form.set);
  out += kEscape;
  out += code;
  out += form.Octets();
  out += kEscape;
  // A set of one letter is left by one letter.
  out += code.size() == 1 ? "s" : Marc8LongCode(Marc8Set::kLatin);
}

// The characters of a letter and its marks, the last one first: MARC-8 writes the
// marks before the letter.
void AppendMarc8Backward(std::string_view utf8, std::string& out) {
  while (!utf8.empty()) {
    std::size_t start = utf8.size() - 1;
    while (start > 0 && IsUtf8Continuation(utf8[start])) --start;
    AppendMarc8(Utf8CodePoint(utf8.substr(start)), out);
    utf8 = utf8.substr(0, start);
  }
}

void AppendMarc8OfCharacter(std::uint32_t code_point, std::string& out) {
  std::string substitute;
  if (!AppendWindowsSubstitute(code_point, substitute)) return AppendMarc8(code_point, out);
  // Plain text reads forward; anything else is a letter with its marks.
  if (!IsAscii(substitute)) return AppendMarc8Backward(substitute, out);
  out += substitute;
}

}  // namespace

bool AppendWindowsSubstitute(std::uint32_t code_point, std::string& out) {
  if (!IsDoubleQuotationMark(code_point)) return AppendSubstitute(code_point, out);
  out += '"';
  return true;
}

void AppendMarc8OfWindows(std::string_view text, std::string& out) {
  for (const char c : text) {
    if (Octet(c) < kFirstOwnOctet) {
      out += c;
    } else {
      AppendMarc8OfCharacter(UcsOfWindows(Octet(c)), out);
    }
  }
}

std::string Utf8MarcRecordClass::MsoftAscii2Marc(std::string_view text, std::string_view pair) {
  std::string out;
  if (pair == "L2M") {
    AppendMarc8OfWindows(text, out);
  } else if (!AppendWindowsSubstitute(Utf8CodePoint(text), out)) {
    out = text;
  }
  return out;
}

}  // namespace cantorel

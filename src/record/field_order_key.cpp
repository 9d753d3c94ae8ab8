#include "record/field_order_key.h"

#include <algorithm>
#include <cstddef>

#include "charset/marc_control.h"
#include "charset/octet_text.h"

namespace cantorel {

namespace {

struct Thesaurus {
  std::string_view code;  // of the MARC list of subject heading sources
  char rank;
};

constexpr Thesaurus kThesauri[] = {
    {"lcsh", '0'}, {"lcshac", '1'}, {"mesh", '2'}, {"nal", '3'}, {"cash", '5'}, {"rvm", '6'},
};

// Where the first subfield of a code begins, npos without one.
std::size_t FindCode(std::string_view text, char code, std::size_t from = 0) {
  for (std::size_t i = text.find(kDelimiter, from); i != std::string_view::npos;
       i = text.find(kDelimiter, i + 1)) {
    if (i + 1 < text.size() && text[i + 1] == code) return i;
  }
  return std::string_view::npos;
}

// The text of the subfield that begins at a place.
std::string_view TextAt(std::string_view text, std::size_t place) {
  const std::string_view rest = From(text, place + 2);
  return Trim(rest.substr(0, rest.find(kDelimiter)));
}

void AppendThreeDigits(int number, std::string& out) {
  out += static_cast<char>('0' + number / 100);
  out += static_cast<char>('0' + number / 10 % 10);
  out += static_cast<char>('0' + number % 10);
}

}  // namespace

bool FindSubfieldText(std::string_view text, char code, std::string_view& value) {
  const std::size_t place = FindCode(text, code);
  if (place == std::string_view::npos) return false;
  value = TextAt(text, place);
  return true;
}

void AppendLinkPart(std::string_view subfield6, bool is_880, std::string& key) {
  std::string_view digits = Trim(From(subfield6, 3));
  if (digits.empty()) return;
  if (digits[0] == '-' || digits[0] == '+') digits = TrimLeft(digits.substr(1));
  bool is_zero = true;
  int last_three = 0;
  for (const char c : digits) {
    if (!IsAsciiDigit(c)) break;
    is_zero = is_zero && c == '0';
    last_three = (last_three * 10 + (c - '0')) % 1000;
  }
  key += kDelimiter;
  key += '6';
  if (is_zero) {
    key += "00";
  } else {
    AppendThreeDigits(last_three, key);
  }
  if (is_880) key += " G";
}

void AppendThesaurus(std::string_view text, std::string& key) {
  std::string_view source;
  if (!FindSubfieldText(text, '2', source)) return;
  const auto* known = std::find_if(std::begin(kThesauri), std::end(kThesauri),
                                   [&](const Thesaurus& t) { return t.code == source; });
  if (known == std::end(kThesauri)) {
    key += source;
  } else {
    key += known->rank;
  }
}

void AppendSequence(std::string_view text, std::string_view tag, std::string& key) {
  static constexpr std::string_view kZeros = "000";
  std::string_view number;
  if (!FindSubfieldText(text, '8', number)) number = "0";
  const std::size_t dot = number.find('.');
  if (dot == std::string_view::npos && number.size() < kZeros.size()) {
    key.append(kZeros.substr(number.size())).append(number);  // no tag behind
    return;
  }
  if (dot < kZeros.size()) key.append(kZeros.substr(dot));
  key.append(number).append(tag);
}

char ReferenceRelationship(std::string_view text) {
  const std::size_t place = FindCode(text, 'w');
  const std::string_view relationship =
      place == std::string_view::npos ? "" : From(text, place + 2);
  return relationship.empty() || relationship[0] == kDelimiter ? 'n' : relationship[0];
}

std::string ReferenceHeading(std::string_view text) {
  const std::size_t w = FindCode(text, 'w');
  if (w == 0) {
    const std::size_t next = text.find(kDelimiter, 1);
    text = next == std::string_view::npos ? std::string_view() : text.substr(next);
  } else {
    // What stands behind a $w in the middle is not looked at, which is deliberate.
    text = text.substr(0, w);
  }
  text = text.substr(0, FindCode(text, '5'));
  std::string heading;
  heading.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    heading += text[i] == kDelimiter ? ' ' : text[i];
    if (text[i] == kDelimiter) ++i;
  }
  return heading;
}

char RateLocal5(std::string_view text, std::string_view own_code) {
  std::size_t place = std::string_view::npos;
  for (std::size_t i = FindCode(text, '5'); i != std::string_view::npos;
       i = FindCode(text, '5', i + 1)) {
    place = i;
  }
  if (place == std::string_view::npos || own_code.empty()) return '9';
  const std::string_view code = TextAt(text, place);
  if (code.empty()) return '9';
  if (code == own_code) return '5';
  return own_code.starts_with(code.substr(0, code.find('-'))) ? '6' : '9';
}

}  // namespace cantorel

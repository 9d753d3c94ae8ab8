#include "normalize/standard_number.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "charset/octet_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// Where a check digit is reckoned from: the core of an ISBN.
constexpr std::size_t kIsbn10Core = 9;
constexpr std::size_t kIsbn13Core = 12;
constexpr std::string_view kBookland = "978";

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

int Digit(char c) {
  return c - '0';
}

// Letters, digits and blanks; runs of blanks reduced, ends trimmed.
std::string LettersAndDigits(std::string_view text, bool hyphen_is_blank) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c == '-' && hyphen_is_blank) c = ' ';
    const bool blank_again = c == ' ' && (out.empty() || out.back() == ' ');
    if (blank_again || !(IsAsciiUpper(c) || IsAsciiDigit(c) || c == ' ')) continue;
    out += c;
  }
  if (!out.empty() && out.back() == ' ') out.pop_back();
  return out;
}

std::string_view WithoutOrganization(std::string_view text) {
  text = Trim(text);
  const std::size_t close = text.find(')');
  if (text.empty() || text[0] != '(' || close == std::string_view::npos) return text;
  return Trim(text.substr(close + 1));
}

std::string WithoutHyphens(std::string_view text) {
  std::string out(text);
  std::erase(out, '-');
  return out;
}

// Weights 1, 3, 1, 3 ... from the first digit on.
int SumOfOnesAndThrees(std::string_view digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) sum += Digit(digits[i]) * (i % 2 == 0 ? 1 : 3);
  return sum;
}

// Weights falling by one, from `highest` on.
int SumOfFallingWeights(std::string_view digits, int highest) {
  int sum = 0;
  for (char c : digits) sum += Digit(c) * highest--;
  return sum;
}

char CheckDigitModulo10(std::string_view digits) {
  return static_cast<char>('0' + (10 - SumOfOnesAndThrees(digits) % 10) % 10);
}

// The sum of an ISMN begins with 3 for its "M", and the length is not looked at
// again: both are deliberate.
bool IsmnCheckIsRight(std::string_view number) {
  const std::string_view digits = number.substr(1, 9);
  return AllDigits(digits) && (3 + SumOfOnesAndThrees(digits)) % 10 == 0;
}

// A number and the text behind it, which begins at the first character that is
// no part of an ISBN.
struct SplitNumber {
  std::string_view number;
  std::string_view rest;
};

SplitNumber Split(std::string_view text) {
  const std::size_t end = std::min(text.find_first_not_of("0123456789X"), text.size());
  return {text.substr(0, end), text.substr(end)};
}

}  // namespace

bool HasStandardNumber(std::string_view tag) {
  return tag == "010" || tag == "020" || tag == "022" || tag == "035";
}

std::string NormalStandardNumber(std::string_view tag, std::string_view text) {
  if (tag == "035") return std::string(WithoutOrganization(text));
  return LettersAndDigits(text, tag == "022");
}

bool IsxnCheckIsRight(std::string_view text) {
  const std::string number = WithoutHyphens(text);
  const std::size_t length = number.size();
  if (length != 8 && length != 10 && length != 13) return false;
  if (AsciiUpper(number[0]) == 'M') return IsmnCheckIsRight(number);
  const std::string_view digits = std::string_view(number).substr(0, length - 1);
  const char last = AsciiUpper(number.back());
  if (!AllDigits(digits) || !(IsAsciiDigit(last) || last == 'X')) return false;
  if (length == 13) return CheckDigitModulo10(digits) == last;
  const int check = last == 'X' ? 10 : Digit(last);
  return (check + SumOfFallingWeights(digits, static_cast<int>(length))) % 11 == 0;
}

std::string Isbn13To10(std::string_view text) {
  const std::string plain = WithoutHyphens(text);
  const auto [number, rest] = Split(plain);
  if (number.size() < kIsbn13Core + 1 || !number.starts_with(kBookland)) return {};
  const std::string_view core = number.substr(kBookland.size(), kIsbn10Core);
  if (!AllDigits(core)) return {};
  // A check of 11 is written in two digits, not as "0", which is deliberate.
  const int check = 11 - SumOfFallingWeights(core, 10) % 11;
  return std::string(core).append(check == 10 ? "X" : std::to_string(check)).append(rest);
}

std::string Isbn10To13(std::string_view text) {
  const std::string plain = WithoutHyphens(text);
  const auto [number, rest] = Split(plain);
  // Only "9780" is known as a 13-digit number; any other is taken by its first
  // nine digits, which is deliberate.
  std::string core;
  if (number.starts_with("9780")) {
    core = number.substr(0, kIsbn13Core);
  } else {
    core = std::string(kBookland).append(number.substr(0, kIsbn10Core));
  }
  if (core.size() < kIsbn13Core || !AllDigits(core)) return {};
  return core + CheckDigitModulo10(core) + std::string(rest);
}

std::string Utf8MarcRecordClass::NormalizeStandardNumber(std::string_view tag,
                                                         std::string_view text) const {
  if (!HasStandardNumber(tag)) return std::string(Trim(text));
  return NormalStandardNumber(tag, SafeUCase(text));
}

bool Utf8MarcRecordClass::CheckISXN(std::string_view text) {
  return IsxnCheckIsRight(text);
}

std::string Utf8MarcRecordClass::ConvertISBN13To10(std::string_view text) {
  return Isbn13To10(text);
}

std::string Utf8MarcRecordClass::ConvertISBN10To13(std::string_view text) {
  return Isbn10To13(text);
}

}  // namespace cantorel

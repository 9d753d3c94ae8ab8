// The safe string members of the record class: those that count characters and
// change case.  What counts octets is in safe_text.cpp.

#include <algorithm>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/special_letters.h"
#include "charset/unicode_case.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// Signs that a word may begin with: they end the search for its first letter.
// Raising passes over the hyphen, which lowering does not.
constexpr std::string_view kWordSigns = "$\xB9+=\xAB";

// What a character means for the search for the first letter of a word.
enum class FirstLetter { kPassOver, kChange, kStop };

char OctetUpper(char c) {
  const std::size_t i = kSpecialLower.find(c);
  return i == std::string_view::npos ? AsciiUpper(c) : kSpecialUpper[i];
}

char OctetLower(char c) {
  const std::size_t i = kSpecialUpper.find(c);
  return i == std::string_view::npos ? AsciiLower(c) : kSpecialLower[i];
}

bool IsOctetUpper(char c) {
  return IsAsciiUpper(c) || kSpecialUpper.find(c) != std::string_view::npos;
}
bool IsOctetLower(char c) {
  return IsAsciiLower(c) || kSpecialLower.find(c) != std::string_view::npos;
}

FirstLetter JudgeOctet(char c, bool raising) {
  if (raising ? IsOctetLower(c) : IsOctetUpper(c)) return FirstLetter::kChange;
  if (raising ? IsOctetUpper(c) : IsOctetLower(c)) return FirstLetter::kStop;
  if (IsAsciiDigit(c) || kWordSigns.find(c) != std::string_view::npos) return FirstLetter::kStop;
  if (!raising && c == '-') return FirstLetter::kStop;
  return FirstLetter::kPassOver;
}

FirstLetter JudgeCategory(Category category, bool raising) {
  switch (category) {
    case Category::kLu:
      return raising ? FirstLetter::kStop : FirstLetter::kChange;
    case Category::kLl:
      return raising ? FirstLetter::kChange : FirstLetter::kStop;
    case Category::kLt:
    case Category::kNd:
    case Category::kNl:
    case Category::kNo:
    case Category::kSc:
    case Category::kSm:
      return FirstLetter::kStop;
    default:
      return FirstLetter::kPassOver;
  }
}

// Changes the case of the first letter of text[start..], if a letter decides
// before anything else does.  Subfield codes on the way are no letters.
std::string ChangeFirstLetter(std::string_view text, std::size_t start, bool raising, bool utf8) {
  std::string out(text.substr(0, start));
  std::size_t i = start;
  while (i < text.size()) {
    if (text[i] == kDelimiter) {
      out += text.substr(i, 2);
      i += 2;
      continue;
    }
    const std::string_view character = utf8 ? Utf8CharAt(text, i) : text.substr(i, 1);
    const FirstLetter verdict =
        utf8 ? JudgeCategory(CategoryOf(character), raising) : JudgeOctet(character[0], raising);
    if (verdict == FirstLetter::kStop) break;
    i += character.size();
    if (verdict == FirstLetter::kPassOver) {
      out += character;
      continue;
    }
    if (!utf8) {
      out += raising ? OctetUpper(character[0]) : OctetLower(character[0]);
    } else if (raising) {
      AppendUpperCase(character, out);
    } else {
      AppendLowerCase(character, out);
    }
    break;
  }
  out += From(text, i);
  return out;
}

// Where the first word begins: behind a delimiter and code that open the text.
std::size_t BehindOpeningCode(std::string_view text, std::size_t position = 0) {
  const bool delimited = position < text.size() && text[position] == kDelimiter;
  return delimited ? std::min(position + 2, text.size()) : position;
}

// Applies `change` to every character but delimiters and the codes behind them.
template <typename Change>
std::string ChangeCase(std::string_view text, bool utf8, Change change) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == kDelimiter) {
      out += text.substr(i, 2);
      i += 2;
      continue;
    }
    const std::string_view character = utf8 ? Utf8CharAt(text, i) : text.substr(i, 1);
    change(character, out);
    i += character.size();
  }
  return out;
}

}  // namespace

std::int32_t Utf8MarcRecordClass::SafeLen(std::string_view text) const {
  return static_cast<std::int32_t>(Utf8() ? Utf8Length(text) : text.size());
}

std::int32_t Utf8MarcRecordClass::LengthInCharacters(std::string_view text) const {
  return SafeLen(text);
}

std::string Utf8MarcRecordClass::SafeMid(std::string_view text, std::int32_t start,
                                         std::int32_t length, bool start_counts_characters) const {
  if (length < 1 && length != -1) return {};
  std::size_t skip = static_cast<std::size_t>(std::max(start, 1) - 1);
  if (Utf8() && start_counts_characters) {
    std::size_t position = 0;
    while (skip > 0 && position < text.size()) {
      position += Utf8AnnouncedOctets(text[position]);
      --skip;
    }
    skip = skip > 0 ? text.size() : position;
  }
  text = From(text, skip);
  if (length == -1) return std::string(text);
  if (!Utf8()) return std::string(text.substr(0, static_cast<std::size_t>(length)));
  std::size_t end = 0;
  for (; length > 0 && end < text.size(); --length) end += Utf8AnnouncedOctets(text[end]);
  return std::string(text.substr(0, end));
}

std::string Utf8MarcRecordClass::SafeRight(std::string_view text, std::int32_t length) const {
  if (length < 1) return {};
  auto wanted = static_cast<std::size_t>(length);
  if (!Utf8()) return std::string(text.substr(text.size() - std::min(wanted, text.size())));
  for (std::size_t i = text.size(); i-- > 0;) {
    if (!IsUtf8Continuation(text[i]) && --wanted == 0) return std::string(text.substr(i));
  }
  return std::string(text);
}

std::string Utf8MarcRecordClass::SafeStuff(std::string_view text, std::int32_t position,
                                           std::int32_t length, std::string_view insertion) {
  return cantorel::SafeStuff(text, position, length, insertion);
}

std::int32_t Utf8MarcRecordClass::Rat(std::string_view text, std::string_view sought) {
  return cantorel::Rat(text, sought);
}

std::int32_t Utf8MarcRecordClass::RatExtended(std::string_view text, std::string_view sought,
                                              std::int32_t mode) {
  if (mode != 1) return Rat(text, sought);
  if (sought.empty() || sought.size() > text.size()) return 0;
  // The search begins as far from the end as Rat's does, so the last few
  // characters go unseen when the list is longer than one; that is deliberate.
  const std::size_t place = text.find_last_of(sought, text.size() - sought.size());
  return place == std::string_view::npos ? 0 : static_cast<std::int32_t>(place + 1);
}

std::string Utf8MarcRecordClass::ReplaceCharacters(std::string_view text, std::string_view sought,
                                                   std::string_view replacement, bool squeeze) {
  return cantorel::ReplaceCharacters(text, sought, replacement, squeeze);
}

std::string Utf8MarcRecordClass::RemoveRepeatedCharacters(std::string_view text,
                                                          std::string_view sought) {
  return cantorel::RemoveRepeatedCharacters(text, sought);
}

std::string Utf8MarcRecordClass::RemoveSpaces(std::string_view text) {
  return cantorel::RemoveSpaces(text);
}

std::string Utf8MarcRecordClass::AddSpacesAroundDelimiters(std::string_view text) {
  return cantorel::AddSpacesAroundDelimiters(text);
}

std::string Utf8MarcRecordClass::RemoveSpacesAroundDelimiters(std::string_view text) {
  return cantorel::RemoveSpacesAroundDelimiters(text);
}

std::string Utf8MarcRecordClass::SafeUCase(std::string_view text) const {
  if (Utf8()) return ChangeCase(text, true, AppendUpperCase);
  // The special letters of the 8-bit sets are lowered but never raised, which
  // is deliberate.
  return ChangeCase(text, false,
                    [](std::string_view c, std::string& out) { out += AsciiUpper(c[0]); });
}

std::string Utf8MarcRecordClass::SafeLCase(std::string_view text) const {
  if (Utf8()) return ChangeCase(text, true, AppendLowerCase);
  return ChangeCase(text, false,
                    [](std::string_view c, std::string& out) { out += OctetLower(c[0]); });
}

std::string Utf8MarcRecordClass::UCaseFirstWord(std::string_view text, bool skip_subfield6) const {
  std::size_t start = BehindOpeningCode(text);
  if (skip_subfield6 && start == 2 && text[1] == '6') {
    const std::size_t next = text.find(kDelimiter, 2);
    if (next == std::string_view::npos) return std::string(text);
    start = BehindOpeningCode(text, next);
  }
  return ChangeFirstLetter(text, start, true, Utf8());
}

std::string Utf8MarcRecordClass::LCaseFirstWord(std::string_view text) const {
  return ChangeFirstLetter(text, BehindOpeningCode(text), false, Utf8());
}

std::string Utf8MarcRecordClass::SafeTitleCase(std::string_view text,
                                               std::string_view leave_alone) const {
  if (SafeLen(text) <= 2) return std::string(text);
  const bool delimited = text.find(kDelimiter) != std::string_view::npos;
  const std::string spaced =
      SafeLCase(delimited ? cantorel::AddSpacesAroundDelimiters(text) : std::string(text));
  const auto raise = [&](std::string_view word) {
    const std::string entry = "*" + NormString(word, true, "V") + "*";
    return leave_alone.find(entry) != std::string_view::npos ? std::string(word)
                                                             : UCaseFirstWord(word);
  };
  std::string out;
  for (std::size_t i = 0; i < spaced.size();) {
    const std::size_t end = std::min(spaced.find(' ', i), spaced.size());
    const std::string_view word = std::string_view(spaced).substr(i, end - i);
    if (word.empty() || word[0] == kDelimiter) {
      out += word;
    } else if (word.size() > 1 && word[1] == '\'') {
      out += raise(word.substr(0, 2));
      out += raise(word.substr(2));
    } else {
      out += raise(word);
    }
    if (end < spaced.size()) out += ' ';
    i = end + 1;
  }
  return delimited ? cantorel::RemoveSpacesAroundDelimiters(out) : out;
}

std::string Utf8MarcRecordClass::SafeSentenceCase(std::string_view text) const {
  if (text.empty()) return {};
  const bool leading = text.front() == ' ';
  const bool trailing = text.size() > 1 && text.back() == ' ';
  const std::string lowered = SafeLCase(Trim(text));
  std::string out = leading ? " " : "";
  for (std::string_view rest = lowered;;) {
    const std::size_t stop = rest.find(". ");
    out += UCaseFirstWord(rest.substr(0, stop));
    if (stop == std::string_view::npos) break;
    out += ". ";
    rest = Trim(rest.substr(stop + 2));
  }
  if (trailing) out += ' ';
  return out;
}

std::int32_t Utf8MarcRecordClass::CLCL(std::string_view a, std::string_view b) const {
  if (a.empty() || b.empty()) return a.size() == b.size() ? 0 : 1;
  std::int32_t position = 1;
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++position) {
    const std::size_t n = Utf8() ? Utf8AnnouncedOctets(a[i]) : 1;
    if (a.substr(i, n) != b.substr(i, n)) return position;
    i += n;
  }
  return 0;
}

std::string Utf8MarcRecordClass::LeftPad(std::string_view text, std::int32_t width,
                                         std::string_view pad) {
  return cantorel::LeftPad(text, width, pad);
}

std::string Utf8MarcRecordClass::LeftPadNumber(std::int32_t number, std::int32_t width,
                                               std::string_view pad) {
  return cantorel::LeftPad(std::to_string(number), width, pad);
}

bool Utf8MarcRecordClass::IsTrue(std::string_view text) const {
  // "-1" norms to "1", its hyphen being a blank that is trimmed.
  static constexpr std::string_view kTrue[] = {"TRUE", "YES", "Y", "T", "1", "-1"};
  const std::string norm = NormString(text, true, "V");
  return std::find(std::begin(kTrue), std::end(kTrue), norm) != std::end(kTrue);
}

}  // namespace cantorel

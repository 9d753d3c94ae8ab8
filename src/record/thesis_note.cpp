#include "record/thesis_note.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/thesis_words.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

constexpr std::string_view kEmDash = "\xE2\x80\x94";
constexpr std::string_view kEnDash = "\xE2\x80\x93";

// What divides the parts of a note.
constexpr std::string_view kDividers[] = {"--", kEmDash, kEnDash, " - ", ",", ":", ";"};

// --- Small pieces of text ----------------------------------------------------

std::string Fold(std::string_view text) {
  std::string folded;
  for (char c : text) {
    c = AsciiLower(c);
    if (IsAsciiLower(c)) folded += c;
  }
  return folded;
}

bool IsDegree(std::string_view text) {
  return std::find(std::begin(kDegrees), std::end(kDegrees), Fold(text)) != std::end(kDegrees);
}

// A month, or three or four letters that one begins with.
bool IsMonth(std::string_view word) {
  const std::string folded = Fold(word);
  const bool may_be_short = folded.size() == 3 || folded.size() == 4;
  return std::any_of(std::begin(kMonths), std::end(kMonths), [&](std::string_view month) {
    return month == folded || (may_be_short && month.starts_with(folded));
  });
}

// Where the first divider begins; the size of the text without one.
std::size_t FirstDivider(std::string_view text) {
  std::size_t first = text.size();
  for (std::string_view divider : kDividers) first = std::min(first, text.find(divider));
  return first;
}

// Dividers, full stops and blanks taken off the front.
std::string_view BehindDividers(std::string_view text) {
  for (;;) {
    if (text.starts_with(kEmDash) || text.starts_with(kEnDash)) {
      text.remove_prefix(kEmDash.size());
    } else if (!text.empty() && std::string_view(" .,:;-").find(text[0]) != kNone) {
      text.remove_prefix(1);
    } else {
      return text;
    }
  }
}

// Dividers and blanks taken off the end; a full stop may belong to a word.
std::string_view BeforeDividers(std::string_view text) {
  for (;;) {
    if (text.ends_with(kEmDash) || text.ends_with(kEnDash)) {
      text.remove_suffix(kEmDash.size());
    } else if (!text.empty() && std::string_view(" ,:;-").find(text.back()) != kNone) {
      text.remove_suffix(1);
    } else {
      return text;
    }
  }
}

std::string_view LastWord(std::string_view text) {
  std::size_t begin = 0;
  for (std::string_view edge :
       {std::string_view(" "), std::string_view(","), std::string_view("--"), kEmDash, kEnDash}) {
    const std::size_t place = text.rfind(edge);
    if (place != kNone) begin = std::max(begin, place + edge.size());
  }
  return text.substr(begin);
}

// The full stop that ends the note goes, but not that of an abbreviation such as
// "L.A.".
std::string_view WithoutFinalStop(std::string_view text) {
  text = TrimRight(text);
  if (!text.ends_with('.')) return text;
  const std::string_view before = text.substr(0, text.size() - 1);
  const std::string_view word = LastWord(before);
  const bool abbreviation = word.find('.') != kNone || word.size() < 2;
  return abbreviation ? text : before;
}

// --- Years -------------------------------------------------------------------

// Four digits that can be a year, at `place`.
bool YearAt(std::string_view text, std::size_t place) {
  const std::string_view digits = From(text, place).substr(0, 4);
  return digits.size() == 4 && std::all_of(digits.begin(), digits.end(), IsAsciiDigit) &&
         digits >= "1400" && digits < "2100";
}

bool HoldsYear(std::string_view text) {
  const auto is_digit_at = [&](std::size_t i) { return i < text.size() && IsAsciiDigit(text[i]); };
  for (std::size_t i = 0; i + 4 <= text.size(); ++i) {
    const bool inside_number = (i > 0 && is_digit_at(i - 1)) || is_digit_at(i + 4);
    if (YearAt(text, i) && !inside_number) return true;
  }
  return false;
}

// "1998", "c1998", "1998?", "1997-98", "1997/1998", also in brackets.
bool IsYear(std::string_view word) {
  if (word.starts_with('[') && word.ends_with(']')) word = word.substr(1, word.size() - 2);
  if (word.starts_with('c')) word.remove_prefix(1);
  if (!YearAt(word, 0)) return false;
  const std::string_view behind = word.substr(4);
  if (behind.empty() || behind == "?") return true;
  const std::string_view second = behind.substr(1);
  return (behind[0] == '-' || behind[0] == '/') && (second.size() == 2 || second.size() == 4) &&
         std::all_of(second.begin(), second.end(), IsAsciiDigit);
}

std::string_view WithoutParentheses(std::string_view word) {
  const bool enclosed = word.size() > 2 && word.front() == '(' && word.back() == ')';
  return enclosed ? word.substr(1, word.size() - 2) : word;
}

// A text and the year at one end of it.
struct Dated {
  std::string_view text;
  std::string_view year;  // empty when there is none
};

Dated TakeYearFromEnd(std::string_view text, std::string_view date) {
  const std::string_view word = LastWord(text);
  const std::string_view year = WithoutParentheses(word);
  if (!IsYear(year)) return {text, {}};
  const std::string_view before = text.substr(0, text.size() - word.size());
  const std::string_view month = LastWord(TrimRight(before));
  if (IsMonth(month) && before.ends_with(' ')) {
    const std::size_t begin = TrimRight(before).size() - month.size();
    return {BeforeDividers(text.substr(0, begin)), text.substr(begin)};
  }
  const bool divided = year != word || BeforeDividers(before) != TrimRight(before);
  if (!divided && year != date) return {text, {}};
  return {BeforeDividers(before), year};
}

Dated TakeYearFromFront(std::string_view text, std::string_view date) {
  const std::size_t end = std::min(FirstDivider(text), text.find(' '));
  if (end == kNone || end == text.size()) return {text, {}};
  const std::string_view year = WithoutParentheses(text.substr(0, end));
  if (!IsYear(year)) return {text, {}};
  const bool divided = text[end] != ' ' || FirstDivider(text) == end;
  if (!divided && year != date) return {text, {}};
  return {BehindDividers(text.substr(end)), year};
}

// --- The parts of a note -----------------------------------------------------

// The opening words up to the first divider or parenthesis.
struct Head {
  std::string_view before;  // ahead of the word for a thesis
  std::string_view word;
  std::string_view behind;
  bool plain;
};

const ThesisWord* FindThesisWord(std::string_view text) {
  const std::string folded = Fold(text);
  const auto* found = std::find_if(std::begin(kThesisWords), std::end(kThesisWords),
                                   [&](const ThesisWord& w) { return w.folded == folded; });
  return found == std::end(kThesisWords) ? nullptr : found;
}

// Looks for one word, or two that make one ("Inaug. Diss.").
std::optional<Head> ReadHead(std::string_view head) {
  for (std::size_t begin = 0; begin < head.size();) {
    const std::size_t end = std::min(head.find(' ', begin), head.size());
    const std::size_t second_end = std::min(head.find(' ', end + 1), head.size());
    for (std::size_t stop : {second_end, end}) {
      const std::string_view word = head.substr(begin, stop - begin);
      const ThesisWord* known = FindThesisWord(word);
      if (known == nullptr) continue;
      return Head{Trim(head.substr(0, begin)), Trim(word), Trim(head.substr(stop)), known->plain};
    }
    begin = end + 1;
  }
  return std::nullopt;
}

// Puts the head into degree and miscellaneous; false when it says more.
bool SettleHead(const Head& head, ThesisNote& note) {
  if (!head.behind.empty()) {
    if (!IsDegree(head.behind)) return false;
    note.degree = head.behind;
  }
  if (head.before.empty() || (note.degree.empty() && IsDegree(head.before))) {
    if (!head.before.empty()) note.degree = head.before;
    if (!head.plain) note.miscellaneous = head.word;
    return true;
  }
  const char* const end = head.word.data() + head.word.size();
  note.miscellaneous = {head.before.data(), static_cast<std::size_t>(end - head.before.data())};
  return true;
}

// Where the parenthesis that opens the text closes; kNone if it does not.
std::size_t ClosingParenthesis(std::string_view text) {
  int open = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '(') ++open;
    if (text[i] == ')' && --open == 0) return i;
  }
  return kNone;
}

// A degree ahead of a divider, if there is none yet; `text` is then what is
// behind it.
void TakeDegree(std::string_view& text, ThesisNote& note) {
  const std::size_t end = FirstDivider(text);
  if (!note.degree.empty() || end == text.size() || !IsDegree(text.substr(0, end))) return;
  note.degree = Trim(text.substr(0, end));
  text = BehindDividers(text.substr(end));
}

// Reads the parenthesis that `rest` begins with.  When nothing is behind it, the
// whole note is inside; otherwise it holds the degree, the year, or both.
bool ReadParenthesis(std::string_view& rest, ThesisNote& note) {
  const std::size_t close = ClosingParenthesis(rest);
  if (close == kNone || !note.degree.empty()) return false;
  std::string_view inner = Trim(rest.substr(1, close - 1));
  rest = BehindDividers(rest.substr(close + 1));
  if (rest.empty()) {
    TakeDegree(inner, note);
    rest = inner;
    return !note.degree.empty();
  }
  if (IsYear(inner)) {
    note.year = inner;
    return true;
  }
  const Dated dated = TakeYearFromEnd(inner, {});
  note.degree = dated.text;
  note.year = dated.year;
  return !note.degree.empty() && !HoldsYear(note.degree);
}

// True when a word of five letters or more is followed by a full stop and more
// text: a second sentence, not an abbreviation.
bool HoldsSentenceEnd(std::string_view text) {
  for (std::size_t i = text.find(". "); i != kNone; i = text.find(". ", i + 1)) {
    std::size_t letters = 0;
    while (letters < 5 && letters < i && IsAsciiLower(AsciiLower(text[i - 1 - letters]))) ++letters;
    if (letters == 5) return true;
  }
  return false;
}

bool IsInstitution(std::string_view text) {
  if (text.empty() || !(IsAsciiUpper(text[0]) || Octet(text[0]) >= 0x80)) return false;
  return !HoldsYear(text) && !HoldsSentenceEnd(text);
}

// The institution, and the year on either side of it.
bool ReadInstitution(std::string_view text, std::string_view date, ThesisNote& note) {
  text = WithoutFinalStop(text);
  Dated dated = TakeYearFromEnd(text, date);
  if (dated.year.empty()) dated = TakeYearFromFront(text, date);
  if (!dated.year.empty() && !note.year.empty()) return false;
  if (!dated.year.empty()) note.year = dated.year;
  note.institution = dated.text;
  return IsInstitution(note.institution);
}

// The text of the one $a; empty for a text with any other subfield.
std::string_view OnlyA(std::string_view text) {
  if (text.starts_with(kDelimiter)) text = text.substr(1, 1) == "a" ? From(text, 2) : text;
  return text.find(kDelimiter) == kNone ? Trim(text) : std::string_view();
}

}  // namespace

std::optional<ThesisNote> ParseThesisNote(std::string_view text, std::string_view date) {
  const std::string_view whole = OnlyA(text);
  const std::size_t head_end = std::min(FirstDivider(whole), whole.find('('));
  if (head_end == kNone || head_end == whole.size()) return std::nullopt;
  const std::optional<Head> head = ReadHead(whole.substr(0, head_end));
  ThesisNote note;
  if (!head || !SettleHead(*head, note)) return std::nullopt;

  std::string_view rest = whole.substr(head_end);
  if (rest[0] == '(') {
    if (!ReadParenthesis(rest, note)) return std::nullopt;
  } else {
    const bool colon = rest[0] == ':';
    rest = BehindDividers(rest);
    TakeDegree(rest, note);
    // "Thesis: ..." may introduce anything.
    if (colon && note.degree.empty()) return std::nullopt;
  }
  if (!ReadInstitution(rest, date, note)) return std::nullopt;
  return note;
}

bool Utf8MarcRecordClass::ParseThesisNote(std::string_view text, std::string_view date,
                                          std::string& degree, std::string& miscellaneous,
                                          std::string& institution, std::string& year) {
  const std::optional<ThesisNote> found = cantorel::ParseThesisNote(text, date);
  const ThesisNote note = found.value_or(ThesisNote());
  const std::string parts[] = {std::string(note.degree), std::string(note.miscellaneous),
                               std::string(note.institution), std::string(note.year)};
  degree = parts[0];
  miscellaneous = parts[1];
  institution = parts[2];
  year = parts[3];
  return found.has_value();
}

}  // namespace cantorel

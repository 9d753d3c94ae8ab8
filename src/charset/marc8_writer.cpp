#include "charset/marc8_writer.h"

#include <algorithm>

#include "charset/combining_marks.h"
#include "charset/marc8_escape.h"
#include "charset/marc_control.h"
#include "charset/numeric_notation.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

// Superscripts, subscripts and Greek symbols are signs in Latin text.
bool IsScript(Marc8Set set) {
  return set >= Marc8Set::kHebrew;
}

bool IsExtended(Marc8Set set) {
  return set == Marc8Set::kExtendedCyrillic || set == Marc8Set::kExtendedArabic;
}

// What 066 and $6 call a set: the extended sets, too, by their G0 code.
std::string ScriptCode(Marc8Set set) {
  std::string code(Marc8LongCode(set));
  if (code.starts_with(')')) code[0] = '(';
  return code;
}

// Where a $6 and its text begin and end in a field text.
std::string_view TextOfLink(std::string_view field) {
  static constexpr std::string_view kLink =
      "\x1F"
      "6";
  const std::size_t start = field.find(kLink);
  if (start == std::string_view::npos) return {};
  const std::string_view rest = field.substr(start + kLink.size());
  return rest.substr(0, rest.find(kDelimiter));
}

// The script code in the text of a $6, "(N" in "245-01/(N/r"; empty without one.
std::string_view ScriptOfLink(std::string_view link) {
  const std::size_t slash = link.find('/');
  if (slash == std::string_view::npos) return {};
  const std::string_view code = link.substr(slash + 1, link.find('/', slash + 1) - slash - 1);
  return code.size() == 2 && (code[0] == '(' || code[0] == '$') ? code : std::string_view();
}

// One character and its octets; octets that are none stand for themselves.
struct Character {
  std::uint32_t code_point;
  std::size_t length;
  bool well_formed;
};

Character CharacterAt(std::string_view text, std::size_t position) {
  const std::string_view octets = Utf8CharAt(text, position);
  const std::uint32_t code_point = Utf8CodePoint(octets);
  if (code_point == kNoCodePoint) return {Octet(text[position]), 1, false};
  return {code_point, octets.size(), true};
}

// The halves of a double mark; 0 for any other character.
struct MarkHalves {
  std::uint32_t left;
  std::uint32_t right;
};

MarkHalves HalvesOf(std::uint32_t code_point) {
  if (code_point == kDoubleTilde) return {kDoubleTildeLeft, kDoubleTildeRight};
  if (code_point == kDoubleLigature) return {kLigatureLeft, kLigatureRight};
  return {0, 0};
}

bool IsMark(std::uint32_t code_point) {
  return MarkClass(code_point) != kNoMark || HalvesOf(code_point).left != 0;
}

// Whether text goes on in a way that only the Greek set has, past further letters
// that are Greek symbols, too, and marks.
bool IsInGreekWord(std::string_view rest) {
  for (std::size_t i = 0; i < rest.size();) {
    const Character next = CharacterAt(rest, i);
    Marc8Form form;
    const bool symbol = Marc8FormOf(next.code_point, form) && form.set == Marc8Set::kGreekSymbols;
    if (!symbol && !IsMark(next.code_point)) return form.set == Marc8Set::kGreek;
    i += next.length;
  }
  return false;
}

}  // namespace

// --- The sets used -------------------------------------------------------------

void Marc8SetsUsed::Add(Marc8Set set) {
  const auto end = sets_.begin() + static_cast<std::ptrdiff_t>(count_);
  if (std::find(sets_.begin(), end, set) == end) sets_[count_++] = set;
}

void Marc8SetsUsed::Add(const Marc8SetsUsed& others) {
  for (std::size_t i = 0; i < others.count_; ++i) Add(others.sets_[i]);
}

std::string Marc8SetsUsed::FieldText() const {
  std::string text;
  for (std::size_t i = 0; i < count_; ++i) {
    if (!IsScript(sets_[i])) continue;
    text += kDelimiter;
    text += 'c';
    text += ScriptCode(sets_[i]);
  }
  return text;
}

std::string_view Marc8SetsUsed::Script() const {
  for (std::size_t i = 0; i < count_; ++i) {
    if (sets_[i] == Marc8Set::kExtendedCyrillic) return Marc8LongCode(Marc8Set::kCyrillic);
    if (sets_[i] == Marc8Set::kExtendedArabic) return Marc8LongCode(Marc8Set::kArabic);
    if (IsScript(sets_[i])) return Marc8LongCode(sets_[i]);
  }
  return {};
}

bool IsSameInUtf8(std::string_view text) {
  return IsAscii(text) && text.find(kEscape) == std::string_view::npos;
}

// --- The field -----------------------------------------------------------------

void Marc8Writer::Write(std::string_view text) {
  const std::size_t field_start = out_.size();
  Marc8Half script(ScriptOfLink(is_880_ ? TextOfLink(text) : std::string_view()));
  if (script.known) script_ = script.designation.set;
  while (true) {
    const std::string_view subfield = text.substr(0, text.find(kDelimiter));
    WriteSubfield(subfield);
    text.remove_prefix(subfield.size());
    if (text.empty()) break;
    // The delimiter, and the code if one stands behind it.
    const std::size_t opening = text.size() > 1 && text[1] != kDelimiter ? 2 : 1;
    out_.append(text, 0, opening);
    text.remove_prefix(opening);
  }
  if (is_880_) SetScriptOfLink(field_start);
}

// The script that a $6 names becomes the first one used in the field.
void Marc8Writer::SetScriptOfLink(std::size_t field_start) {
  const std::string_view field = std::string_view(out_).substr(field_start);
  const std::string_view code = ScriptOfLink(TextOfLink(field));
  const std::string_view used = used_.Script();
  if (code.empty() || used.empty()) return;
  const auto place = static_cast<std::size_t>(code.data() - out_.data());
  out_.replace(place, code.size(), used);
}

void Marc8Writer::WriteSubfield(std::string_view text) {
  right_half_ = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (set_ == Marc8Set::kLatin && right_half_ == 0) {
      i = WriteAscii(text, i);
      if (i == text.size()) break;
    }
    const Cluster cluster = ReadCluster(text, i);
    WriteCluster(cluster, text.substr(cluster.end));
    i = cluster.end;
  }
  SwitchTo(Marc8Set::kLatin);
}

// Copies ASCII from a position on as far as it goes, but for a letter that marks
// follow, and tells where that is.
std::size_t Marc8Writer::WriteAscii(std::string_view text, std::size_t from) {
  std::size_t end = from;
  while (end < text.size() && Octet(text[end]) < 0x80 && text[end] != kEscape) ++end;
  const bool marked = end > from && end < text.size() && text[end] != kEscape &&
                      IsMark(CharacterAt(text, end).code_point);
  if (marked) --end;
  out_.append(text, from, end - from);
  return end;
}

// --- One letter and its marks --------------------------------------------------

// Leaves the marks in `marks_`.
Marc8Writer::Cluster Marc8Writer::ReadCluster(std::string_view text, std::size_t from) {
  const Character base = CharacterAt(text, from);
  std::size_t end = from + base.length;
  const std::uint32_t half_before = right_half_;
  right_half_ = 0;
  marks_.Clear();
  while (end < text.size()) {
    const Character mark = CharacterAt(text, end);
    if (!IsMark(mark.code_point) || !mark.well_formed) break;
    if (const MarkHalves halves = HalvesOf(mark.code_point); halves.left != 0) {
      marks_.Add(halves.left, MarkClass(halves.left));
      right_half_ = halves.right;
    } else {
      marks_.Add(mark.code_point, MarkClass(mark.code_point));
    }
    end += mark.length;
  }
  if (half_before != 0) marks_.Add(half_before, MarkClass(half_before));
  return {base.code_point, base.well_formed, end};
}

void Marc8Writer::WriteCluster(const Cluster& cluster, std::string_view rest) {
  Marc8Form form;
  if (IsUnwritable(cluster, rest) || !ChooseForm(cluster.base, rest, form)) {
    return WriteAsNotation(cluster.base);
  }
  if (!marks_.Empty()) WriteMarks(form.set);
  SwitchTo(form.set);
  out_ += form.Octets();
}

// Marks cannot be put in front of a notation, so they follow it as notations.
void Marc8Writer::WriteAsNotation(std::uint32_t base) {
  SwitchTo(Marc8Set::kLatin);
  AppendNotation(base, out_);
  for (const PendingMark& mark : marks_.InOrderOfArrival()) AppendNotation(mark.code_point, out_);
}

// Octets that are no character; a mark without a letter, which another letter
// would take; an escape that would be read as the beginning of a sequence.
bool Marc8Writer::IsUnwritable(const Cluster& cluster, std::string_view rest) const {
  if (!cluster.well_formed || IsMark(cluster.base)) return true;
  if (cluster.base != static_cast<std::uint32_t>(kEscape)) return false;
  static constexpr std::string_view kOpensSequence = "spgb()$!";
  return set_ != Marc8Set::kLatin ||
         (!rest.empty() && kOpensSequence.find(rest[0]) != std::string_view::npos);
}

void Marc8Writer::WriteMarks(Marc8Set base_set) {
  const bool with_base = is_880_ && base_set != Marc8Set::kLatin && MarksStandIn(base_set);
  const Marc8Set set = with_base ? base_set : Marc8Set::kLatin;
  SwitchTo(set);
  for (const PendingMark& mark : marks_.InOrderOfMarc8()) {
    Marc8Form form;
    if (Marc8FormIn(mark.code_point, set, form)) out_ += form.Octets();
  }
}

bool Marc8Writer::MarksStandIn(Marc8Set set) const {
  const std::vector<PendingMark>& marks = marks_.InOrderOfArrival();
  return std::all_of(marks.begin(), marks.end(), [set](const PendingMark& mark) {
    Marc8Form form;
    return Marc8FormIn(mark.code_point, set, form);
  });
}

// The form in the set in force; else, in an 880, in that of its script; else in
// the first set.  `rest` is the text behind the character.  Blanks and controls,
// which every set has, stay in a script but return from single signs.
bool Marc8Writer::ChooseForm(std::uint32_t code_point, std::string_view rest,
                             Marc8Form& form) const {
  if (IsScript(set_) && Marc8FormIn(code_point, set_, form)) return true;
  if (!Marc8FormOf(letter_, code_point, form)) return false;
  if (form.set == Marc8Set::kLatin || form.set == set_) return true;
  if (script_ != Marc8Set::kLatin && Marc8FormIn(code_point, script_, form)) return true;
  if (form.set == Marc8Set::kGreekSymbols && IsInGreekWord(rest)) {
    Marc8FormIn(code_point, Marc8Set::kGreek, form);
  }
  return true;
}

// Puts a set in force.  An extended set comes in force as G1: it cannot stand
// beside a multi-octet G0, and behind it Latin needs its own designation there.
void Marc8Writer::SwitchTo(Marc8Set set) {
  if (set == set_) return;
  if (IsExtended(set) && set_ == Marc8Set::kEacc) SwitchTo(Marc8Set::kLatin);
  if (set == Marc8Set::kLatin && g1_moved_) {
    out_ += kEscape;
    out_ += ")!E";
    g1_moved_ = false;
  }
  out_ += kEscape;
  out_ += Marc8LongCode(set);
  g1_moved_ = g1_moved_ || IsExtended(set);
  set_ = set;
  used_.Add(set);
}

}  // namespace cantorel

#include "charset/marc8_reader.h"

#include "charset/combining_marks.h"
#include "charset/marc_control.h"
#include "charset/numeric_notation.h"
#include "charset/octet_scan.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::size_t kEaccOctets = 3;

// Sets in which a mark is always one; elsewhere only in an 880.
bool IsLatinFamily(Marc8Set set) {
  return set <= Marc8Set::kSuperscripts;
}

// Ends a run of text in one multi-octet set.
bool EndsRun(char c) {
  return c == kEscape || c == kDelimiter;
}

}  // namespace

bool IsSameInMarc8(std::string_view text) {
  for (std::size_t i = FindMarc8Sign(text, 0); i < text.size(); i = FindMarc8Sign(text, i + 1)) {
    if (text[i] != '&' || text.substr(i + 1, 1) == "#") return false;
  }
  return true;
}

void Marc8Reader::Read(std::string_view text) {
  while (!text.empty()) {
    if (text[0] != kEscape) sets_.Settle();
    if (sets_.BothAreLatin() && marks_.Empty()) {
      const std::size_t plain = FindMarc8Sign(text, 0);
      out_.append(text, 0, plain);
      text.remove_prefix(plain);
      if (text.empty()) break;
    }
    ReadOne(text);
  }
  Flush();
}

void Marc8Reader::ReadOne(std::string_view& text) {
  if (!out_.empty() && out_.back() == kDelimiter && text[0] != kDelimiter) {
    // A subfield code is no text.
    out_ += text[0];
    text.remove_prefix(1);
    return;
  }
  if (text[0] == kDelimiter) return ReadDelimiter(text);
  if (text[0] == kEscape && ReadEscape(text)) return;
  if (text[0] == '&' && ReadNotation(text)) return;
  ReadCharacter(text);
}

void Marc8Reader::ReadDelimiter(std::string_view& text) {
  Flush();
  sets_.Reset();
  out_ += kDelimiter;
  text.remove_prefix(1);
}

// Marks in front of an escape out of Latin belong to the letter behind it.
bool Marc8Reader::ReadEscape(std::string_view& text) {
  Marc8Escape escape;
  if (!ReadMarc8Escape(text, escape)) return false;
  if (!sets_.G0IsLatin()) Flush();
  sets_.Take(escape);
  text.remove_prefix(escape.length);
  return true;
}

bool Marc8Reader::ReadNotation(std::string_view& text) {
  NumericNotation notation;
  if (!ReadHexNotation(text, notation)) return false;
  Flush();
  AppendUtf8(notation.code_point, out_);
  text.remove_prefix(notation.length);
  return true;
}

void Marc8Reader::ReadCharacter(std::string_view& text) {
  sets_.Settle();
  const std::size_t length = CharacterLength(text);
  const std::string_view octets = text.substr(0, length);
  text.remove_prefix(length);
  const bool multi_octet = sets_.G0().designation.set == Marc8Set::kEacc;
  const Marc8Half& half = Octet(octets[0]) < 0x80 || multi_octet ? sets_.G0() : sets_.G1();
  const std::uint32_t code_point =
      half.known ? UcsOfMarc8Octets(letter_, half.designation, octets) : kNoCodePoint;
  if (code_point == kNoCodePoint) return PutToken(octets);
  Put(code_point, half.designation.set);
}

// The octets of one character: three in a multi-octet set, or what is left of
// its run; a blank or control is one octet there, too.
std::size_t Marc8Reader::CharacterLength(std::string_view text) const {
  if (sets_.G0().designation.set != Marc8Set::kEacc || Octet(text[0]) <= ' ') return 1;
  std::size_t length = 1;
  while (length < kEaccOctets && length < text.size() && !EndsRun(text[length])) ++length;
  return length;
}

void Marc8Reader::Put(std::uint32_t code_point, Marc8Set set) {
  const std::uint8_t mark_class = MarkClass(code_point);
  if (mark_class != kNoMark && (is_880_ || IsLatinFamily(set))) {
    marks_.Add(code_point, mark_class);
    return;
  }
  // A mark that stays where it stood does not take those waiting along.
  if (mark_class != kNoMark) Flush();
  AppendUtf8(code_point, out_);
  Flush();
}

void Marc8Reader::PutToken(std::string_view octets) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  error_ = true;
  out_ += "[MARC+";
  for (char c : octets) {
    out_ += kDigits[Octet(c) >> 4];
    out_ += kDigits[Octet(c) & 0xF];
  }
  out_ += ']';
}

void Marc8Reader::Flush() {
  if (marks_.Empty()) return;
  for (const PendingMark& mark : marks_.InOrderOfUtf8()) AppendUtf8(mark.code_point, out_);
  marks_.Clear();
}

}  // namespace cantorel

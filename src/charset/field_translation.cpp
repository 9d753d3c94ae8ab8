// The text of one field between character sets, as members of the record.

#include <cstddef>
#include <string>
#include <string_view>

#include "charset/double_marks.h"
#include "charset/marc8_category.h"
#include "charset/marc8_escape.h"
#include "charset/marc8_mapping.h"
#include "charset/marc8_reader.h"
#include "charset/marc8_writer.h"
#include "charset/marc_control.h"
#include "charset/numeric_notation.h"
#include "charset/octet_text.h"
#include "charset/right_to_left.h"
#include "charset/utf8.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view k880 = "880";
constexpr unsigned char kFirstMarkOctet = 224;

// --- Nonfiling characters ------------------------------------------------------

bool IsOneOf(std::string_view tag, std::string_view tags) {
  return tag.size() == 3 && tags.find(tag) != std::string_view::npos;
}

// Which indicator counts nonfiling characters, from 0; npos for none.
std::size_t NonfilingIndicator(std::string_view format, std::string_view tag) {
  if (format == "H") return std::string_view::npos;
  if (format == "A") return IsOneOf(tag, "130 430 530") ? 1 : std::string_view::npos;
  if (IsOneOf(tag, "130 430 630 730")) return 0;
  return IsOneOf(tag, "222 240 242 243 245 440 830") ? 1 : std::string_view::npos;
}

// Counts marks out that stand at the end of the nonfiling characters: they
// belong to the letter behind, which MARC-8 writes them in front of.
bool CorrectNonfilingCount(std::string_view format, std::string_view tag, std::string_view text,
                           std::string& indicators) {
  const std::size_t place = NonfilingIndicator(format, tag);
  if (place >= indicators.size() || !IsAsciiDigit(indicators[place])) return false;
  const auto count = static_cast<std::size_t>(indicators[place] - '0');
  const std::string_view front = From(text, 2).substr(0, count);
  std::size_t length = front.size();
  while (length > 0 && Octet(front[length - 1]) >= kFirstMarkOctet) --length;
  if (length == front.size()) return false;
  indicators[place] = static_cast<char>('0' + length);
  return true;
}

}  // namespace

// --- From MARC-8 -----------------------------------------------------------------

void Utf8MarcRecordClass::TranslateMarc2Utf8OneField(std::string_view format, std::string_view tag,
                                                     std::string& indicators, std::string& text,
                                                     bool& changed, bool& error) {
  changed = error = false;
  if (IsSameInMarc8(text)) return;
  changed = CorrectNonfilingCount(format, tag, text, indicators);
  translated_.clear();
  Marc8Reader reader(CharacterSetIn()[0], tag == k880, pending_marks_, translated_);
  reader.Read(text);
  error = reader.Error();
  if (use_double_width_diacritics_) translated_ = AdjustDoubleHalfDiacritics(translated_);
  ReplaceNotations(translated_);
  if (lc_pattern_) translated_ = TranslateMarc2Utf8OneFieldLcPattern(tag, translated_);
  changed = changed || translated_ != text;
  text.swap(translated_);
}

void Utf8MarcRecordClass::TranslateMarc2Utf8Text(std::string_view g0, std::string_view g1,
                                                 std::string_view tag, std::string& text,
                                                 bool& changed, bool& error) {
  translated_.clear();
  Marc8Reader reader(CharacterSetIn()[0], tag == k880, pending_marks_, translated_);
  reader.Sets().Assign(Marc8Half(g0), Marc8Half(g1));
  reader.Read(text);
  error = reader.Error();
  changed = translated_ != text;
  text.swap(translated_);
}

void Utf8MarcRecordClass::TranslateMarc2Utf8OneFieldFindBreakAdjustCode(std::string& code,
                                                                        std::int32_t position,
                                                                        std::string& text) {
  if (position < 1) return;
  const std::string_view tail = From(text, static_cast<std::size_t>(position) - 1);
  Marc8Escape escape;
  if (!ReadMarc8Escape(tail, escape)) return;
  code = escape.Code();
  text = std::string(tail.substr(escape.length));
}

void Utf8MarcRecordClass::TranslateMarc2Utf8HexNotation(std::string& text) {
  ReplaceNotations(text);
}

std::string Utf8MarcRecordClass::TranslateMarc2Utf8OneFieldLcPattern(std::string_view tag,
                                                                     std::string_view text) {
  if (tag != k880 || !HasRightToLeftText(text)) return std::string(text);
  return MarkDirections(text);
}

std::string Utf8MarcRecordClass::Hex2CharString(std::string_view text) {
  std::string octets;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    octets += Utf8CharClass::Hex2Char(text.substr(i, 2));
  }
  return octets;
}

// --- To MARC-8 -------------------------------------------------------------------

void Utf8MarcRecordClass::TranslateUtf82MarcOneField(std::string_view tag, std::string&,
                                                     std::string& text, bool& changed, bool& error,
                                                     std::string_view set_out) {
  changed = error = false;
  if (IsSameInUtf8(text)) return;
  const char letter = set_out.empty() ? 'M' : set_out[0];
  translated_.clear();
  Marc8Writer writer(letter, tag == k880, pending_marks_, translated_);
  writer.Write(text);
  sets_used_.Add(writer.Used());
  changed = translated_ != text;
  text.swap(translated_);
}

std::string Utf8MarcRecordClass::AdjustDoubleHalfDiacritics(std::string_view text) const {
  if (use_double_width_diacritics_) return JoinHalfMarks(text);
  return MayHoldMistakenDoubleMarks(text) ? SplitMistakenDoubleMarks(text) : std::string(text);
}

bool Utf8MarcRecordClass::Utf8TextContainsOnlyMarc8Characters(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    if (Octet(text[i]) < 0x80) continue;
    const char category = Marc8CategoryOfCodePoint(Utf8CodePoint(Utf8CharAt(text, i)));
    if (category != '1' && category != '3') return false;
  }
  return true;
}

// --- Between the 8-bit variants ----------------------------------------------------

void Utf8MarcRecordClass::SetUpTranslation(std::int32_t pair) {
  octet_table_ = OctetTableOf(pair);
}

std::string Utf8MarcRecordClass::Translate880FieldTranslateThePiece(std::string_view piece) const {
  return octet_table_ == nullptr ? std::string(piece) : ReplaceOctets(piece, *octet_table_);
}

}  // namespace cantorel

#include "cli/record_marcxml.h"

#include <algorithm>
#include <utility>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "display/marcxml_schema.h"

namespace cantorel::cli {
namespace {

constexpr std::string_view kSubstituteCode = "?";

// A text in a line of its own, octets other than printable ASCII as "\x9F".
std::string Printable(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string line;
  for (const char c : text) {
    if (c >= ' ' && c < '\x7F') {
      line += c;
    } else {
      line.append("\\x") += kDigits[Octet(c) >> 4];
      line += kDigits[Octet(c) & 15];
    }
  }
  return line;
}

std::string Quoted(std::string_view text) {
  return '"' + Printable(text) + '"';
}

}  // namespace

void MarcXmlRecords::Append(Utf8Fields& record) {
  repairs_.clear();
  lost_field_ = false;
  AppendLeader(record);
  Utf8Field field;
  record.Rewind();
  while (record.Next(field)) {
    if (field.is_control) AppendControlField(field);
  }
  record.Rewind();
  while (record.Next(field)) {
    // A record that is in UTF-8 now has no sets of characters to tell of.
    if (record.IsTranslated() && field.tag == "066") continue;
    if (!field.is_control) AppendDataField(field);
  }
  writer_.EndRecord();
}

void MarcXmlRecords::AppendLeader(const Utf8Fields& record) {
  std::string leader(record.Leader());
  if (record.IsTranslated()) leader[9] = 'a';
  const std::string before = leader;
  if (FitLeader(leader)) Note("leader", Quoted(before) + " became " + Quoted(leader));
  writer_.BeginRecord(leader);
}

void MarcXmlRecords::AppendControlField(const Utf8Field& field) {
  if (!FitsControlTag(field.tag)) return LeaveOut(field);
  writer_.AddControlField(field.tag, field.text);
  NoteCharacters(field.tag);
}

void MarcXmlRecords::AppendDataField(const Utf8Field& field) {
  if (!FitsDataTag(field.tag)) return LeaveOut(field);
  if (field.text.find_first_not_of(" \x1F") == field.text.npos) {
    return Note(field.tag, "a field without text was left out");
  }
  char indicators[2] = {' ', ' '};
  std::copy(field.indicators.begin(), field.indicators.end(), indicators);
  for (char& indicator : indicators) {
    if (FitsIndicator(indicator)) continue;
    Note(field.tag, "indicator " + Quoted({&indicator, 1}) + " became blank");
    indicator = ' ';
  }
  if (field.has_tokens) Note(field.tag, "octets that are no characters stand as [MARC+...]");
  writer_.BeginDataField(field.tag, {indicators, 2});
  AppendSubfields(field.tag, field.text);
  writer_.EndDataField();
  NoteCharacters(field.tag);
}

void MarcXmlRecords::AppendSubfields(std::string_view tag, std::string_view text) {
  const std::size_t first = std::min(text.find(kDelimiter), text.size());
  if (first > 0) AppendBareText(tag, text.substr(0, first));
  text.remove_prefix(first);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(kDelimiter, 1), text.size());
    AppendSubfield(tag, text.substr(1, end - 1));
    text.remove_prefix(end);
  }
}

// Text ahead of the first delimiter.
void MarcXmlRecords::AppendBareText(std::string_view tag, std::string_view text) {
  if (Trim(text).empty()) return Note(tag, "blanks ahead of the subfields were left out");
  Note(tag, "text ahead of the subfields became $a");
  writer_.AddSubfield("a", text);
}

// `subfield` is code and text.
void MarcXmlRecords::AppendSubfield(std::string_view tag, std::string_view subfield) {
  if (subfield.empty()) return Note(tag, "a delimiter without code was left out");
  const std::string_view code = subfield.substr(0, 1);
  if (FitsCode(code[0])) return writer_.AddSubfield(code, subfield.substr(1));
  // An octet beyond ASCII begins the text of a subfield that lost its code.
  const bool is_text = !IsAscii(code);
  Note(tag, is_text ? "text without code became $?" : "code " + Quoted(code) + " became $?");
  writer_.AddSubfield(kSubstituteCode, is_text ? subfield : subfield.substr(1));
}

void MarcXmlRecords::NoteCharacters(std::string_view place) {
  const std::size_t count = writer_.TakeRepairs();
  if (count == 0) return;
  Note(place, std::to_string(count) + (count == 1 ? " character was" : " characters were") +
                  " no UTF-8 or not allowed in XML");
}

void MarcXmlRecords::LeaveOut(const Utf8Field& field) {
  lost_field_ = true;
  Note(field.tag, "a field with this tag cannot be written and was left out");
}

void MarcXmlRecords::Note(std::string_view place, std::string what) {
  repairs_.push_back({Printable(place), std::move(what)});
}

}  // namespace cantorel::cli

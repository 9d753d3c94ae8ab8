// A record from MARCXML.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/utf8.h"
#include "display/marcxml_scanner.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::size_t kLeaderLength = 24;

std::string_view PrefixIn(std::string_view marcxml) {
  for (const std::string_view prefix : {"marc:", "marcxml:"}) {
    for (std::size_t i = marcxml.find(prefix); i != marcxml.npos; i = marcxml.find(prefix, i + 1)) {
      if (i > 0 && marcxml[i - 1] == '<') return prefix;
    }
  }
  return {};
}

// Leader positions (from 0) that a new record of the format takes over.
std::string_view CarriedPositions(char format) {
  switch (format) {
    case 'A':
      return "\x11";
    case 'H':
      return "\x11\x12";
    default:
      return "\x11\x12\x13";
  }
}

// Line ends, which lay out the text that holds the record, and octets that would
// build fields.
bool IsNoText(char c) {
  return Octet(c) < ' ' && (c == '\n' || c == '\r' || c == '\0' || c == kDelimiter ||
                            c == kEndOfField || c == kEndOfRecord);
}

std::string WithoutNoText(std::string_view text) {
  std::string kept(text);
  std::erase_if(kept, IsNoText);
  return kept;
}

void BeginRecord(std::string_view text, Utf8MarcRecordClass& record) {
  std::string leader(text.substr(0, kLeaderLength));
  leader.resize(kLeaderLength, ' ');
  std::replace_if(leader.begin(), leader.end(), IsNoText, ' ');
  record.NewRecord(leader.substr(6, 1), leader.substr(7, 1));
  for (const char position : CarriedPositions(record.MarcRecordFormat()[0])) {
    record.ChangeLeaderValue(position, leader.substr(static_cast<std::size_t>(position), 1));
  }
}

// The 005 and the 008 that every new record has give way to those of the text.
void AddControlField(const MarcXmlPart& part, Utf8MarcRecordClass& record) {
  bool found = false;
  const std::string_view tag = XmlAttribute(part.attributes, "tag", found).substr(0, 3);
  if (!found) return;
  const std::string text = record.XmlUnconditionText(WithoutNoText(part.text));
  if ((tag == "005" || tag == "008") && record.FldFindFirst(tag, {})) return record.FldText(text);
  record.FldAdd(tag, {}, text);
}

// The data field whose subfields are coming in.
class IncomingField {
 public:
  explicit IncomingField(Utf8MarcRecordClass& record) : record_(record) {}

  void Begin(std::string_view attributes) {
    bool found = false;
    tag_ = XmlAttribute(attributes, "tag", found).substr(0, 3);
    indicators_ = Indicator(attributes, "ind1") + Indicator(attributes, "ind2");
    added_ = false;
  }

  // The first subfield adds the field.
  void AddSubfield(const MarcXmlPart& part) {
    bool found = false;
    const std::string code =
        record_.XmlUnconditionText(XmlAttribute(part.attributes, "code", found)).substr(0, 1);
    if (code.empty() || IsNoText(code[0])) return;
    if (!added_ && !AddField()) return;
    bool changed = false;
    record_.SfdAdd(code, record_.XmlUnconditionText(WithoutNoText(
                             record_.DecomposeUnicodeCharactersInString(part.text, changed))));
  }

 private:
  static std::string Indicator(std::string_view attributes, std::string_view name) {
    bool found = false;
    const std::string_view value = XmlAttribute(attributes, name, found).substr(0, 1);
    return value.empty() ? " " : std::string(value);
  }

  // False for a field that the record refuses.
  bool AddField() {
    const std::int16_t before = record_.FieldCount();
    record_.FldAdd(tag_, indicators_, {});
    added_ = record_.FieldCount() > before;
    return added_;
  }

  Utf8MarcRecordClass& record_;
  std::string_view tag_;
  std::string indicators_;
  bool added_ = false;
};

}  // namespace

void Utf8MarcRecordClass::XmlRecordIn(std::string_view marcxml) {
  MarcRecordIn({});
  const std::string_view prefix = PrefixIn(marcxml);
  MarcXmlPart part;
  MarcXmlScanner leader(marcxml, prefix);
  do {
    if (!leader.Next(part)) return;
  } while (part.kind != MarcXmlPart::kLeader);
  BeginRecord(part.text, *this);

  MarcXmlScanner control_fields(marcxml, prefix);
  while (control_fields.Next(part)) {
    if (part.kind == MarcXmlPart::kControlField) AddControlField(part, *this);
  }
  MarcXmlScanner data_fields(marcxml, prefix);
  IncomingField field(*this);
  while (data_fields.Next(part)) {
    if (part.kind == MarcXmlPart::kDataField) field.Begin(part.attributes);
    if (part.kind == MarcXmlPart::kSubfield) field.AddSubfield(part);
  }
}

}  // namespace cantorel

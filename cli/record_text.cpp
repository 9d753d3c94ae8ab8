#include "cli/record_text.h"

#include <string_view>

#include "cli/colours.h"
#include "cli/field_text.h"

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\x1F';

void AppendField(const Utf8Field& field, bool colours, std::string& out) {
  AppendReadableField(field.tag, field.indicators, {}, out, colours);
  // What no subfield holds: a control field, and the damage of a data field.
  const std::string_view bare = field.text.substr(0, field.text.find(kDelimiter));
  if (!bare.empty()) out.append(field.is_control ? "" : " ").append(bare);
  AppendReadableSubfields(field.text, out, colours);
  out += '\n';
}

}  // namespace

void AppendRecordText(Utf8Fields& record, std::string& out, bool colours) {
  AppendColoured(colours, kBold, "LDR", out);
  out.append(" ").append(record.Leader()).append("\n");
  record.Rewind();
  for (Utf8Field field; record.Next(field);) AppendField(field, colours, out);
  out += '\n';
}

}  // namespace cantorel::cli

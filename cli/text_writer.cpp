#include <algorithm>
#include <string>
#include <string_view>

#include "cli/answer_writers.h"
#include "cli/field_text.h"
#include "service/cantorel_class.h"

namespace cantorel::cli {
namespace {

// Why a record has neither fields nor messages; empty when it may have some.
std::string_view Refusal(std::int32_t result) {
  switch (result) {
    case kNoIncomingData:
      return "empty";
    case kFirstLineTooShort:
      return "the first line has no record type and level";
    case kNotMusic:
      return "not a record of music";
    default:
      return "";
  }
}

// Control number and title; the number of a record that has neither.
std::string Heading(const RecordAnswer& answer) {
  if (answer.control_number.empty() && answer.title.empty()) {
    return "record " + std::to_string(answer.record);
  }
  if (answer.control_number.empty()) return answer.title;
  if (answer.title.empty()) return answer.control_number;
  return answer.control_number + "  " + answer.title;
}

void AppendField(const FieldAnswer& field, std::string& out) {
  out += field.IsReplacement() ? "  replace  " : "  add      ";
  AppendReadableField(field.tag, field.indicators, field.text, out);
  if (field.IsReplacement()) out += "  (field " + std::to_string(field.id) + ")";
  out += '\n';
}

void AppendMessage(const MessageAnswer& message, std::string& out) {
  out.append("  message  ").append(message.type_name);
  if (!message.text.empty()) out.append(": ").append(message.text);
  if (!message.terms.empty()) out.append(": ").append(message.terms);
  if (message.instances > 0) out += " (" + std::to_string(message.instances) + " times)";
  out += '\n';
}

}  // namespace

void AppendText(const RecordAnswer& answer, std::string& out) {
  out += Heading(answer);
  out += '\n';

  for (const FieldAnswer& field : answer.fields) AppendField(field, out);
  for (const MessageAnswer& message : answer.messages) AppendMessage(message, out);
  if (const std::string_view refusal = Refusal(answer.result); !refusal.empty()) {
    out.append("  nothing  ").append(refusal).append("\n");
  } else if (answer.fields.empty()) {
    out += "  nothing  to add or replace\n";
  }
  out += '\n';
}

}  // namespace cantorel::cli

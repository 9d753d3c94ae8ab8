#include <nlohmann/json.hpp>
#include <string>

#include "cli/answer_writers.h"

namespace cantorel::cli {
namespace {

using Json = nlohmann::ordered_json;  // names in the order in which they are put in

Json FieldJson(const FieldAnswer& field) {
  Json subfields = Json::array();
  for (const Subfield& subfield : SplitSubfields(field.text)) {
    subfields.push_back({subfield.code, subfield.text});
  }
  return {{"id", field.id},
          {"action", field.IsReplacement() ? "replace" : "add"},
          {"tag", field.tag},
          {"indicators", field.indicators},
          {"subfields", std::move(subfields)}};
}

Json MessageJson(const MessageAnswer& message) {
  return {{"type", message.type},
          {"type_name", message.type_name},
          {"text", message.text},
          {"terms", message.terms},
          {"record_ids", message.record_ids},
          {"instances", message.instances}};
}

}  // namespace

void AppendJson(const RecordAnswer& answer, std::string& out) {
  Json fields = Json::array();
  for (const FieldAnswer& field : answer.fields) fields.push_back(FieldJson(field));
  Json messages = Json::array();
  for (const MessageAnswer& message : answer.messages) messages.push_back(MessageJson(message));

  const Json json = {{"source", answer.source},
                     {"record", answer.record},
                     {"control_number", answer.control_number},
                     {"title", answer.title},
                     {"result", answer.result},
                     {"fields", std::move(fields)},
                     {"messages", std::move(messages)}};
  constexpr int kOneLine = -1;
  constexpr bool kKeepUtf8 = false;
  out += json.dump(kOneLine, ' ', kKeepUtf8, Json::error_handler_t::replace);
  out += '\n';
}

}  // namespace cantorel::cli

#include "cli/ask.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "service/cantorel_class.h"
#include "service/service_objects.h"

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\037';
constexpr std::string_view kTitleCodes = "abnp";
// The title that the component gives to a record of field lines.
constexpr std::string_view kStandInTitle = "\037aFrammis";

// The words of the 245 without the marks that set them off from what follows.
std::string TitleOf(Utf8MarcRecordClass& record) {
  bool found = record.FldFindFirst("245", "");
  while (found && record.FldText() == kStandInTitle) found = record.FldFindNext();
  if (!found) return {};

  std::string title;
  const std::string text = record.FldText();
  for (const Subfield& subfield : SplitSubfields(text)) {
    if (subfield.code.empty() || kTitleCodes.find(subfield.code) == kTitleCodes.npos) continue;
    if (!title.empty()) title += ' ';
    title += subfield.text;
  }
  title.erase(title.find_last_not_of(" /:=;,") + 1);
  return title;
}

void ReadMessages(CantorelClass& cantorel, std::vector<MessageAnswer>& messages) {
  const std::int32_t count = cantorel.ReturnedMessageCount();
  for (std::int32_t index = 1; index <= count; ++index) {
    cantorel.ReturnedMessageIndex(index);
    messages.push_back({cantorel.ReturnedMessageType(), cantorel.ReturnedMessageTypeName(),
                        cantorel.ReturnedMessageText(), cantorel.ReturnedMessageTerms(),
                        cantorel.ReturnedMessageRecordIds(), cantorel.ReturnedMessageInstances()});
    std::string& terms = messages.back().terms;
    std::replace(terms.begin(), terms.end(), kDelimiter, '$');
  }
}

}  // namespace

void AskAboutRecord(CantorelClass& cantorel, std::string_view record, std::int32_t mode,
                    RecordAnswer& answer) {
  answer.result = cantorel.AddFields(record, mode);
  answer.control_number = cantorel.Returned001Field();
  answer.title = TitleOf(TheMarcRecord());
  answer.fields.clear();
  answer.messages.clear();
  // A refused record leaves fields and messages of the one before in place.
  if (answer.result == kFieldsReturned) {
    answer.fields = ParseReturnedFields(cantorel.ReturnedFields());
  }
  if (answer.result >= 0) ReadMessages(cantorel, answer.messages);
}

}  // namespace cantorel::cli

#include "cli/ask.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
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

// Bands of messages whose terms are a heading or a place.
constexpr bool HoldsHeading(std::int32_t type) {
  return type == 1 || type == 3 || type == 5;
}

// The component puts a "$" ahead of every letter "z" of a heading, in words as
// well as in subfield codes.  People and programs are given the heading itself.
void RemoveMarks(std::string& terms) {
  std::string heading;
  for (std::size_t i = 0; i < terms.size(); ++i) {
    if (terms.compare(i, 2, "$z") != 0) heading += terms[i];
  }
  terms = std::move(heading);
}

void ReadMessages(CantorelClass& cantorel, std::vector<MessageAnswer>& messages) {
  const std::int32_t count = cantorel.ReturnedMessageCount();
  for (std::int32_t index = 1; index <= count; ++index) {
    cantorel.ReturnedMessageIndex(index);
    messages.push_back({cantorel.ReturnedMessageType(), cantorel.ReturnedMessageTypeName(),
                        cantorel.ReturnedMessageText(), cantorel.ReturnedMessageTerms(),
                        cantorel.ReturnedMessageRecordIds(), cantorel.ReturnedMessageInstances()});
    std::string& terms = messages.back().terms;
    if (HoldsHeading(messages.back().type)) RemoveMarks(terms);
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

#include "genre/canons_choice.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

SelectionCandidate GenreCandidate(std::string_view term) {
  std::string text(term);
  text += kDelimiter;
  text += "2lcgft";
  return {std::move(text), " 7", "655"};
}

// Tag and text of each candidate, "$" as delimiter.
std::string DisplayOf(const SelectionRequest& request) {
  std::string display;
  for (const SelectionCandidate& candidate : request.candidates) {
    display += candidate.tag + ' ';
    for (const char c : candidate.text) display += c == kDelimiter ? " $" : std::string(1, c);
    display += '\n';
  }
  return display;
}

SelectionRequest CanonsRequest() {
  SelectionRequest request;
  request.caption = "Select 655 field(s) implied by 'Canons, fugues, etc.'";
  request.instruction = "Click on one or more fields, then click 'OK'";
  request.candidates = {GenreCandidate("Canons"), GenreCandidate("Fugues")};
  request.display = DisplayOf(request);
  request.mode = "newrecord382field";
  request.ok_caption = "&OK (Add " + std::to_string(request.candidates.size()) + " lines)";
  request.cancel_caption = "&None";
  request.selection = "1 2";
  return request;
}

void AddCandidate(GenreContext& context, const SelectionCandidate& candidate) {
  Utf8MarcRecordClass& record = context.record;
  record.FldAdd(candidate.tag, candidate.indicators, candidate.text);
  const std::string punctuated_tags = context.music.AddTerminalPunctuationTo();
  if (punctuated_tags.find("655") != std::string::npos && record.SfdFindFirst("a", {})) {
    record.SfdText(record.SfdText() + '.');
  }
  context.music.CorrectRecord382(record);
}

}  // namespace

void ChooseCanons(GenreContext& context, FieldSelector* selector) {
  if (selector == nullptr) return;
  SelectionRequest request = CanonsRequest();
  selector->SelectFields(request);
  if (request.result != kSelectionOk) return;

  std::string_view numbers = request.selection;
  for (std::string_view word = TakeWord(numbers); !word.empty(); word = TakeWord(numbers)) {
    const std::int32_t number = LeadingNumber(word);
    const auto count = static_cast<std::int32_t>(request.candidates.size());
    if (number < 1 || number > count) continue;
    AddCandidate(context, request.candidates[static_cast<std::size_t>(number) - 1]);
  }
}

}  // namespace cantorel

#include "cli/terminal_selector.h"

#include <charconv>
#include <set>

#include "service/service_objects.h"

namespace cantorel::cli {
namespace {

constexpr std::string_view kBetween = " ,\t";

// The next word of `rest`, which loses it; empty at the end.
std::string_view TakeAnswerWord(std::string_view& rest) {
  const std::size_t start = rest.find_first_not_of(kBetween);
  if (start == rest.npos) return {};
  rest.remove_prefix(start);
  const std::string_view word = rest.substr(0, rest.find_first_of(kBetween));
  rest.remove_prefix(word.size());
  return word;
}

std::string Question(const SelectionRequest& request) {
  std::string question = '\n' + request.caption + '\n';
  const std::string control_number = TheMusicSession().returned_001_text;
  if (!control_number.empty()) question += "Record " + control_number + '\n';
  std::string_view lines = request.display;
  for (std::size_t number = 1; number <= request.candidates.size(); ++number) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(line.size() + (line.size() < lines.size() ? 1 : 0));
    question += "  " + std::to_string(number) + "  ";
    question += line;
    question += '\n';
  }
  return question + "Numbers of the lines to add, or none [" + request.selection + "]: ";
}

}  // namespace

bool ReadSelection(std::string_view answer, std::size_t count, std::string& selection) {
  std::set<std::size_t> numbers;
  bool none = false;
  for (std::string_view word = TakeAnswerWord(answer); !word.empty();
       word = TakeAnswerWord(answer)) {
    std::size_t number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    const bool is_number = error == std::errc() && stop == end;
    if (word == "none" || (is_number && number == 0)) {
      none = true;
    } else if (is_number && number <= count) {
      numbers.insert(number);
    } else {
      return false;
    }
  }
  if (none && !numbers.empty()) return false;
  if (!none && numbers.empty()) return true;
  selection.clear();
  for (const std::size_t number : numbers) {
    if (!selection.empty()) selection += ' ';
    selection += std::to_string(number);
  }
  return true;
}

void TerminalSelector::SelectFields(SelectionRequest& request) {
  const std::string question = Question(request);
  request.result = kSelectionCancelled;
  std::string answer;
  do {
    terminal_.Write(question);
    if (!terminal_.ReadLine(answer)) return;
  } while (!ReadSelection(answer, request.candidates.size(), request.selection));
  request.result = kSelectionOk;
}

}  // namespace cantorel::cli

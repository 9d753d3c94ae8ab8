// The form in which a cataloguer picks fields from a list.
//
// A conversion fills the request and calls SelectFields, which a host answers by
// any means: a window, a prompt in a terminal, a fixed choice.  Without a host
// that answers, the choice counts as cancelled.

#ifndef CANTOREL_PLATFORM_FIELD_SELECTION_H_
#define CANTOREL_PLATFORM_FIELD_SELECTION_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel {

// Results of a selection.
inline constexpr std::string_view kSelectionOk = "OK";
inline constexpr std::string_view kSelectionCancelled = "CANCEL";

struct SelectionCandidate {
  std::string text;  // field text behind the indicators; octet 31 is the delimiter
  std::string indicators;
  std::string tag;
};

struct SelectionRequest {
  std::string caption;
  std::string instruction;
  std::string original_text;  // what the candidates come from; may be empty
  std::vector<SelectionCandidate> candidates;
  std::string display;  // the candidates as plain text, a line each
  std::string mode;     // "newrecord382field" for fields that a heading implies
  std::string ok_caption;
  std::string cancel_caption;

  // In: the lines selected at first.  Out: those selected at the end.  Numbers
  // from 1 with blanks between.
  std::string selection;
  // Anything but kSelectionOk adds nothing.
  std::string result{kSelectionCancelled};
};

class FieldSelector {
 public:
  virtual ~FieldSelector() = default;

  // Lets the user choose and sets `selection` and `result`.  Comes back when the
  // user is done; a form that is closed without an answer is cancelled.
  virtual void SelectFields(SelectionRequest& request) = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_FIELD_SELECTION_H_

// Who is a soloist in a finished 382: $b against $a.

#include <cstddef>

#include "charset/marc_control.h"
#include "medium/field_382.h"
#include "medium/heading_grammar.h"

namespace cantorel {
namespace {

bool IsEnsemble(MediumContext& context, std::string_view term, std::string& norm) {
  context.Norm(term, norm);
  return norm.ends_with(" ENSEMBLE") || context.vocabulary.IsEnsembleName(context.record, norm);
}

}  // namespace

void SettleSoloists(MediumContext& context, std::string& text) {
  std::string norm;
  bool any_ensemble = false;
  bool behind_ensemble = false;
  // Only codes change: the text under the scanner keeps its length.
  for (SubfieldScanner subfield(text); subfield.Next();) {
    char& code = text[subfield.Start() + 1];
    if (behind_ensemble && subfield.Code() == 'n') code = 'e';
    behind_ensemble = false;
    if (subfield.Code() != 'a' && subfield.Code() != 'b') continue;
    if (!IsEnsemble(context, subfield.Text(), norm)) continue;
    code = 'a';
    any_ensemble = behind_ensemble = true;
  }
  if (!any_ensemble) ChangeCodes(text, 'b', 'a');
}

void MakeSoloists(std::string& text) {
  ChangeCodes(text, 'a', 'b');
}

}  // namespace cantorel

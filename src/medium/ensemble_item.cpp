// Compound names that end in an ensemble word.

#include <cstddef>

#include "medium/medium_phrase.h"

namespace cantorel {

namespace {

struct EnsembleKind {
  std::string_view ending;  // in comparison form, with its blank
  std::string_view plural;
  std::string_view text;  // as a term of the vocabulary ends
};

constexpr EnsembleKind kKinds[] = {
    {" CHOIR", " CHOIRS", " choir"},
    {" ENSEMBLE", " ENSEMBLES", " ensemble"},
    {" ORCHESTRA", " ORCHESTRAS", " orchestra"},
};

const EnsembleKind* KindOfEnding(std::string_view ending) {
  for (const EnsembleKind& kind : kKinds) {
    if (ending == kind.ending || ending == kind.plural) return &kind;
  }
  return nullptr;
}

bool NamesEnsemble(std::string_view term) {
  for (const EnsembleKind& kind : kKinds) {
    if (term.find(kind.text) != std::string_view::npos) return true;
  }
  return false;
}

bool FindWhole(MediumContext& context, std::string_view norm, std::string& term) {
  if (context.vocabulary.FindInstrument(context.record, norm, term)) return true;
  if (!norm.ends_with('S')) return false;
  norm.remove_suffix(1);
  return context.vocabulary.FindInstrument(context.record, norm, term);
}

bool FindAsKind(MediumContext& context, std::string_view players, const EnsembleKind& kind,
                std::string& term) {
  std::string name(players);
  name += kind.ending;
  return context.vocabulary.FindEnsemble(context.record, name, term);
}

// The kind that the heading names comes first; a guitar choir may be known as a
// guitar ensemble.
bool FindAsAnyKind(MediumContext& context, std::string_view players, const EnsembleKind& named,
                   std::string& term) {
  if (FindAsKind(context, players, named, term)) return true;
  for (const EnsembleKind& kind : kKinds) {
    if (&kind != &named && FindAsKind(context, players, kind, term)) return true;
  }
  return false;
}

}  // namespace

std::int32_t ResolveEnsembleItem(MediumContext& context, std::string_view norm, std::string& term,
                                 std::string& count, bool& is_known) {
  const std::size_t last_blank = norm.rfind(' ');
  if (last_blank == std::string_view::npos) return 0;

  if (FindWhole(context, norm, term)) {
    if (!NamesEnsemble(term)) return 0;
  } else {
    const std::string_view players = norm.substr(0, last_blank);
    const EnsembleKind* kind = KindOfEnding(norm.substr(last_blank));
    if (kind == nullptr) return 0;
    std::string player_term;
    if (!context.vocabulary.FindInstrument(context.record, players, player_term)) return 0;
    if (!FindAsAnyKind(context, players, *kind, term)) {
      is_known = false;
      term = player_term;
      term += kind->text;
    }
  }
  context.of_interest = true;
  count = "1";
  return 1;
}

}  // namespace cantorel

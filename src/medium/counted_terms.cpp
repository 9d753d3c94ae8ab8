#include "medium/counted_terms.h"

#include <cstddef>

namespace cantorel {
namespace {

constexpr std::int32_t kTimesListed = 10;

// Appends to a list in which a separator stands on each side of each entry,
// unless the entry stands there.
void AppendDistinct(std::string_view entry, std::string_view separator, std::string& list) {
  if (list.empty()) list = separator;
  std::string bounded(separator);
  bounded += entry;
  bounded += separator;
  if (list.find(bounded) != std::string::npos) return;
  list += entry;
  list += separator;
}

std::size_t Place(std::int32_t number) {
  return static_cast<std::size_t>(number - 1);
}

}  // namespace

void CountedTerms::Add(std::string_view name, std::string_view record_id,
                       std::string_view heading) {
  CountedTerm* term = terms_.Find(name);
  if (term == nullptr) {
    terms_.Add(name, CountedTerm());
    term = terms_.Find(name);
  }
  if (++term->count > kTimesListed) return;
  AppendDistinct(record_id, " ", term->record_ids);
  AppendDistinct(heading, "//", term->headings);
}

const std::string& CountedTerms::Name(std::int32_t number) const {
  return terms_.At(Place(number)).first;
}

const CountedTerm& CountedTerms::Term(std::int32_t number) const {
  return terms_.At(Place(number)).second;
}

}  // namespace cantorel

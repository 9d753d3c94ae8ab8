// Distinct terms, each with how often and where it was met.

#ifndef CANTOREL_MEDIUM_COUNTED_TERMS_H_
#define CANTOREL_MEDIUM_COUNTED_TERMS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "medium/string_map.h"

namespace cantorel {

struct CountedTerm {
  std::int32_t count = 0;
  std::string record_ids;  // distinct, a blank on each side of each
  std::string headings;    // distinct, "//" on each side of each
};

class CountedTerms {
 public:
  // Adds 1 to a term.  Its identifiers and headings are kept of the first ten
  // times only, so that the lists stay short.
  void Add(std::string_view name, std::string_view record_id, std::string_view heading);
  void Clear() { terms_.RemoveAll(); }

  std::int32_t Count() const { return static_cast<std::int32_t>(terms_.Count()); }
  // The term with this number, from 1 to Count.
  const std::string& Name(std::int32_t number) const;
  const CountedTerm& Term(std::int32_t number) const;

 private:
  StringMap<CountedTerm> terms_;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_COUNTED_TERMS_H_

#include "charset/marc8_category.h"

#include "charset/tables/marc8_category_table.h"
#include "charset/two_stage_table.h"

namespace cantorel {

char Marc8CategoryOfCodePoint(std::uint32_t code_point) {
  if (code_point > kLastTableCodePoint) return '?';
  return TwoStageLookUp(kMarc8CategoryPages, kMarc8CategoryValues, code_point);
}

}  // namespace cantorel

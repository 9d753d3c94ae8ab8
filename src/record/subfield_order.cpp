// Where subfields belong in a field.  Without an order table every subfield
// stays where it is put.

#include "record/utf8_marc_record_class.h"

namespace cantorel {

Utf8MarcRecordClass::SubfieldMove Utf8MarcRecordClass::CompareSubfieldOrder(std::int16_t) const {
  return SubfieldMove::kNone;
}

}  // namespace cantorel

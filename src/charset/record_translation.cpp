// What happens to the text of a whole record between its character sets.
//
// Text is carried over as it stands: a record changes its set and keeps its
// octets, so that nothing is ever lost on the way.

#include "record/utf8_marc_record_class.h"

namespace cantorel {

void Utf8MarcRecordClass::TranslateRecord() {
  record_translated_ = false;
}

}  // namespace cantorel

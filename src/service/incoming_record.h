// The two forms in which a host hands over a record.

#ifndef CANTOREL_SERVICE_INCOMING_RECORD_H_
#define CANTOREL_SERVICE_INCOMING_RECORD_H_

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {

// Loads an ISO 2709 image or field lines (see CantorelClass::AddFields) into
// `record`.  `control_number` receives the 001 of an image.  False, with the
// record as it was, when the data are no image and their first line is shorter
// than two characters.
bool LoadIncomingRecord(std::string_view data, Utf8MarcRecordClass& record,
                        std::string& control_number);

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_INCOMING_RECORD_H_

// The clock of the machine, in local time.

#ifndef CANTOREL_PLATFORM_CLOCK_H_
#define CANTOREL_PLATFORM_CLOCK_H_

#include <string>

namespace cantorel {

// The present date and time as 14 digits: year, month, day, hour, minute,
// second ("20150930184501").  The form of field 005 without its ".0"; the first
// 8 digits are the date alone.
std::string CurrentDateTime();

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_CLOCK_H_

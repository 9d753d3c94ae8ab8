// Asking the component about one record.

#ifndef CANTOREL_CLI_ASK_H_
#define CANTOREL_CLI_ASK_H_

#include <cstdint>
#include <string_view>

#include "cli/answer.h"

namespace cantorel {
class CantorelClass;
}

namespace cantorel::cli {

// Hands one record to the component and collects what it says.  Everything in
// `answer` but its source and its record number is set.
void AskAboutRecord(CantorelClass& cantorel, std::string_view record, std::int32_t mode,
                    RecordAnswer& answer);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ASK_H_

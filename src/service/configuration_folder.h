// The folder in which all data of the service lie.

#ifndef CANTOREL_SERVICE_CONFIGURATION_FOLDER_H_
#define CANTOREL_SERVICE_CONFIGURATION_FOLDER_H_

#include <string_view>

namespace cantorel {

inline constexpr std::string_view kSettingsFileName = "Cantorel.INI";

// Points every service object of the thread at a folder and empties the
// vocabularies.  A text whose comparison form is "ME" stands for the folder of
// the running program.  An empty path takes the folder away.
void SetConfigurationFolder(std::string_view path);

// Tells the conversions the files of the present folder.
void NameConfigurationFiles();

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_CONFIGURATION_FOLDER_H_

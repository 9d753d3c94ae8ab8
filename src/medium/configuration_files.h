// The files of the configuration folder that the conversions read.

#ifndef CANTOREL_MEDIUM_CONFIGURATION_FILES_H_
#define CANTOREL_MEDIUM_CONFIGURATION_FILES_H_

#include <string_view>

namespace cantorel {

// Instruments and ensembles.
inline constexpr std::string_view kVocabularyFileName = "MusicMedium.Lcmpt.txt";
// Headings and the fields that they imply, built from a workbook.
inline constexpr std::string_view kDerivationTableFileName = "Music6xxTo655.txt";

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_CONFIGURATION_FILES_H_

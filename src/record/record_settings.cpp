// Creation, and the settings that a record object keeps.

#include <string>

#include "platform/profile_file.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kSettingsFile = "MarcRecordClass.INI";
constexpr std::string_view kSection = "Booleans";
constexpr std::int32_t kValueLength = 15;

}  // namespace

Utf8MarcRecordClass::Utf8MarcRecordClass() {
  ReadBooleanSettings();
}

Utf8MarcRecordClass::~Utf8MarcRecordClass() = default;

void Utf8MarcRecordClass::IniFilePath(std::string_view folder) {
  ini_file_path_ = folder;
  ReadBooleanSettings();
}

void Utf8MarcRecordClass::ReadBooleanSettings() {
  const std::string file = ini_file_path_ + std::string(kSettingsFile);
  const auto read = [&](std::string_view key, bool default_value) {
    return IsTrue(GetIniRaw(file, kSection, key, default_value ? "True" : "False", kValueLength));
  };
  remove_duplicate_oclc_numbers_ = read("RemoveDuplicateOclcNumbers", false);
  remove_duplicative_035_fields_ = read("RemoveDuplicate035Fields", true);
  remove_oclc_alphabetic_prefix_ = read("RemoveOclcAlphabeticPrefix", false);
  oclc_numbers_have_leading_zeroes_ = read("OclcNumbersHaveLeadingZeroes", false);
  rda_recast_502_fields_ = read("RdaReCast502fields", false);
}

void Utf8MarcRecordClass::WriteBooleanSetting(std::string_view key, bool value) const {
  PutIniValue(ini_file_path_ + std::string(kSettingsFile), kSection, key, value ? "True" : "False");
}

void Utf8MarcRecordClass::RemoveDuplicateOclcNumbers(bool value) {
  remove_duplicate_oclc_numbers_ = value;
  WriteBooleanSetting("RemoveDuplicateOclcNumbers", value);
}

void Utf8MarcRecordClass::RemoveDuplicative035Fields(bool value) {
  remove_duplicative_035_fields_ = value;
  WriteBooleanSetting("RemoveDuplicate035Fields", value);
}

void Utf8MarcRecordClass::RemoveOclcAlphabeticPrefix(bool value) {
  remove_oclc_alphabetic_prefix_ = value;
  WriteBooleanSetting("RemoveOclcAlphabeticPrefix", value);
}

void Utf8MarcRecordClass::OclcNumbersHaveLeadingZeroes(bool value) {
  oclc_numbers_have_leading_zeroes_ = value;
  WriteBooleanSetting("OclcNumbersHaveLeadingZeroes", value);
}

void Utf8MarcRecordClass::RdaReCast502Fields(bool value) {
  rda_recast_502_fields_ = value;
  WriteBooleanSetting("RdaReCast502fields", value);
}

void Utf8MarcRecordClass::Nuc(std::string_view code) {
  nuc_ = RemoveRepeatedCharacters(code, " ");
}

}  // namespace cantorel

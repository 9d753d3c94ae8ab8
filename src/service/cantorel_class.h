// CantorelClass: the one class that a host sees.
//
//   cantorel::CantorelClass cantorel;
//   cantorel.ConfigurationPath("/usr/share/cantorel/config/");
//   if (cantorel.AddFields(record_image, 1) == 1)
//     std::cout << cantorel.ReturnedFields() << '\n';

#ifndef CANTOREL_SERVICE_CANTOREL_CLASS_H_
#define CANTOREL_SERVICE_CANTOREL_CLASS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// Results of AddFields.
enum AddFieldsResult : std::int32_t {
  kFieldsReturned = 1,
  kNothingToReturn = 0,
  kNoIncomingData = -1,
  kFirstLineTooShort = -2,
  kNotMusic = -3,
  kNoConfigurationFolder = -5,
  kNoDerivationTable = -6,
};

class CantorelClass {
 public:
  CantorelClass();

  // Does nothing; hosts may call it.
  void Reset() {}

  // Derives fields from one record: an ISO 2709 image, or lines (type and level
  // of the record, then one field a line).  `performance_mode` 1 gives 382, 2
  // gives 655 and companions, 3 both; any other value converts nothing.
  std::int32_t AddFields(std::string_view incoming_data, std::int32_t performance_mode);

  // The configuration folder; ends in a backslash once set.
  std::string ConfigurationPath() const;
  void ConfigurationPath(std::string_view path);

  // Lines of the last complete AddFields: identifier, tab, tag, indicators, and
  // the field text in hexadecimal.  Identifier 0 is a field to add, any other
  // the field to replace.
  std::string ReturnedFields() const;

 private:
  bool first_call_done_ = false;
  bool reports_read_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_CANTOREL_CLASS_H_

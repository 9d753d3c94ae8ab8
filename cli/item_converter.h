// Converts one record after the other.

#ifndef CANTOREL_CLI_ITEM_CONVERTER_H_
#define CANTOREL_CLI_ITEM_CONVERTER_H_

#include <string>
#include <string_view>

#include "cli/conversion_item.h"
#include "cli/convert_options.h"
#include "cli/record_editor.h"
#include "cli/record_marcxml.h"
#include "cli/utf8_fields.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
class CantorelClass;
}

namespace cantorel::cli {

// Belongs to one thread, as the component that it asks does.
class ItemConverter {
 public:
  ItemConverter(CantorelClass& cantorel, const ConvertOptions& options);

  // `item` holds a record, not the failure of an input.
  void Convert(const ConversionItem& item, ConversionResult& result);

 private:
  std::string_view Readable(const std::string& octets, std::string& fault);
  void Apply(std::string_view record, const ConversionItem& item, ConversionResult& result);
  static void Keep(std::string_view record, const ConversionItem& item, ConversionResult& result);
  void WriteMarcXml(std::string_view record, ConversionResult& result);

  CantorelClass& cantorel_;
  const ConvertOptions& options_;
  Utf8MarcRecordClass record_;  // judges and repairs what was read
  std::string repaired_;
  RecordEditor editor_;
  Utf8Fields fields_;
  std::string marcxml_;
  MarcXmlRecords marcxml_records_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ITEM_CONVERTER_H_

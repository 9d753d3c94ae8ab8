// Order files: the configuration of field and subfield order for one family of
// formats ("bibsup.cfg", "holdsup.cfg", "authsup.cfg").
//
//   [ExtendedFieldOrder]     any key, a range of tags (or one tag), a kind
//   1=001-399 Tag
//   2=880 Paired
//   [FieldOrder]             the same by hundreds, when the section above is empty
//   6=Indicator2
//   [SubfieldOrder]          a pattern for each tag (see subfield_pattern.h)
//   245=6a{#bcfghknps}

#ifndef CANTOREL_RECORD_ORDER_FILE_H_
#define CANTOREL_RECORD_ORDER_FILE_H_

#include <string>
#include <string_view>

#include "record/field_orders.h"
#include "record/subfield_order_table.h"

namespace cantorel {

inline constexpr std::string_view kSubfieldOrderSection = "SubfieldOrder";

// The name of a family's file.  The other formats have none, and get an empty
// name.
std::string_view OrderFileName(FormatFamily family);

// Adds the field order in a file to that of a family, and the row for all tags
// that closes it; without a file or its sections the latter alone.
void ReadFieldOrder(std::string_view file, FormatFamily family, FieldOrders& orders);

// The subfield section of a file: its lines, each ended by a NUL.
std::string ReadSubfieldSection(std::string_view file);

// Adds the patterns of such a section to a table.  A line counts when its key is
// a tag of three characters.
void SetSubfieldOrders(std::string_view section, SubfieldOrderTable& table);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_ORDER_FILE_H_

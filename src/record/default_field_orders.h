// The field orders that stand without an order file.

#ifndef CANTOREL_RECORD_DEFAULT_FIELD_ORDERS_H_
#define CANTOREL_RECORD_DEFAULT_FIELD_ORDERS_H_

#include <string_view>

#include "record/field_order_table.h"

namespace cantorel {

struct DefaultFieldOrder {
  std::string_view low;
  std::string_view high;
  FieldOrderKind kind;
};

// Notes of one institution (642, 644 to 646) have that of the own one first;
// references file by their relationship and heading.
inline constexpr DefaultFieldOrder kAuthorityFieldOrder[] = {
    {"001", "399", FieldOrderKind::kTag},        {"400", "499", FieldOrderKind::kReference},
    {"500", "599", FieldOrderKind::kReference},  {"600", "641", FieldOrderKind::kTag},
    {"642", "642", FieldOrderKind::kLocal},      {"643", "643", FieldOrderKind::kTag},
    {"644", "644", FieldOrderKind::kLocal},      {"645", "645", FieldOrderKind::kLocal},
    {"646", "646", FieldOrderKind::kLocal},      {"647", "699", FieldOrderKind::kTag},
    {"700", "799", FieldOrderKind::kIndicator2}, {"800", "999", FieldOrderKind::kTag},
    {"880", "880", FieldOrderKind::kPaired},
};

// Notes keep the order in which they were written; subject headings stand by
// thesaurus.  Tags 652 to 655 are in two ranges: the earlier one counts.
inline constexpr DefaultFieldOrder kBibliographicFieldOrder[] = {
    {"001", "399", FieldOrderKind::kTag},        {"400", "599", FieldOrderKind::kGeneric},
    {"600", "655", FieldOrderKind::kIndicator2}, {"652", "699", FieldOrderKind::kTag},
    {"700", "700", FieldOrderKind::kNameTitle},  {"710", "711", FieldOrderKind::kNameTitle},
    {"730", "740", FieldOrderKind::kTag},        {"741", "799", FieldOrderKind::kGeneric},
    {"800", "840", FieldOrderKind::kGeneric},    {"850", "999", FieldOrderKind::kGeneric},
    {"880", "880", FieldOrderKind::kPaired},
};

inline constexpr DefaultFieldOrder kHoldingsFieldOrder[] = {
    {"001", "852", FieldOrderKind::kTag},
    {"853", "869", FieldOrderKind::kSubfield8},
    {"870", "999", FieldOrderKind::kTag},
    {"880", "880", FieldOrderKind::kPaired},
};

inline constexpr DefaultFieldOrder kOtherFieldOrder[] = {
    {"001", "009", FieldOrderKind::kTag},
    {"010", "999", FieldOrderKind::kGeneric},
    {"880", "880", FieldOrderKind::kPaired},
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_DEFAULT_FIELD_ORDERS_H_

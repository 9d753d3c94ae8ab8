// The field orders of all families of formats, with the pairing of 880 fields.

#ifndef CANTOREL_RECORD_FIELD_ORDERS_H_
#define CANTOREL_RECORD_FIELD_ORDERS_H_

#include <array>
#include <cstddef>
#include <string_view>

#include "record/field_order_table.h"
#include "record/format_family.h"

namespace cantorel {

// Whether an 880 stands behind the field that its $6 links it to, and whether
// an 880 with second indicator 4 for a heading counts as one with 0 (LC).
struct FieldPairing {
  bool on = false;
  bool lc = false;
};

class FieldOrders {
 public:
  // Orders nothing: a record keeps the order of its directory.
  FieldOrders();

  FieldOrderTable& Table(FormatFamily family) { return tables_[Index(family)]; }
  const FieldOrderTable& Table(FormatFamily family) const { return tables_[Index(family)]; }
  const FieldPairing& Pairing(FormatFamily family) const { return pairings_[PairingOf(family)]; }

  // Holdings and the other formats share one pairing.  Clearing holdings turns
  // it off, clearing the others leaves it as it is, which is deliberate.
  void Clear(FormatFamily family);

  // Adds a row.  The kinds for pairing turn it on: for the one tag 880 they add
  // no row, for any other range a generic one.
  void Set(FormatFamily family, std::string_view low, std::string_view high, FieldOrderKind kind);

  // Replaces the order of a family by the one that stands without an order file.
  void SetDefault(FormatFamily family);

  // Before a record of the family is loaded or made: a table that was touched
  // since gets its closing row, an empty one its default.
  void Prepare(FormatFamily family);
  // Asks for that of all families.
  void MarkStale() { stale_.fill(true); }

 private:
  static std::size_t Index(FormatFamily family) { return static_cast<std::size_t>(family); }
  static std::size_t PairingOf(FormatFamily family) {
    return Index(family == FormatFamily::kOther ? FormatFamily::kHoldings : family);
  }

  std::array<FieldOrderTable, kFormatFamilies> tables_;
  std::array<FieldPairing, kFormatFamilies - 1> pairings_;
  std::array<bool, kFormatFamilies> stale_;
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FIELD_ORDERS_H_

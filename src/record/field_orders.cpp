#include "record/field_orders.h"

#include <span>

#include "record/default_field_orders.h"

namespace cantorel {

namespace {

std::span<const DefaultFieldOrder> DefaultOrder(FormatFamily family) {
  switch (family) {
    case FormatFamily::kAuthority:
      return kAuthorityFieldOrder;
    case FormatFamily::kBibliographic:
      return kBibliographicFieldOrder;
    case FormatFamily::kHoldings:
      return kHoldingsFieldOrder;
    case FormatFamily::kOther:
      break;
  }
  return kOtherFieldOrder;
}

}  // namespace

FieldOrders::FieldOrders() {
  for (FieldOrderTable& table : tables_) table.Add("000", "999", FieldOrderKind::kNone);
  MarkStale();
}

void FieldOrders::Clear(FormatFamily family) {
  Table(family).Clear();
  if (family != FormatFamily::kOther) pairings_[PairingOf(family)] = {};
  MarkStale();
}

void FieldOrders::Set(FormatFamily family, std::string_view low, std::string_view high,
                      FieldOrderKind kind) {
  if (kind == FieldOrderKind::kPaired || kind == FieldOrderKind::kPairedLc) {
    FieldPairing& pairing = pairings_[PairingOf(family)];
    pairing.on = true;
    pairing.lc = pairing.lc || kind == FieldOrderKind::kPairedLc;
    if (low == "880" && high == "880") return;
    kind = FieldOrderKind::kGeneric;
  }
  Table(family).Add(low, high, kind);
}

void FieldOrders::SetDefault(FormatFamily family) {
  Clear(family);
  for (const auto& [low, high, kind] : DefaultOrder(family)) Set(family, low, high, kind);
}

void FieldOrders::Prepare(FormatFamily family) {
  bool& stale = stale_[Index(family)];
  if (!stale) return;
  if (Table(family).Empty()) SetDefault(family);
  Table(family).EnsureGenericRow();
  stale = false;
}

}  // namespace cantorel

// Where fields belong in a record.
//
// A record orders its fields only when an order was asked for; without one
// every field has the key "*", nothing is moved, and a record keeps the order
// of its directory.

#include <string>

#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kAnyPlace = "*";

}  // namespace

void Utf8MarcRecordClass::FldOrderFolder(std::string_view folder) {
  if (table_.Count() > 0 || folder.empty()) return;
  field_order_folder_ = folder;
  if (field_order_folder_.back() != '\\') field_order_folder_ += '\\';
}

Utf8MarcRecordClass::OrderKey Utf8MarcRecordClass::MakeFieldOrderKey(std::string_view,
                                                                     std::string_view,
                                                                     std::string_view) const {
  return {kAnyPlace, {}};
}

bool Utf8MarcRecordClass::PairingIsOn() const {
  return false;
}

}  // namespace cantorel

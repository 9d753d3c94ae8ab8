// Where fields belong in a record.
//
// Every field has an order key, and the chain of fields is kept in ascending
// keys.  A record orders its fields only when an order was asked for; without
// one every field has the key "*", nothing is moved, and a record keeps the
// order of its directory.

#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/field_order_key.h"
#include "record/order_file.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kAnyPlace = "*";
constexpr std::string_view kNoTable = "*****";
constexpr char kBehindAllIndicators = '\xFF';

bool IsTag(std::string_view text) {
  return text.size() == 3 && IsAsciiDigit(text[0]) && IsAsciiDigit(text[1]) &&
         IsAsciiDigit(text[2]);
}

char IndicatorAt(std::string_view indicators, std::size_t position) {
  return position < indicators.size() ? indicators[position] : ' ';
}

}  // namespace

// --- Tables ------------------------------------------------------------------

void Utf8MarcRecordClass::ClearFldOrder(std::string_view format_code) {
  if (table_.Count() == 0) field_orders_.Clear(FamilyOf(format_code));
}

void Utf8MarcRecordClass::SetFldOrder(std::string_view format_code, std::string_view low_tag,
                                      std::string_view high_tag, std::int16_t kind) {
  if (table_.Count() > 0) return;
  field_orders_.Set(FamilyOf(format_code), low_tag, high_tag, static_cast<FieldOrderKind>(kind));
}

void Utf8MarcRecordClass::SetDefaultFldOrderAuth() {
  if (table_.Count() == 0) field_orders_.SetDefault(FormatFamily::kAuthority);
}

void Utf8MarcRecordClass::SetDefaultFldOrderBib() {
  if (table_.Count() == 0) field_orders_.SetDefault(FormatFamily::kBibliographic);
}

void Utf8MarcRecordClass::SetDefaultFldOrderHold() {
  if (table_.Count() == 0) field_orders_.SetDefault(FormatFamily::kHoldings);
}

std::string Utf8MarcRecordClass::SummarizeFieldOrderInstructions(
    std::string_view format_code) const {
  if (format_code != "A" && format_code != "B" && format_code != "H") return {};
  return field_orders_.Table(FamilyOf(format_code)).Summary();
}

void Utf8MarcRecordClass::FldOrderFolder(std::string_view folder) {
  if (table_.Count() > 0 || folder.empty()) return;
  std::string whole(folder);
  if (whole.back() != '\\') whole += '\\';
  if (whole == field_order_folder_) return;
  field_order_folder_ = whole;
  for (const FormatFamily family :
       {FormatFamily::kBibliographic, FormatFamily::kHoldings, FormatFamily::kAuthority}) {
    const std::string file = field_order_folder_ + std::string(OrderFileName(family));
    field_orders_.Clear(family);
    ReadFieldOrder(file, family, field_orders_);
    ReadSubfieldOrder(file, family);
  }
}

// --- Keys --------------------------------------------------------------------

bool Utf8MarcRecordClass::PairingIsOn() const {
  return field_orders_.Pairing(FamilyOf(format_code_)).on;
}

bool Utf8MarcRecordClass::IsLocalNote(std::string_view tag) {
  FieldOrderTable& table = field_orders_.Table(FamilyOf(format_code_));
  return !table.Empty() && table.Find(tag).kind == FieldOrderKind::kLocal;
}

// The key of a field, and its link part when it is paired.  An 880 has the key
// of the field that it stands for.  FindDelimiters has been through the text of
// a data field.
Utf8MarcRecordClass::OrderKey Utf8MarcRecordClass::MakeFieldOrderKey(std::string_view tag,
                                                                     std::string_view indicators,
                                                                     std::string_view text) {
  const FormatFamily family = FamilyOf(format_code_);
  FieldOrderTable& table = field_orders_.Table(family);
  if (table.Empty()) return {family == FormatFamily::kOther ? kNoTable : kAnyPlace, {}};
  if (table.OrdersNothing() && !field_orders_.Pairing(family).on) return {kAnyPlace, {}};

  const char pair[2] = {IndicatorAt(indicators, 0), IndicatorAt(indicators, 1)};
  SortedField field{tag, {pair[0], pair[1]}, text};
  const FieldPairing& pairing = field_orders_.Pairing(family);
  std::string_view subfield6;
  const bool is_880 = tag == "880";
  const bool paired = pairing.on && subfield6_ != std::string_view::npos &&
                      !tag.starts_with("00") &&
                      FindSubfieldText(text.substr(subfield6_), '6', subfield6);
  if (paired && is_880 && IsTag(subfield6.substr(0, 3))) {
    field.tag = subfield6.substr(0, 3);
    const bool lc_heading = pairing.lc && family == FormatFamily::kBibliographic;
    if (lc_heading && field.tag[0] == '6' && field.indicators[1] == '4') field.indicators[1] = '0';
  }

  const FieldOrderTable::Place place = table.Find(field.tag);
  if (place.kind == FieldOrderKind::kNone) return {kAnyPlace, {}};
  if (!place.key.empty() && !paired) return {place.key, {}};
  order_key_ = place.number;
  AppendKeyOfKind(place.kind, field);
  const std::size_t length = order_key_.size();
  if (paired) AppendLinkPart(subfield6, is_880, order_key_);
  const std::string_view whole = table_.Arena().Keep(order_key_);
  return {whole.substr(0, length), whole.substr(length)};
}

std::string_view Utf8MarcRecordClass::FldOrderKey(std::string_view tag, std::string_view indicators,
                                                  std::string_view text) {
  FindDelimiters(text);
  return MakeFieldOrderKey(tag, indicators, text).key;
}

// Adds what orders the fields of one range to the key.
void Utf8MarcRecordClass::AppendKeyOfKind(FieldOrderKind kind, const SortedField& field) {
  std::string& key = order_key_;
  std::string_view value;
  switch (kind) {
    case FieldOrderKind::kNameTitle:
      key += FindSubfieldText(field.text, 't', value) ? "7T" : "7 ";
      return;
    case FieldOrderKind::kIndicator2:
      return AppendIndicator2(field);
    case FieldOrderKind::kLocal:
      key += field.tag;
      if (!nuc_.empty()) key += RateLocal5(field.text, nuc_);
      return;
    case FieldOrderKind::kReference:
      key += field.tag.substr(0, 1);
      key += ReferenceRelationship(field.text);
      AppendNormString(ReferenceHeading(field.text), true, key);
      return;
    case FieldOrderKind::kTag:
      key += field.tag;
      return;
    case FieldOrderKind::kSubfield8:
      AppendSequence(field.text, field.tag, key);
      return;
    case FieldOrderKind::kIndicator1:
      key += field.indicators[0];
      return;
    case FieldOrderKind::kRda33x:
      if (FindSubfieldText(field.text, '3', value)) AppendNormString(value, true, key);
      key += field.tag;
      return;
    case FieldOrderKind::kSubfieldC:
      key += FindSubfieldText(field.text, 'c', value) ? value : "00000000";
      return;
    default:
      key += field.tag.substr(0, 1);
  }
}

// By thesaurus: the second indicator tells it, or with "7" the $2.
void Utf8MarcRecordClass::AppendIndicator2(const SortedField& field) {
  const char indicator = field.indicators[1];
  if (indicator != ' ') {
    order_key_ += indicator;
  } else if (field.tag == "653") {
    order_key_ += sorting_indicator_for_653_;
  } else {
    order_key_ += kBehindAllIndicators;
  }
  if (indicator == '7' || field.tag == "654") AppendThesaurus(field.text, order_key_);
}

}  // namespace cantorel

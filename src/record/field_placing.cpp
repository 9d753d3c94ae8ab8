// The chain of fields, and where a new row goes in it.

#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

// --- The chain ---------------------------------------------------------------

void Utf8MarcRecordClass::LinkLast(std::int16_t row) {
  LinkAfter(row, last_field_);
}

void Utf8MarcRecordClass::Unlink(std::int16_t row) {
  const FieldRecord& field = table_.Field(row);
  (field.prev == kNoRow ? first_field_ : table_.Field(field.prev).next) = field.next;
  (field.next == kNoRow ? last_field_ : table_.Field(field.next).prev) = field.prev;
}

void Utf8MarcRecordClass::LinkAfter(std::int16_t row, std::int16_t prev) {
  if (prev != last_field_) chain_moved_ = true;
  FieldRecord& field = table_.Field(row);
  field.prev = prev;
  field.next = table_.Field(prev).next;
  table_.Field(prev).next = row;
  (field.next == kNoRow ? last_field_ : table_.Field(field.next).prev) = row;
}

void Utf8MarcRecordClass::LinkBefore(std::int16_t row, std::int16_t next) {
  chain_moved_ = true;
  FieldRecord& field = table_.Field(row);
  field.next = next;
  field.prev = table_.Field(next).prev;
  table_.Field(next).prev = row;
  (field.prev == kNoRow ? first_field_ : table_.Field(field.prev).next) = row;
}

// --- Placing -----------------------------------------------------------------

// A new row stands last; finds its place and moves it there.
void Utf8MarcRecordClass::PlaceField(std::int16_t row, bool at_top) {
  const FieldRecord& field = table_.Field(row);
  if (!field.link_key.empty()) return PlaceByLink(row);
  if (field.Tag() == "880" && PairingIsOn()) return PlacePaired880(row);
  PlaceByKey(row, at_top);
}

// The new row goes before the first live row of a greater key, at the top before
// the first of its own key.  In a chain that stands in order it is looked for
// from the end, so that a record whose fields arrive in order, as most do, asks
// only its last field.
void Utf8MarcRecordClass::PlaceByKey(std::int16_t row, bool at_top) {
  const std::string_view key = table_.Field(row).order_key;
  const auto belongs_behind = [&](const FieldRecord& other) {
    // A record without order has one key, which is known by its place.
    if (!at_top && other.order_key.data() == key.data()) return false;
    return at_top ? other.order_key >= key : other.order_key > key;
  };
  std::int16_t next = kNoRow;
  if (in_key_order_) {
    for (std::int16_t other = table_.Field(row).prev; other != kNoRow;) {
      const FieldRecord& candidate = table_.Field(other);
      if (!candidate.deleted) {
        if (!belongs_behind(candidate)) break;
        next = other;
      }
      other = candidate.prev;
    }
  } else {
    for (next = first_field_; next != row; next = table_.Field(next).next) {
      if (!table_.Field(next).deleted && belongs_behind(table_.Field(next))) break;
    }
  }
  if (next != kNoRow && next != row) MoveBefore(row, next);
}

// An 880 without an occurrence number stands behind the first field of its key.
void Utf8MarcRecordClass::PlacePaired880(std::int16_t row) {
  const std::string_view key = table_.Field(row).order_key;
  for (std::int16_t other = first_field_; other != row; other = table_.Field(other).next) {
    const FieldRecord& candidate = table_.Field(other);
    if (!candidate.deleted && candidate.order_key == key && candidate.link_key.empty()) {
      if (candidate.next != row && MayMove()) MoveAfter(row, other);
      return;
    }
  }
  if (table_.Field(table_.Field(row).prev).order_key > key) in_key_order_ = false;
}

// Among fields of equal key those of one link stand together, an 880 right
// behind the field that it pairs with.  This does not ask TestFieldOrder.  A
// field goes before one of its own link, so that 880 fields without a partner
// (number 00) come in reverse, which is deliberate.
void Utf8MarcRecordClass::PlaceByLink(std::int16_t row) {
  const FieldRecord& field = table_.Field(row);
  for (std::int16_t other = FirstOfKey(row); other != row; other = table_.Field(other).next) {
    const FieldRecord& candidate = table_.Field(other);
    const bool linked = candidate.order_key == field.order_key && !candidate.link_key.empty();
    const bool partner = linked && candidate.link_key != field.link_key &&
                         field.link_key.starts_with(candidate.link_key);
    const bool stop =
        candidate.order_key > field.order_key || (linked && candidate.link_key >= field.link_key);
    if (!partner && !stop) continue;
    if (partner && candidate.next == row) return;
    if (make_no_change_) return ReportMisplaced();
    if (partner) return MoveAfter(row, other);
    Unlink(row);
    LinkBefore(row, other);
    modified_ = field_order_changed_ = true;
    return;
  }
}

// A row that no row of the key of the new one, or of a greater key, stands
// before.
std::int16_t Utf8MarcRecordClass::FirstOfKey(std::int16_t row) const {
  if (!in_key_order_) return first_field_;
  const FieldRecord& field = table_.Field(row);
  std::int16_t first = row;
  for (std::int16_t other = field.prev; other != kNoRow; other = table_.Field(other).prev) {
    const FieldRecord& candidate = table_.Field(other);
    if (!candidate.deleted && candidate.order_key < field.order_key) break;
    first = other;
  }
  return first;
}

// Whether a misplaced field may be moved; otherwise it is reported.
bool Utf8MarcRecordClass::MayMove() {
  if (test_field_order_ && !make_no_change_) return true;
  ReportMisplaced();
  return false;
}

void Utf8MarcRecordClass::ReportMisplaced() {
  fields_out_of_order_ = true;
  in_key_order_ = false;
}

void Utf8MarcRecordClass::MoveAfter(std::int16_t row, std::int16_t prev) {
  Unlink(row);
  LinkAfter(row, prev);
  modified_ = field_order_changed_ = true;
}

void Utf8MarcRecordClass::MoveBefore(std::int16_t row, std::int16_t next) {
  if (!MayMove()) return;
  Unlink(row);
  LinkBefore(row, next);
  modified_ = field_order_changed_ = true;
}

// --- Shifting ----------------------------------------------------------------

void Utf8MarcRecordClass::ExchangeWithPrevious(std::int16_t row) {
  const FieldRecord& field = table_.Field(row);
  if (field.prev == kNoRow) return;
  const FieldRecord& previous = table_.Field(field.prev);
  if (field.order_key != previous.order_key) return;
  if (field.order_key == "6" && field.Tag() != previous.Tag()) return;
  if (field.order_key == "2" && field.tag[0] != previous.tag[0]) return;
  // The rows around the pair are written without asking whether they exist:
  // shifting into first place or from last place is an error, by design.
  if (previous.prev == kNoRow || field.next == kNoRow) {
    throw MarcClassError(9, "Subscript out of range");
  }
  const std::int16_t above = field.prev;
  Unlink(row);
  LinkBefore(row, above);
}

void Utf8MarcRecordClass::FldShiftUp() {
  if (HasField()) ExchangeWithPrevious(current_field_);
}

void Utf8MarcRecordClass::FldShiftDown() {
  if (!HasField() || CurrentField().next == kNoRow) return;
  const std::int16_t here = current_field_;
  const bool found = FldMoveNext(true);
  const std::int16_t below = current_field_;
  FldPointer(here);
  if (found) ExchangeWithPrevious(below);
}

}  // namespace cantorel

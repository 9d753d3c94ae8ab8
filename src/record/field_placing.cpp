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

void Utf8MarcRecordClass::PlaceByKey(std::int16_t row, bool at_top) {
  const std::string_view key = table_.Field(row).order_key;
  // A record whose fields arrive in order, as most do, asks only its last field.
  const FieldRecord& last = table_.Field(table_.Field(row).prev);
  const bool same = last.order_key.data() == key.data();  // the one key of a record without order
  if (!at_top && in_key_order_ && (same || last.order_key <= key)) return;
  for (std::int16_t other = first_field_; other != row; other = table_.Field(other).next) {
    const FieldRecord& candidate = table_.Field(other);
    if (candidate.deleted) continue;
    if (candidate.order_key > key || (at_top && candidate.order_key == key)) {
      return MoveBefore(row, other);
    }
  }
}

void Utf8MarcRecordClass::PlacePaired880(std::int16_t row) {
  const std::string_view key = table_.Field(row).order_key;
  for (std::int16_t other = first_field_; other != row; other = table_.Field(other).next) {
    const FieldRecord& candidate = table_.Field(other);
    if (!candidate.deleted && candidate.order_key == key && candidate.link_key.empty()) {
      return MoveAfter(row, other);
    }
  }
  in_key_order_ = false;
}

// Among fields of equal key those of one link stand together, an 880 right
// behind the field that it pairs with.  This does not ask TestFieldOrder.
void Utf8MarcRecordClass::PlaceByLink(std::int16_t row) {
  const FieldRecord& field = table_.Field(row);
  for (std::int16_t other = first_field_; other != row; other = table_.Field(other).next) {
    const FieldRecord& candidate = table_.Field(other);
    const bool linked = candidate.order_key == field.order_key && !candidate.link_key.empty();
    if (linked && candidate.link_key != field.link_key &&
        field.link_key.starts_with(candidate.link_key)) {
      return MoveAfter(row, other);
    }
    if (candidate.order_key > field.order_key || (linked && candidate.link_key >= field.link_key)) {
      Unlink(row);
      LinkBefore(row, other);
      modified_ = field_order_changed_ = true;
      return;
    }
  }
}

void Utf8MarcRecordClass::MoveAfter(std::int16_t row, std::int16_t prev) {
  if (table_.Field(prev).next == row) return;
  Unlink(row);
  LinkAfter(row, prev);
  modified_ = field_order_changed_ = true;
}

void Utf8MarcRecordClass::MoveBefore(std::int16_t row, std::int16_t next) {
  if (!test_field_order_ || make_no_change_) {
    fields_out_of_order_ = true;
    in_key_order_ = false;
    return;
  }
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

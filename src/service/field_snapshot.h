// A field as AddFields saw it, before or after the conversion.
//
// The two lists of snapshots are what the service compares to find out what has
// changed; the record itself is by then another one.

#ifndef CANTOREL_SERVICE_FIELD_SNAPSHOT_H_
#define CANTOREL_SERVICE_FIELD_SNAPSHOT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "record/utf8_marc_record_class.h"

namespace cantorel {

struct FieldSnapshot {
  // The number in the field's $9; without a $9 the field's pointer before the
  // conversion and 0 after it.
  std::int32_t field_id = 0;
  bool has_subfield9 = false;
  std::string tag;         // emptied when the snapshot is settled
  std::string indicators;  // two characters
  // Delimiter, code and text of each subfield except $0, $1 and $9.
  std::string text;
  // Tag, then code and comparison form of each of these subfields.  $v and $x
  // both count as "v".
  std::string compare_key;
  // Delimiter, code and text of each $0 and $1.
  std::string identifier_subfields;
};

// Snapshots in record order.  Clearing keeps their memory.
class SnapshotList {
 public:
  // An empty snapshot at the end.
  FieldSnapshot& Append();
  void Clear() { count_ = 0; }

  std::size_t Count() const { return count_; }
  FieldSnapshot& At(std::size_t i) { return entries_[i]; }
  const FieldSnapshot& At(std::size_t i) const { return entries_[i]; }
  FieldSnapshot* begin() { return entries_.data(); }
  FieldSnapshot* end() { return entries_.data() + count_; }
  const FieldSnapshot* begin() const { return entries_.data(); }
  const FieldSnapshot* end() const { return entries_.data() + count_; }

 private:
  std::vector<FieldSnapshot> entries_;
  std::size_t count_ = 0;
};

// Fills `list` with the fields of the record that the conversions read or make:
// 046, 047, 370, 382, 385, 386, 388 and 655, and the Library of Congress
// headings (second indicator 0) among 600, 610, 611, 630, 650 and 651.
// `control_number` receives the text of a 001 that is met.  Moves the cursors.
void SnapshotFields(Utf8MarcRecordClass& record, bool after_conversion, SnapshotList& list,
                    std::string& control_number);

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_FIELD_SNAPSHOT_H_

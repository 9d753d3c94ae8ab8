// The field table: a record taken apart.
//
// Fields and subfields are rows.  A row never moves and is never removed while
// a record is held, so a row index (FldPointer, SfdPointer) keeps its meaning
// through edits; the place in the record is only a matter of the chains
// `next`/`prev`.  All subfield rows of a record lie in one pool, each field
// owning a stretch of it.
//
// Texts are views: of the image for what was loaded, of an arena for what was
// added.  Loading the next record reuses rows, pool and arena, so that in the
// steady state a load allocates next to nothing.

#ifndef CANTOREL_RECORD_FIELD_TABLE_H_
#define CANTOREL_RECORD_FIELD_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel {

// Rows are numbered with signed 16-bit indexes, -1 meaning none.
inline constexpr std::int16_t kNoRow = -1;
inline constexpr std::int16_t kMaxRows = 32767;

// Keeps copies of texts until it is cleared.  Memory is reused.
class TextArena {
 public:
  std::string_view Keep(std::string_view text);
  // Room for `size` octets that the caller fills.
  char* Reserve(std::size_t size);
  void Clear();

 private:
  struct Block {
    std::unique_ptr<char[]> octets;
    std::size_t capacity;
  };
  std::vector<Block> blocks_;
  std::size_t block_ = 0;  // the block in use
  std::size_t used_ = 0;   // octets used in it
};

// Which rule gives a subfield its comparison forms: the first subfield of a
// field loses its nonfiling part, a later one does not.
enum class NormOrigin : std::uint8_t { kFirst, kInserted };

// The comparison forms of a subfield, made when first asked for.
struct SubfieldNorms {
  std::string_view v;  // plain
  std::string_view p;  // NACO
};

struct SubfieldRecord {
  std::string_view text;          // without delimiter and code
  std::int32_t norms = kNoNorms;  // where its comparison forms are, once made
  std::int16_t next = kNoRow;
  std::int16_t prev = kNoRow;
  char code = '\0';     // '\0' for the one subfield of a control field
  char norm_set = 'U';  // the output set in force when it was added
  NormOrigin norm_origin = NormOrigin::kFirst;
  bool deleted = false;
  bool boolean1 = false;
  bool boolean2 = false;

  static constexpr std::int32_t kNoNorms = -1;
};

struct FieldRecord {
  std::string_view directory_entry;  // the 12 characters it was loaded from
  std::string_view whole_text;       // the field text while no subfield differs from it
  std::string_view order_key;
  std::string_view link_key;
  std::uint32_t first_row = 0;  // where its subfield rows begin in the pool
  std::int16_t next = kNoRow;
  std::int16_t prev = kNoRow;
  std::int16_t first_subfield = kNoRow;
  std::int16_t last_subfield = kNoRow;
  std::int16_t subfield_capacity = 0;  // rows it owns in the pool
  std::int16_t subfield_max = kNoRow;  // highest used row
  char tag[3] = {};
  char indicators[2] = {};  // meaningless for a control field
  bool is_control = false;
  bool changed = false;
  bool deleted = false;
  bool boolean1 = false;
  bool boolean2 = false;

  std::string_view Tag() const { return {tag, 3}; }
  std::string_view Indicators() const {
    return is_control ? std::string_view() : std::string_view(indicators, 2);
  }
};

// What a row begins as.  Copying one is a few moves; making one afresh is not.
inline constexpr SubfieldRecord kBlankSubfield;
inline constexpr FieldRecord kBlankField;

class FieldTable {
 public:
  // Empties the table; memory stays for the next record.
  void Clear();

  std::int16_t Count() const { return count_; }
  bool Full() const { return count_ == kMaxRows; }

  FieldRecord& Field(std::int16_t row) { return fields_[static_cast<std::size_t>(row)]; }
  const FieldRecord& Field(std::int16_t row) const {
    return fields_[static_cast<std::size_t>(row)];
  }

  SubfieldRecord& Subfield(const FieldRecord& field, std::int16_t row) {
    return pool_[field.first_row + static_cast<std::size_t>(row)];
  }
  const SubfieldRecord& Subfield(const FieldRecord& field, std::int16_t row) const {
    return pool_[field.first_row + static_cast<std::size_t>(row)];
  }

  // Appends an empty field row and gives its index.  Not to be called when Full().
  std::int16_t AppendField() {
    const auto row = static_cast<std::size_t>(count_);
    if (row == fields_.size()) {
      fields_.emplace_back();
    } else {
      fields_[row] = kBlankField;
    }
    fields_[row].first_row = static_cast<std::uint32_t>(pool_used_);
    return count_++;
  }

  // Takes the last field row off again.
  void RemoveLastField() { --count_; }

  // The first live subfield with a code, from `row` on along the chain; kNoRow
  // without one.
  std::int16_t FindLive(const FieldRecord& field, char code, std::int16_t row) const {
    while (row != kNoRow) {
      const SubfieldRecord& subfield = Subfield(field, row);
      if (subfield.code == code && !subfield.deleted) break;
      row = subfield.next;
    }
    return row;
  }

  // Gives the field one more subfield row, cleared, and returns its index, or
  // kNoRow when the field can hold no more.  References into the pool go stale.
  std::int16_t AppendSubfield(FieldRecord& field) {
    if (field.subfield_max + 1 >= field.subfield_capacity && !Grow(field)) return kNoRow;
    ++field.subfield_max;
    Subfield(field, field.subfield_max) = kBlankSubfield;
    return field.subfield_max;
  }

  // The comparison forms of a subfield row that has some.
  const SubfieldNorms& Norms(const SubfieldRecord& subfield) const {
    return norms_[static_cast<std::size_t>(subfield.norms)];
  }
  void KeepNorms(SubfieldRecord& subfield, SubfieldNorms norms) {
    subfield.norms = static_cast<std::int32_t>(norms_.size());
    norms_.push_back(norms);
  }

  TextArena& Arena() { return arena_; }

 private:
  bool Grow(FieldRecord& field);

  std::vector<FieldRecord> fields_;
  std::vector<SubfieldRecord> pool_;
  std::vector<SubfieldNorms> norms_;
  std::size_t pool_used_ = 0;
  std::int16_t count_ = 0;
  TextArena arena_;
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FIELD_TABLE_H_

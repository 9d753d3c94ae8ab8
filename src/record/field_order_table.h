// The order of the fields of one family of formats: a list of tag ranges.
//
// A field belongs to the first range that holds its tag.  Its order key begins
// with the number of that row, so that the rows stand in the order in which the
// fields of a record should; the kind of the row says what orders the fields
// inside the range.

#ifndef CANTOREL_RECORD_FIELD_ORDER_TABLE_H_
#define CANTOREL_RECORD_FIELD_ORDER_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel {

// What orders the fields of a range.  The numbers are those of SetFldOrder.
enum class FieldOrderKind : std::int16_t {
  kNameTitle = 1,    // names ahead of name-titles (LCRI 21.30J)
  kGeneric = 2,      // the hundreds of the tag
  kIndicator2 = 3,   // the second indicator, then the thesaurus
  kLocal = 4,        // the tag, the institution's own $5 first
  kReference = 5,    // the relationship, then the heading
  kTag = 6,          // the tag
  kSubfield8 = 7,    // the sequence number in $8
  kPaired = 8,       // no order: turns the pairing of 880 fields on
  kNone = 9,         // no order at all
  kPairedLc = 10,    // as kPaired, after the practice of LC
  kIndicator1 = 11,  // the first indicator
  kRda33x = 12,      // the part of the resource ($3), then the tag
  kSubfieldC = 13,   // the text of $c
};

// The kind that a word of an order file names, in any case; kGeneric for an
// unknown word.
FieldOrderKind KindNamed(std::string_view word);

// The words in which a summary tells a kind, with a blank ahead.
std::string_view KindInWords(FieldOrderKind kind);

class FieldOrderTable {
 public:
  void Clear();
  bool Empty() const { return rows_.empty(); }
  // True when the first row leaves every tag where it stands.
  bool OrdersNothing() const { return orders_nothing_; }

  // Adds a row.  A tag is compared as text, so that any strings may be given.
  void Add(std::string_view low, std::string_view high, FieldOrderKind kind);

  // Closes the table with a row for all tags, unless it has one as its last.
  void EnsureGenericRow();

  // Where the fields of a tag belong: the first row that holds it, or without one
  // the last row.
  struct Place {
    FieldOrderKind kind;
    std::string_view number;  // of the row, from 1, at least three digits
    std::string_view key;     // the whole key, when it depends on nothing but the tag
  };
  // The tag is three digits.  Not to be asked of an empty table.  The views stay
  // valid until the table changes.
  Place Find(std::string_view tag) {
    if (places_.empty()) IndexTags();
    const int number = (tag[0] - '0') * 100 + (tag[1] - '0') * 10 + (tag[2] - '0');
    const TagPlace& place = places_[static_cast<std::size_t>(number)];
    return {place.kind, {place.key, place.number_length}, {place.key, place.key_length}};
  }

  // A line "low-high in words" for each row, ended by CR LF.
  std::string Summary() const;

 private:
  struct Row {
    std::string low;
    std::string high;
    FieldOrderKind kind;
    std::uint32_t low_octets;  // as numbers, for the search
    std::uint32_t high_octets;
  };
  // The answer for one tag.
  struct TagPlace {
    FieldOrderKind kind;
    std::uint8_t number_length;
    std::uint8_t key_length;  // 0: the key depends on more than the tag
    char key[8];
  };

  void IndexTags();
  const Row* RowOf(std::string_view tag) const;

  std::vector<Row> rows_;
  bool orders_nothing_ = false;
  std::vector<TagPlace> places_;  // by the number of the tag; empty: to be made
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FIELD_ORDER_TABLE_H_

// The order of the subfields of one family of formats: a pattern for each tag.

#ifndef CANTOREL_RECORD_SUBFIELD_ORDER_TABLE_H_
#define CANTOREL_RECORD_SUBFIELD_ORDER_TABLE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "record/subfield_pattern.h"

namespace cantorel {

// The tag that stands for every tag without a pattern of its own.
inline constexpr std::string_view kAllTags = "XXX";

// What a misplaced subfield should do.
enum class SubfieldMove : std::uint8_t { kNone, kLeft, kRight };

// A pattern made ready for questions about codes.
class SubfieldOrder {
 public:
  // A rule for all codes closes the pattern, unless it ends in one already, so
  // that a code which the pattern does not name stands behind all others.
  explicit SubfieldOrder(std::string_view pattern);

  // True for a code that more than one rule holds.  Which of them applies
  // depends on whether a $t stands before it: the title part of a name-title
  // repeats codes of the name part.
  bool IsRepeated(char code) const { return Slot(code) < kCodes && repeated_[Slot(code)]; }

  // Whether a subfield should stand earlier or later than it does.  `prev` and
  // `next` are the codes beside it, 0 for none.  `after_title` is whether a $t
  // stands before it, which counts only for a repeated code; it then holds for
  // the neighbours too.
  SubfieldMove Compare(char own, char prev, char next, bool after_title) const;

  // Whether a subfield may stay behind `prev` at the end of a field; the question
  // of a load, where nearly all stay.
  bool StaysLast(char own, char prev, bool after_title) const {
    const bool in_title = after_title && IsRepeated(own);
    return RuleOf(prev, in_title) < RuleOf(own, in_title) ||
           Compare(own, prev, '\0', after_title) == SubfieldMove::kNone;
  }

  const SubfieldPattern& Pattern() const { return pattern_; }

 private:
  using RuleIndex = std::uint16_t;
  static constexpr std::size_t kCodes = 128;  // all others are left to the last rule

  static std::size_t Slot(char code) { return static_cast<unsigned char>(code); }

  RuleIndex RuleOf(char code, bool after_title) const {
    return Slot(code) < kCodes ? rule_of_[after_title ? 1 : 0][Slot(code)] : last_rule_;
  }
  void FillRuleTables();
  static bool BelongsBefore(const SubfieldRule& rule, char right, char left);

  SubfieldPattern pattern_;
  RuleIndex last_rule_ = 0;
  std::array<std::array<RuleIndex, kCodes>, 2> rule_of_;
  std::array<bool, kCodes> repeated_ = {};
};

class SubfieldOrderTable {
 public:
  SubfieldOrderTable() { Clear(); }

  void Clear();
  // True when no pattern was set.
  bool Empty() const { return orders_.empty(); }

  // Sets or replaces the pattern of a tag.  A tag that is not three digits is
  // kept, and counts, but no field asks for it.
  void Set(std::string_view tag, std::string_view pattern);

  // The order of a tag, or that of "XXX", which without a pattern of its own
  // takes all codes as they come.
  const SubfieldOrder& Find(std::string_view tag) const;

  // Gives the table its row for all tags; done when a field first asks.
  void Finish() { finished_ = true; }
  // Rows, that for all tags included once the table is finished.
  std::int16_t Count() const;

 private:
  static constexpr std::size_t kTags = 1000;
  static constexpr std::int16_t kNoOrder = -1;

  std::int16_t RowOf(std::string_view tag) const;

  std::vector<std::string> tags_;
  std::vector<SubfieldOrder> orders_;         // beside tags_
  std::array<std::int16_t, kTags> order_of_;  // by the number of the tag
  std::int16_t order_of_all_ = kNoOrder;
  bool finished_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_SUBFIELD_ORDER_TABLE_H_

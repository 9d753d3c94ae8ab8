#include "record/subfield_order_table.h"

#include <algorithm>

#include "charset/octet_text.h"

namespace cantorel {

namespace {

constexpr std::string_view kAllCodes = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t kMaxRows = 32766;  // one more for all tags
constexpr std::size_t kMaxRules = 65535;

constexpr std::size_t kTagNumbers = 1000;

// The number of a tag of three digits, otherwise a number beyond them.
std::size_t TagNumber(std::string_view tag) {
  if (tag.size() != 3 || !std::all_of(tag.begin(), tag.end(), IsAsciiDigit)) return kTagNumbers;
  std::size_t number = 0;
  for (const char c : tag) number = number * 10 + static_cast<std::size_t>(c - '0');
  return number;
}

}  // namespace

// --- The order of one tag ------------------------------------------------------

SubfieldOrder::SubfieldOrder(std::string_view pattern) : pattern_(ParseSubfieldPattern(pattern)) {
  std::vector<SubfieldRule>& rules = pattern_.rules;
  if (rules.size() >= kMaxRules) rules.resize(kMaxRules - 1);
  if (rules.empty() || rules.back().codes != kAllCodes) {
    rules.push_back({SubfieldRuleKind::kAnyOrder, std::string(kAllCodes)});
  }
  last_rule_ = static_cast<RuleIndex>(rules.size() - 1);
  FillRuleTables();
}

// The first rule that holds a code counts.  Behind a $t a repeated code is looked
// for in the rules that hold "t" only.  What no rule holds is left to the last.
void SubfieldOrder::FillRuleTables() {
  for (const char code : pattern_.repeated_codes) {
    if (Slot(code) < kCodes) repeated_[Slot(code)] = true;
  }
  for (auto& rule_of : rule_of_) rule_of.fill(last_rule_);
  for (RuleIndex i = last_rule_; i-- > 0;) {
    const SubfieldRule& rule = pattern_.rules[i];
    const bool holds_title = rule.codes.find('t') != std::string::npos;
    for (const char code : rule.codes) {
      const std::size_t slot = Slot(code);
      if (slot >= kCodes) continue;
      rule_of_[0][slot] = i;
      if (holds_title || !IsRepeated(code)) rule_of_[1][slot] = i;
    }
  }
}

// Whether of two codes of one rule the one on the right belongs on the left.
bool SubfieldOrder::BelongsBefore(const SubfieldRule& rule, char right, char left) {
  if (rule.kind == SubfieldRuleKind::kAsWritten) {
    return rule.codes.find(right) < rule.codes.find(left);
  }
  return rule.kind == SubfieldRuleKind::kLeaderFirst && right == rule.codes.front() &&
         right != left;
}

SubfieldMove SubfieldOrder::Compare(char own, char prev, char next, bool after_title) const {
  after_title = after_title && IsRepeated(own);
  const RuleIndex here = RuleOf(own, after_title);
  // Codes of the first rule are not compared with each other: they stay as they
  // are, which is deliberate.
  const bool ordered_inside = here > 0;
  const SubfieldRule& rule = pattern_.rules[here];
  if (prev != '\0') {
    const RuleIndex before = RuleOf(prev, after_title);
    if (here < before) return SubfieldMove::kLeft;
    if (here == before && ordered_inside && BelongsBefore(rule, own, prev)) {
      return SubfieldMove::kLeft;
    }
  }
  if (next != '\0') {
    const RuleIndex behind = RuleOf(next, after_title);
    if (here > behind) return SubfieldMove::kRight;
    if (here == behind && ordered_inside && BelongsBefore(rule, next, own)) {
      return SubfieldMove::kRight;
    }
  }
  return SubfieldMove::kNone;
}

// --- The orders of a family ----------------------------------------------------

void SubfieldOrderTable::Clear() {
  tags_.clear();
  orders_.clear();
  order_of_.fill(kNoOrder);
  order_of_all_ = kNoOrder;
  finished_ = false;
}

void SubfieldOrderTable::Set(std::string_view tag, std::string_view pattern) {
  if (const std::int16_t row = RowOf(tag); row != kNoOrder) {
    orders_[static_cast<std::size_t>(row)] = SubfieldOrder(pattern);
    return;
  }
  if (orders_.size() == kMaxRows) return;
  const auto row = static_cast<std::int16_t>(orders_.size());
  tags_.emplace_back(tag);
  orders_.emplace_back(pattern);
  if (const std::size_t slot = TagNumber(tag); slot < kTags) order_of_[slot] = row;
  if (tag == kAllTags) order_of_all_ = row;
}

std::int16_t SubfieldOrderTable::RowOf(std::string_view tag) const {
  if (const std::size_t slot = TagNumber(tag); slot < kTags) return order_of_[slot];
  const auto found = std::find(tags_.begin(), tags_.end(), tag);
  return found == tags_.end() ? kNoOrder : static_cast<std::int16_t>(found - tags_.begin());
}

const SubfieldOrder& SubfieldOrderTable::Find(std::string_view tag) const {
  static const SubfieldOrder as_they_come("");
  const std::size_t slot = TagNumber(tag);
  const std::int16_t own = slot < kTags ? order_of_[slot] : kNoOrder;
  const std::int16_t row = own != kNoOrder ? own : order_of_all_;
  return row == kNoOrder ? as_they_come : orders_[static_cast<std::size_t>(row)];
}

std::int16_t SubfieldOrderTable::Count() const {
  const bool adds_all_tags = finished_ && order_of_all_ == kNoOrder;
  return static_cast<std::int16_t>(orders_.size() + (adds_all_tags ? 1 : 0));
}

}  // namespace cantorel

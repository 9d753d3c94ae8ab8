#include "record/field_order_table.h"

#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"
#include "charset/utf8.h"

namespace cantorel {

namespace {

constexpr std::string_view kFirstTag = "001";
constexpr std::string_view kLastTag = "999";
constexpr std::size_t kTags = 1000;
constexpr std::size_t kMaxRows = 32767;

struct KindName {
  std::string_view name;  // in capitals
  FieldOrderKind kind;
};

constexpr KindName kKindNames[] = {
    {"7", FieldOrderKind::kNameTitle},
    {"GENERIC", FieldOrderKind::kGeneric},
    {"INDICATOR2", FieldOrderKind::kIndicator2},
    {"2", FieldOrderKind::kIndicator2},
    {"IND2", FieldOrderKind::kIndicator2},
    {"INDIC2", FieldOrderKind::kIndicator2},
    {"LOCAL", FieldOrderKind::kLocal},
    {"5", FieldOrderKind::kLocal},
    {"NUC", FieldOrderKind::kLocal},
    {"REFERENCE", FieldOrderKind::kReference},
    {"REF", FieldOrderKind::kReference},
    {"TAG", FieldOrderKind::kTag},
    {"SFD8", FieldOrderKind::kSubfield8},
    {"PAIRED", FieldOrderKind::kPaired},
    {"P", FieldOrderKind::kPaired},
    {"PAIR", FieldOrderKind::kPaired},
    {"PAIRED LC", FieldOrderKind::kPairedLc},
    {"PAIREDLC", FieldOrderKind::kPairedLc},
    {"PLC", FieldOrderKind::kPairedLc},
    {"P LC", FieldOrderKind::kPairedLc},
    {"PAIRLC", FieldOrderKind::kPairedLc},
    {"PAIR LC", FieldOrderKind::kPairedLc},
    {"INDICATOR1", FieldOrderKind::kIndicator1},
    {"RDA33X", FieldOrderKind::kRda33x},
    {"SUBFIELDC", FieldOrderKind::kSubfieldC},
};

// The first four octets of a text as a number, so that numbers of tags compare
// as their texts do: a tag has three, and what a longer text holds beyond four
// makes no difference to it.
std::uint32_t FirstOctets(std::string_view text) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    number = number << 8 | (i < text.size() ? Octet(text[i]) : 0U);
  }
  return number;
}

// With zeros in front; a larger number keeps its digits.
std::string ThreeDigits(std::size_t number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

// What a kind adds to a key if that is a matter of the tag alone, otherwise
// nothing.
std::string_view KeyOfTag(FieldOrderKind kind, std::string_view tag) {
  switch (kind) {
    case FieldOrderKind::kTag:
      return tag;
    case FieldOrderKind::kNameTitle:
    case FieldOrderKind::kIndicator2:
    case FieldOrderKind::kLocal:
    case FieldOrderKind::kReference:
    case FieldOrderKind::kSubfield8:
    case FieldOrderKind::kNone:
    case FieldOrderKind::kIndicator1:
    case FieldOrderKind::kRda33x:
    case FieldOrderKind::kSubfieldC:
      return {};
    default:
      return tag.substr(0, 1);
  }
}

}  // namespace

FieldOrderKind KindNamed(std::string_view word) {
  std::string capitals(word);
  std::transform(capitals.begin(), capitals.end(), capitals.begin(), AsciiUpper);
  const auto* found = std::find_if(std::begin(kKindNames), std::end(kKindNames),
                                   [&](const KindName& k) { return k.name == capitals; });
  return found == std::end(kKindNames) ? FieldOrderKind::kGeneric : found->kind;
}

std::string_view KindInWords(FieldOrderKind kind) {
  switch (kind) {
    case FieldOrderKind::kNameTitle:
      return " by LCRI 21.30J";
    case FieldOrderKind::kIndicator2:
      return " by second indicator";
    case FieldOrderKind::kLocal:
      return " local $5 comes first";
    case FieldOrderKind::kReference:
      return " in reference order";
    case FieldOrderKind::kTag:
      return " by tag";
    case FieldOrderKind::kIndicator1:
      return " by first indicator";
    default:
      return " in generic order";
  }
}

void FieldOrderTable::Clear() {
  rows_.clear();
  orders_nothing_ = false;
  places_.clear();
}

void FieldOrderTable::Add(std::string_view low, std::string_view high, FieldOrderKind kind) {
  if (rows_.size() == kMaxRows) return;
  rows_.push_back({std::string(low), std::string(high), kind, FirstOctets(low), FirstOctets(high)});
  if (rows_.size() == 1) {
    orders_nothing_ = kind == FieldOrderKind::kNone && low <= "000" && high >= "999";
  }
  places_.clear();
}

void FieldOrderTable::EnsureGenericRow() {
  if (!rows_.empty() && rows_.back().low == kFirstTag && rows_.back().high == kLastTag) return;
  Add(kFirstTag, kLastTag, FieldOrderKind::kGeneric);
}

// Every field asks, so that the answers for all tags are made beforehand.
void FieldOrderTable::IndexTags() {
  places_.reserve(kTags);
  for (std::size_t number = 0; number < kTags; ++number) {
    const std::string tag = ThreeDigits(number);
    const Row* const row = RowOf(tag);
    TagPlace place = {row->kind, 0, 0, {}};
    std::string key = ThreeDigits(static_cast<std::size_t>(row - rows_.data()) + 1);
    place.number_length = static_cast<std::uint8_t>(key.size());
    key.append(KeyOfTag(row->kind, tag));
    if (key.size() > place.number_length) place.key_length = static_cast<std::uint8_t>(key.size());
    key.copy(place.key, sizeof(place.key));
    places_.push_back(place);
  }
}

const FieldOrderTable::Row* FieldOrderTable::RowOf(std::string_view tag) const {
  const std::uint32_t octets = FirstOctets(tag);
  const auto found = std::find_if(rows_.begin(), rows_.end() - 1, [octets](const Row& row) {
    return row.low_octets <= octets && octets <= row.high_octets;
  });
  return &*found;
}

std::string FieldOrderTable::Summary() const {
  std::string summary;
  for (const Row& row : rows_) {
    summary.append(row.low).append("-").append(row.high);
    summary.append(KindInWords(row.kind)).append("\r\n");
  }
  return summary;
}

}  // namespace cantorel

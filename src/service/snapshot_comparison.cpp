#include "service/snapshot_comparison.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <tuple>
#include <vector>

#include "service/text_parts.h"

namespace cantorel {
namespace {

using Order = std::tuple<std::string_view, std::string_view>;

Order KeyAndText(const FieldSnapshot* field) {
  return {field->compare_key, field->text};
}
std::string_view Key(const FieldSnapshot* field) {
  return field->compare_key;
}

// The fields before the conversion, found by key, so that a record of many
// thousand fields is compared in reasonable time.
class FieldsByKey {
 public:
  explicit FieldsByKey(const SnapshotList& list) {
    by_key_.reserve(list.Count());
    for (const FieldSnapshot& field : list) by_key_.push_back(&field);
    by_text_ = by_key_;
    std::ranges::stable_sort(by_key_, {}, Key);
    std::ranges::sort(by_text_, {}, KeyAndText);
  }

  bool HasSame(const FieldSnapshot& field) const {
    return std::ranges::binary_search(by_text_, KeyAndText(&field), {}, KeyAndText);
  }

  // The last field with the key in list order, or null.
  const FieldSnapshot* LastWithKey(std::string_view key) const {
    const auto end = std::ranges::upper_bound(by_key_, key, {}, Key);
    if (end == by_key_.begin()) return nullptr;
    const FieldSnapshot* last = *(end - 1);
    return last->compare_key == key ? last : nullptr;
  }

 private:
  std::vector<const FieldSnapshot*> by_key_;
  std::vector<const FieldSnapshot*> by_text_;
};

void AppendLine(const FieldSnapshot& field, std::string& lines) {
  if (!lines.empty()) lines += '\n';
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof(digits), field.field_id).ptr;
  lines.append(digits, end);
  lines += '\t';
  lines += field.tag;
  lines += field.indicators;
  AppendHexEncoded(field.text, lines);
  AppendHexEncoded(field.identifier_subfields, lines);
}

}  // namespace

void SettleAgainst(const SnapshotList& before, SnapshotList& after) {
  const FieldsByKey fields(before);
  for (FieldSnapshot& field : after) {
    const FieldSnapshot* replaced = fields.LastWithKey(field.compare_key);
    if (replaced == nullptr) continue;
    if (fields.HasSame(field)) {
      field.tag.clear();
      continue;
    }
    field.field_id = replaced->field_id;
    field.has_subfield9 = replaced->has_subfield9;
    field.identifier_subfields = replaced->identifier_subfields;
  }
}

void AppendReturnedLines(const SnapshotList& after, std::string& lines) {
  for (const FieldSnapshot& field : after) {
    if (field.field_id > 0 && !field.tag.empty()) AppendLine(field, lines);
  }
  for (const FieldSnapshot& field : after) {
    if (field.field_id == 0 && !field.tag.empty()) AppendLine(field, lines);
  }
}

}  // namespace cantorel

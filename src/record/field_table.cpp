#include "record/field_table.h"

#include <algorithm>
#include <cstring>

namespace cantorel {

namespace {

constexpr std::size_t kBlockSize = 16 * 1024;
constexpr std::int16_t kSubfieldStep = 5;  // rows a field takes at a time

}  // namespace

char* TextArena::Reserve(std::size_t size) {
  while (block_ < blocks_.size() && blocks_[block_].capacity - used_ < size) {
    ++block_;
    used_ = 0;
  }
  if (block_ == blocks_.size()) {
    const std::size_t capacity = std::max(kBlockSize, size);
    blocks_.push_back({std::make_unique_for_overwrite<char[]>(capacity), capacity});
    used_ = 0;
  }
  char* place = blocks_[block_].octets.get() + used_;
  used_ += size;
  return place;
}

std::string_view TextArena::Keep(std::string_view text) {
  if (text.empty()) return {};
  char* place = Reserve(text.size());
  std::memcpy(place, text.data(), text.size());
  return {place, text.size()};
}

void TextArena::Clear() {
  // A record of unusual size must not hold its memory for the rest of the run.
  std::erase_if(blocks_, [](const Block& block) { return block.capacity > kBlockSize; });
  block_ = 0;
  used_ = 0;
}

void FieldTable::Clear() {
  count_ = 0;
  pool_used_ = 0;
  norms_.clear();
  arena_.Clear();
}

// Gives the field room for more subfield rows; false when it can have no more.
// The field at the end of the pool grows where it is, as every field does while
// a record is loaded; any other moves to the end with twice the room, so that
// adding stays linear.
bool FieldTable::Grow(FieldRecord& field) {
  const auto used = static_cast<std::size_t>(field.subfield_max + 1);
  if (used >= static_cast<std::size_t>(kMaxRows)) return false;
  const auto capacity = static_cast<std::size_t>(field.subfield_capacity);
  const bool at_end = field.first_row + capacity == pool_used_;
  const std::size_t wanted = std::min<std::size_t>(
      std::max<std::size_t>(used + kSubfieldStep, at_end ? 0 : 2 * used), kMaxRows);
  const std::size_t start = at_end ? field.first_row : pool_used_;
  if (pool_.size() < start + wanted) pool_.resize(std::max(start + wanted, 2 * pool_.size()));
  if (!at_end) {
    const auto from = pool_.begin() + field.first_row;
    std::copy_n(from, used, pool_.begin() + static_cast<std::ptrdiff_t>(start));
  }
  field.first_row = static_cast<std::uint32_t>(start);
  field.subfield_capacity = static_cast<std::int16_t>(wanted);
  pool_used_ = start + wanted;
  return true;
}

}  // namespace cantorel

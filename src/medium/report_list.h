// A list that is filled for each record, read by a current index from 1, and
// emptied without giving its memory back.

#ifndef CANTOREL_MEDIUM_REPORT_LIST_H_
#define CANTOREL_MEDIUM_REPORT_LIST_H_

#include <cstddef>
#include <cstdint>
#include <vector>

namespace cantorel {

template <typename Item>
class ReportList {
 public:
  // A row at the end, holding whatever an earlier record left in it.
  Item& Append() {
    if (count_ == items_.size()) items_.emplace_back();
    return items_[count_++];
  }
  void Clear() {
    count_ = 0;
    index_ = 0;
  }

  std::int32_t Count() const { return static_cast<std::int32_t>(count_); }

  // Any value outside 1 to Count selects none, which reads 0.
  std::int32_t Index() const { return index_; }
  void Index(std::int32_t index) { index_ = index >= 1 && index <= Count() ? index : 0; }

  // The selected row, or null.
  const Item* Selected() const {
    return index_ == 0 ? nullptr : &items_[static_cast<std::size_t>(index_ - 1)];
  }

 private:
  std::vector<Item> items_;
  std::size_t count_ = 0;
  std::int32_t index_ = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_REPORT_LIST_H_

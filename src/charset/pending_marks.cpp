#include "charset/pending_marks.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "charset/combining_marks.h"

namespace cantorel {

const std::vector<PendingMark>& PendingMarks::InOrderOfUtf8() {
  std::sort(marks_.begin(), marks_.end(), [](const PendingMark& a, const PendingMark& b) {
    if (a.mark_class != b.mark_class) return a.mark_class < b.mark_class;
    return a.mark_class == kAbove ? a.arrival > b.arrival : a.arrival < b.arrival;
  });
  return marks_;
}

const std::vector<PendingMark>& PendingMarks::InOrderOfMarc8() {
  std::reverse(marks_.begin(), marks_.end());
  for (const std::uint8_t mark_class : {kAttachedBelow, kBelow, kAboveRight}) {
    ReverseThoseOf(mark_class);
  }
  return marks_;
}

// Exchanges the marks of one class end for end, among the places that they have.
void PendingMarks::ReverseThoseOf(std::uint8_t mark_class) {
  std::size_t low = 0;
  std::size_t high = marks_.size();
  while (true) {
    while (low < high && marks_[low].mark_class != mark_class) ++low;
    while (low < high && marks_[high - 1].mark_class != mark_class) --high;
    if (low + 1 >= high) return;
    std::swap(marks_[low++], marks_[--high]);
  }
}

}  // namespace cantorel

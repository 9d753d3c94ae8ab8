// Marks that wait for their letter.
//
// MARC-8 writes marks before the letter they belong to, UTF-8 behind it.  While
// text is translated the marks met are kept here and come out together.

#ifndef CANTOREL_CHARSET_PENDING_MARKS_H_
#define CANTOREL_CHARSET_PENDING_MARKS_H_

#include <cstdint>
#include <vector>

namespace cantorel {

struct PendingMark {
  std::uint32_t code_point;
  std::uint8_t mark_class;  // see MarkClass
  std::uint32_t arrival;    // counted from 0
};

class PendingMarks {
 public:
  void Add(std::uint32_t code_point, std::uint8_t mark_class) {
    marks_.push_back({code_point, mark_class, static_cast<std::uint32_t>(marks_.size())});
  }
  bool Empty() const { return marks_.empty(); }
  void Clear() { marks_.clear(); }

  const std::vector<PendingMark>& InOrderOfArrival() const { return marks_; }

  // The marks as they follow a letter in UTF-8, having arrived as MARC-8 writes
  // them: by class, those above in reverse order of arrival.
  const std::vector<PendingMark>& InOrderOfUtf8();

  // The marks as they precede a letter in MARC-8, having arrived as UTF-8 writes
  // them: put in front one by one, so the last comes first.  Those of one class
  // other than above stay in order, since the way in keeps theirs.
  const std::vector<PendingMark>& InOrderOfMarc8();

 private:
  void ReverseThoseOf(std::uint8_t mark_class);

  std::vector<PendingMark> marks_;
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_PENDING_MARKS_H_

// The text of a 382 field under construction, subfield by subfield.

#ifndef CANTOREL_MEDIUM_FIELD_382_H_
#define CANTOREL_MEDIUM_FIELD_382_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "charset/marc_control.h"

namespace cantorel {

// Steps through the subfields of a field text.  What stands before the first
// delimiter is passed over.  A code in the text behind may be changed under way.
//
//   for (SubfieldScanner s(text); s.Next();) use(s.Code(), s.Text());
class SubfieldScanner {
 public:
  explicit SubfieldScanner(std::string_view text) : text_(text), end_(text.find(kDelimiter)) {}

  // Goes to the next subfield; false behind the last.
  bool Next() {
    if (end_ == std::string_view::npos || end_ >= text_.size()) return false;
    start_ = end_;
    end_ = text_.find(kDelimiter, start_ + 1);
    if (end_ == std::string_view::npos) end_ = text_.size();
    return true;
  }
  // '\0' when the text ends in a delimiter.
  char Code() const { return start_ + 1 < end_ ? text_[start_ + 1] : '\0'; }
  std::string_view Text() const {
    return start_ + 2 < end_ ? text_.substr(start_ + 2, end_ - start_ - 2) : std::string_view();
  }
  // Delimiter, code and text.
  std::string_view Whole() const { return text_.substr(start_, end_ - start_); }
  // Octet positions from 0 of the delimiter, and of what follows the subfield.
  std::size_t Start() const { return start_; }
  std::size_t End() const { return end_; }
  bool IsLast() const { return end_ >= text_.size(); }

 private:
  std::string_view text_;
  std::size_t start_ = 0;
  std::size_t end_;
};

inline bool HasSubfield(std::string_view field, char code) {
  const char sought[] = {kDelimiter, code};
  return field.find(std::string_view(sought, 2)) != std::string_view::npos;
}

// Gives every subfield of one code another code.
inline void ChangeCodes(std::string& field, char from, char to) {
  for (std::size_t i = 1; i < field.size(); ++i) {
    if (field[i - 1] == kDelimiter && field[i] == from) field[i] = to;
  }
}

// Appends delimiter, code and text.
inline void AppendSubfield(std::string& field, char code, std::string_view text) {
  field += kDelimiter;
  field += code;
  field += text;
}

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_FIELD_382_H_

// Appends octets to a string and takes out every blank that follows a blank.

#ifndef CANTOREL_NORMALIZE_SQUEEZING_WRITER_H_
#define CANTOREL_NORMALIZE_SQUEEZING_WRITER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace cantorel {

// The string grows once, before the first octet, and is cut to what was written
// by Finish: a loop of Put has no growth test and no branch.
class SqueezingWriter {
 public:
  // `room` is the most octets that will be put.  With `trim` no blank stays at
  // either end of what is written; what `out` held before is not touched.
  SqueezingWriter(std::string& out, std::size_t room, bool trim)
      : out_(out), trim_(trim), after_blank_(trim) {
    const std::size_t size = out.size();
    out.resize(size + room + 1);  // one more, as Put also writes what it drops
    begin_ = end_ = out.data() + size;
  }

  // Puts one octet, or nothing when `present` is false.
  void Put(char octet, bool present = true) {
    *end_ = octet;
    const bool blank = octet == ' ';
    end_ += static_cast<unsigned>(present) & ~static_cast<unsigned>(blank && after_blank_) & 1U;
    after_blank_ = present ? blank : after_blank_;
  }

  void PutAll(std::string_view octets) {
    for (char octet : octets) Put(octet);
  }

  void Finish() {
    if (trim_ && end_ != begin_ && end_[-1] == ' ') --end_;
    out_.resize(static_cast<std::size_t>(end_ - out_.data()));
  }

 private:
  std::string& out_;
  char* begin_;
  char* end_;
  const bool trim_;
  bool after_blank_;
};

// Appends a text with runs of blanks reduced to one and none at either end.
inline void AppendTidy(std::string_view text, std::string& out) {
  SqueezingWriter writer(out, text.size(), true);
  writer.PutAll(text);
  writer.Finish();
}

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_SQUEEZING_WRITER_H_

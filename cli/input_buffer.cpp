#include "cli/input_buffer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>
#include <system_error>

namespace cantorel::cli {
namespace {

constexpr std::size_t kBufferSize = 256 * 1024;

}  // namespace

FileSource::FileSource(const std::string& name) : octets_(&file_) {
  if (name == "-") {
    octets_ = std::cin.rdbuf();
    return;
  }
  file_octets_.resize(kBufferSize);
  file_.pubsetbuf(file_octets_.data(), static_cast<std::streamsize>(file_octets_.size()));
  if (file_.open(name, std::ios::in | std::ios::binary) == nullptr) {
    error_ = std::generic_category().message(errno);
  }
}

std::size_t FileSource::Read(char* to, std::size_t size) {
  using Traits = std::streambuf::traits_type;
  // A stream buffer has no other way than an exception to tell a failure from
  // the end of the file.
  try {
    if (!error_.empty() || octets_->sgetc() == Traits::eof()) return 0;
    const std::streamsize at_hand = std::max<std::streamsize>(octets_->in_avail(), 1);
    const auto count = std::min(static_cast<std::streamsize>(size), at_hand);
    return static_cast<std::size_t>(octets_->sgetn(to, count));
  } catch (const std::system_error& failure) {
    error_ = failure.code().message();
    return 0;
  }
}

std::string_view InputBuffer::Peek(std::size_t wanted) {
  if (end_ - begin_ < wanted && !at_end_) {
    if (begin_ != 0) {
      std::memmove(octets_.data(), octets_.data() + begin_, end_ - begin_);
      end_ -= begin_;
      begin_ = 0;
    }
    if (octets_.size() < wanted) {
      octets_.resize(std::max({wanted, 2 * octets_.size(), kBufferSize}));
    }
    while (end_ < wanted && !at_end_) {
      const std::size_t count = source_.Read(octets_.data() + end_, octets_.size() - end_);
      end_ += count;
      at_end_ = count == 0;
    }
  }
  return {octets_.data() + begin_, end_ - begin_};
}

void InputBuffer::Skip(std::size_t count) {
  begin_ += count;
  offset_ += count;
}

}  // namespace cantorel::cli

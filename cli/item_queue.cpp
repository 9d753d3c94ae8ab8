#include "cli/item_queue.h"

#include <algorithm>
#include <string>

namespace cantorel::cli {
namespace {

constexpr std::size_t kSlots = 1024;
// Beyond so many octets on their way nothing more is read.
constexpr std::size_t kMostOctets = 16 * 1024 * 1024;
// The most records that a thread takes to convert at once.
constexpr std::uint64_t kLongestSpan = 64;
// The memory of a string that grew beyond this is given back.
constexpr std::size_t kMostKept = 64 * 1024;

std::size_t OctetsOf(const ConversionItem& item) {
  return item.octets.size() + item.element.size();
}

void GiveBack(std::string& text) {
  if (text.capacity() > kMostKept) std::string().swap(text);
}

}  // namespace

ItemQueue::ItemQueue(std::size_t converters)
    : converters_(converters), slots_(kSlots), converted_(kSlots) {}

// --- Reading -------------------------------------------------------------------

bool ItemQueue::HasRoom() const {
  const bool fits = read_ - written_ < slots_.size() && octets_ < kMostOctets;
  return fits || read_ == written_;  // a single record may be of any size
}

ItemQueue::Slot* ItemQueue::NextToRead() {
  std::unique_lock lock(mutex_);
  room_.wait(lock, [this] { return HasRoom() || stopped_; });
  return stopped_ ? nullptr : &At(read_);
}

void ItemQueue::HaveRead() {
  const std::lock_guard lock(mutex_);
  octets_ += OctetsOf(At(read_).item);
  converted_[read_ % slots_.size()] = false;
  ++read_;
  if (idle_ > 0) work_.notify_one();
}

void ItemQueue::EndInput() {
  const std::lock_guard lock(mutex_);
  input_ended_ = true;
  work_.notify_all();
  ready_.notify_one();
}

// --- Converting ----------------------------------------------------------------

bool ItemQueue::NextToConvert(Span& span) {
  std::unique_lock lock(mutex_);
  ++idle_;
  work_.wait(lock, [this] { return handed_out_ < read_ || input_ended_ || stopped_; });
  --idle_;
  if (stopped_ || handed_out_ == read_) return false;
  // A fair share of what is there, so that no thread is left without.
  const std::uint64_t waiting = read_ - handed_out_;
  const std::uint64_t share = (waiting + converters_ - 1) / converters_;
  span = {handed_out_, handed_out_ + std::min(share, kLongestSpan)};
  handed_out_ = span.end;
  return true;
}

void ItemQueue::HaveConverted(const Span& span) {
  const std::lock_guard lock(mutex_);
  for (std::uint64_t position = span.begin; position != span.end; ++position) {
    converted_[position % slots_.size()] = true;
  }
  if (IsReadyToWrite()) ready_.notify_one();
}

// --- Writing -------------------------------------------------------------------

bool ItemQueue::IsReadyToWrite() const {
  return written_ < handed_out_ && converted_[written_ % slots_.size()] != 0;
}

bool ItemQueue::NextToWrite(std::chrono::milliseconds patience, Span& span) {
  std::unique_lock lock(mutex_);
  const auto at_end = [this] { return stopped_ || (input_ended_ && written_ == read_); };
  ready_.wait_for(lock, patience, [&] { return IsReadyToWrite() || at_end(); });
  span = {written_, written_};
  while (span.end < handed_out_ && converted_[span.end % slots_.size()] != 0) ++span.end;
  return !at_end();
}

void ItemQueue::HaveWritten(const Span& span) {
  std::size_t octets = 0;
  for (std::uint64_t position = span.begin; position != span.end; ++position) {
    Slot& slot = At(position);
    octets += OctetsOf(slot.item);
    GiveBack(slot.item.octets);
    GiveBack(slot.item.element);
    GiveBack(slot.result.record);
    GiveBack(slot.result.text);
  }
  const std::lock_guard lock(mutex_);
  octets_ -= octets;
  written_ = span.end;
  room_.notify_one();
}

void ItemQueue::Stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  room_.notify_all();
  work_.notify_all();
  ready_.notify_all();
}

}  // namespace cantorel::cli

#include "cli/conversion_run.h"

#include <algorithm>
#include <chrono>

#include "cli/interruption.h"
#include "cli/item_reader.h"
#include "cli/output.h"
#include "cli/thread_converter.h"
#include "platform/terminal.h"

namespace cantorel::cli {
namespace {

constexpr std::chrono::milliseconds kPatience(100);

// Not among answers in the same terminal.
bool ShowsProgress(const ConvertOptions& options) {
  const bool lists = options.lists_answers || options.result == Result::kDifferences;
  return !options.quiet && !options.conversion.AskUser() && !(lists && IsTerminal(stdout));
}

}  // namespace

ConversionRun::ConversionRun(const ConvertOptions& options, Lookups& lookups)
    : options_(options), lookups_(lookups), queue_(options.jobs) {}

ConversionRun::~ConversionRun() {
  queue_.Stop();
  for (std::thread& thread : threads_) thread.join();
}

ConversionRun::End ConversionRun::WriteAll(ResultWriter& writer) {
  threads_.emplace_back([this] { Guard([this] { Read(); }); });
  for (std::size_t i = 0; i < options_.jobs; ++i) {
    threads_.emplace_back([this] { Guard([this] { Convert(); }); });
  }
  Progress progress(options_.files, ShowsProgress(options_));
  ItemQueue::Span span;
  while (queue_.NextToWrite(kPatience, span)) {
    // Who reads the answers has them when no more come for a while.
    if (span.begin == span.end && !FinishOutput()) return End::kCannotWrite;
    if (!Write(writer, progress, span)) return End::kCannotWrite;
    queue_.HaveWritten(span);
    if (WasInterrupted()) return End::kInterrupted;
    progress.Show();
  }
  const std::lock_guard lock(exception_mutex_);
  if (exception_ != nullptr) std::rethrow_exception(exception_);
  return End::kAllWritten;
}

// An exception in a thread ends the run; WriteAll passes it on.
template <typename Work>
void ConversionRun::Guard(Work work) {
  try {
    work();
  } catch (...) {
    {
      const std::lock_guard lock(exception_mutex_);
      if (exception_ == nullptr) exception_ = std::current_exception();
    }
    queue_.Stop();
  }
}

void ConversionRun::Read() {
  ItemReader reader(options_.files, options_.lines);
  while (ItemQueue::Slot* const slot = queue_.NextToRead()) {
    if (!reader.Next(slot->item)) break;
    queue_.HaveRead();
  }
  queue_.EndInput();
}

// --- Converting ----------------------------------------------------------------

void ConversionRun::Convert() {
  ThreadConverter converter(options_, lookups_);
  converter.Prepare();
  ItemQueue::Span span;
  while (queue_.NextToConvert(span)) {
    for (std::uint64_t position = span.begin; position != span.end; ++position) {
      ConvertAt(position, converter);
    }
    queue_.HaveConverted(span);
  }
}

void ConversionRun::ConvertAt(std::uint64_t position, ThreadConverter& converter) {
  ItemQueue::Slot& slot = queue_.At(position);
  if (!slot.item.read_error.empty()) return;
  if (IsBehindFailedLookup(position)) converter.GoOffline();
  if (!converter.Convert(slot.item, slot.result)) {
    NoteFailedLookup(position);
    converter.GoOffline();
    converter.Convert(slot.item, slot.result);
  }
  slot.looked_up = !converter.IsOffline();
}

void ConversionRun::NoteFailedLookup(std::uint64_t position) {
  std::uint64_t known = first_failure_;
  while (position < known && !first_failure_.compare_exchange_weak(known, position)) {
  }
}

bool ConversionRun::IsBehindFailedLookup(std::uint64_t position) const {
  return position >= first_failure_;
}

// --- Writing -------------------------------------------------------------------

// Threads that were ahead of a failed look-up still looked up themselves.
void ConversionRun::SettleLookups(std::uint64_t position) {
  ItemQueue::Slot& slot = queue_.At(position);
  if (!slot.looked_up || !IsBehindFailedLookup(position) || !slot.item.read_error.empty()) return;
  if (offline_converter_ == nullptr) {
    offline_converter_ = std::make_unique<ThreadConverter>(options_, lookups_);
    offline_converter_->GoOffline();
  }
  offline_converter_->Convert(slot.item, slot.result);
}

// By now everything ahead has been converted, so that the first failure is known.
bool ConversionRun::Write(ResultWriter& writer, Progress& progress, const ItemQueue::Span& span) {
  for (std::uint64_t position = span.begin; position != span.end; ++position) {
    SettleLookups(position);
    const ItemQueue::Slot& slot = queue_.At(position);
    progress.Count(slot.item);
    if (!slot.item.read_error.empty() || !slot.result.fault.empty()) progress.Erase();
    if (!writer.Write(slot.item, slot.result)) return false;
  }
  return true;
}

}  // namespace cantorel::cli

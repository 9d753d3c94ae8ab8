// A run of cantorel convert: several threads convert what one reads, each with
// service objects of its own.

#ifndef CANTOREL_CLI_CONVERSION_RUN_H_
#define CANTOREL_CLI_CONVERSION_RUN_H_

#include <atomic>
#include <cstdint>
#include <exception>
#include <limits>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "cli/convert_options.h"
#include "cli/item_queue.h"
#include "cli/lookups.h"
#include "cli/progress.h"
#include "cli/result_writer.h"

namespace cantorel::cli {

class ThreadConverter;

// The answers are the same and come in the same order, whatever the number of
// threads.  Records do not depend on each other, with one exception: the first
// look-up to which no answer comes is also the last one.  The record that it was
// for, and all behind it, are converted as if nothing were to be looked up.
class ConversionRun {
 public:
  // What is handed in must stay.
  ConversionRun(const ConvertOptions& options, Lookups& lookups);
  // Waits until every thread has come to its end, which a reader that waits for
  // input does not before there is some.
  ~ConversionRun();

  enum class End { kAllWritten, kCannotWrite, kInterrupted };

  // Reads, converts and writes everything.  At any other end than the first
  // threads may be left, waiting for input or for the service.
  End WriteAll(ResultWriter& writer);

 private:
  void Read();
  void Convert();
  void ConvertAt(std::uint64_t position, ThreadConverter& converter);
  void NoteFailedLookup(std::uint64_t position);
  bool IsBehindFailedLookup(std::uint64_t position) const;
  void SettleLookups(std::uint64_t position);
  bool Write(ResultWriter& writer, Progress& progress, const ItemQueue::Span& span);
  template <typename Work>
  void Guard(Work work);

  const ConvertOptions& options_;
  Lookups& lookups_;
  ItemQueue queue_;
  std::vector<std::thread> threads_;
  // The first position known so far at which a look-up failed.
  std::atomic<std::uint64_t> first_failure_ = std::numeric_limits<std::uint64_t>::max();
  // Of the thread that writes; made when it is needed.
  std::unique_ptr<ThreadConverter> offline_converter_;
  std::mutex exception_mutex_;
  std::exception_ptr exception_;  // that ended a thread
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERSION_RUN_H_

// Records on their way through the threads of a run: read by one thread,
// converted by several, written by one in the order in which they were read.

#ifndef CANTOREL_CLI_ITEM_QUEUE_H_
#define CANTOREL_CLI_ITEM_QUEUE_H_

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

#include "cli/conversion_item.h"

namespace cantorel::cli {

// A ring of slots, whose strings serve one record after the other.  Whoever is
// ahead of the others waits, so that the memory does not grow with the input; but
// a record goes on as soon as it was read, whether another follows or not.
//
// A slot belongs to the thread that was given its position last.
class ItemQueue {
 public:
  struct Slot {
    ConversionItem item;
    ConversionResult result;
    bool looked_up = false;  // converted by a thread that may look up
  };

  // Positions in the run, from 0; the end is behind the last.
  struct Span {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
  };

  explicit ItemQueue(std::size_t converters);

  Slot& At(std::uint64_t position) { return slots_[position % slots_.size()]; }

  // --- For the thread that reads ------------------------------------------------

  // The slot to read into; null when the run was stopped.
  Slot* NextToRead();
  void HaveRead();
  // Nothing more will be read.
  void EndInput();

  // --- For each thread that converts ----------------------------------------------

  // False when there is nothing more to do.
  bool NextToConvert(Span& span);
  void HaveConverted(const Span& span);

  // --- For the thread that writes ---------------------------------------------------

  // What is ready, in order; nothing when the time is over.  False at the end.
  bool NextToWrite(std::chrono::milliseconds patience, Span& span);
  void HaveWritten(const Span& span);

  // Lets every thread come to its end.
  void Stop();

 private:
  bool HasRoom() const;
  bool IsReadyToWrite() const;

  const std::size_t converters_;
  std::vector<Slot> slots_;

  std::mutex mutex_;  // for all below
  std::condition_variable room_;
  std::condition_variable work_;
  std::condition_variable ready_;
  std::vector<char> converted_;  // for each slot
  std::uint64_t read_ = 0;       // how many were read, handed out to convert, written
  std::uint64_t handed_out_ = 0;
  std::uint64_t written_ = 0;
  std::size_t octets_ = 0;  // of the records on their way
  std::size_t idle_ = 0;    // threads that wait for something to convert
  bool input_ended_ = false;
  bool stopped_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ITEM_QUEUE_H_

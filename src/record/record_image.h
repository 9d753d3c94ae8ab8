// The ISO 2709 image of a record: its frame and its directory, without any
// table behind it.  Positions in the comments count from 1, as MARC's structure
// tables do.
//
//   1-24          leader; 1-5 record length, 13-17 base address of data
//   25 to base-1  directory, 12 characters a field: tag, length, start
//   base          end of field
//   base+1 ...    data
//   last          end of record

#ifndef CANTOREL_RECORD_RECORD_IMAGE_H_
#define CANTOREL_RECORD_RECORD_IMAGE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

inline constexpr std::size_t kLeaderLength = 24;
inline constexpr std::size_t kDirectoryEntryLength = 12;

// What is wrong with the frame of an image; empty when nothing is.
std::string_view MarcFrameFault(std::string_view image);

// How many blanks the leader lost ahead of its entry map "45", and where they
// belong (from 0).  A leader without "45" lost none.
struct LeaderLoss {
  std::size_t position = 0;
  std::size_t blanks = 0;
};
LeaderLoss FindLeaderLoss(std::string_view image);

// The value of the base address in a leader.
std::int32_t BaseAddress(std::string_view image);

// One entry of the directory.
struct DirectoryEntry {
  std::string_view whole;  // the 12 characters
  std::string_view tag;
  std::string_view text;  // the field in the data, without its end of field
};

// Reads the entry at `position` of the directory.  An entry that points past
// the data has what is left there, or an empty text.
DirectoryEntry ReadDirectoryEntry(std::string_view directory, std::size_t position,
                                  std::string_view data);

// Writes `number` as `width` digits at `place`; of a larger number the high
// digits are lost, as the structure has no room for them.
void WriteDigits(std::size_t number, std::size_t width, char* place);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_RECORD_IMAGE_H_

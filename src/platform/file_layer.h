// Files as the rest of Cantorel sees them: whole, by name, opened and closed in
// one operation.
//
// File and folder names may use '\' as separator, as the hosts that Cantorel
// was made for write them; every function here turns it into what the system
// wants.  The calls of the operating system stay behind this header.

#ifndef CANTOREL_PLATFORM_FILE_LAYER_H_
#define CANTOREL_PLATFORM_FILE_LAYER_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// The name as the system wants it: every '\' turned into '/'.
std::string NativePath(std::string_view path);

// What tells one state of a file from another.  Only plain files count: a
// folder, a device or a pipe is as good as missing.
struct FileStamp {
  bool exists = false;
  std::int64_t size = 0;         // octets
  std::int64_t modified_ns = 0;  // nanoseconds since 1970
  std::uint64_t inode = 0;       // a file replaced by renaming gets another

  bool operator==(const FileStamp&) const = default;
};

// The present state of a file.  `native_path` is a result of NativePath, so
// that asking again and again costs one system call and no memory.
FileStamp StampOf(const std::string& native_path);

// True when the stamp is so young that a second change of the file could leave
// it as it is, because the clock of file times moves in steps.
bool StampMayRepeat(const FileStamp& stamp);

// True for a plain file.
bool FileExists(std::string_view path);

// Reads a plain file whole.  False, with `content` empty, when there is none or
// it cannot be read.
bool ReadWholeFile(std::string_view path, std::string& content);

// Writes a file, replacing what it held.  False when any octet was not written.
bool WriteWholeFile(std::string_view path, std::string_view content);

// The folder of the running program, without a separator at the end; empty when
// the system does not tell.
std::string ProgramFolder();

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_FILE_LAYER_H_

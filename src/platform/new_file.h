// A file that takes the place of another when it is complete.

#ifndef CANTOREL_PLATFORM_NEW_FILE_H_
#define CANTOREL_PLATFORM_NEW_FILE_H_

#include <cstdio>
#include <string>
#include <string_view>

namespace cantorel {

// Written beside its target under a name that no other writer uses, so that
// whoever reads the target meanwhile, or after the writer has failed, finds what
// stood there.
class NewFile {
 public:
  // '\' counts as separator.
  explicit NewFile(std::string_view target);
  // Removes what was not put in place.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // False when nothing can be written in the folder of the target.
  bool IsOpen() const { return file_ != nullptr; }

  // Writes the content and puts the file in the place of its target.  False, the
  // target being as it was, when either failed.
  bool Complete(std::string_view content);

 private:
  std::string target_;
  std::string name_;
  std::FILE* file_;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_NEW_FILE_H_

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
  // `target` is a name as the system wants it.
  explicit NewFile(std::string target);
  // Removes what was not put in place.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // False when nothing can be written in the folder of the target.
  bool IsOpen() const { return file_ != nullptr; }

  // Puts `ending` behind the name that the file is to have.
  void AddToTarget(std::string_view ending) { target_ += ending; }

  // All of these answer false, errno telling why, when the system refuses.
  bool Write(std::string_view content);
  // Puts what was written in the place of the target.  After a failure, here or
  // in Write, the target is as it was.
  bool Complete();

 private:
  std::string target_;
  std::string name_;
  std::FILE* file_;
  bool sound_ = true;  // every octet so far was taken
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_NEW_FILE_H_

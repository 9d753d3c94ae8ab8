// The dialog in which a user chooses a file.

#ifndef CANTOREL_PLATFORM_FILE_DIALOG_H_
#define CANTOREL_PLATFORM_FILE_DIALOG_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// The file must exist.
inline constexpr std::int32_t kFileMustExist = 4096;

struct FileDialogRequest {
  std::string_view filter;  // label, '|', pattern: "Text files|*.txt"
  std::string_view title;
  std::string_view start_folder;
  std::int32_t flags = 0;
  bool cancel_is_error = false;  // a cancelled dialog is told from an empty choice
};

class FileDialog {
 public:
  virtual ~FileDialog() = default;

  // Shows the dialog.  True with the full path of the file chosen, which may be
  // empty; false when the user cancelled.
  virtual bool Choose(const FileDialogRequest& request, std::string& file) = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_FILE_DIALOG_H_

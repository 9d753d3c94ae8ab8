#include "service/options_form.h"

namespace cantorel {

void OptionsForm::Browse(FileDialog& dialog) {
  FileDialogRequest request;
  request.filter = "Text files|*.txt";
  request.title = "Find text file in configuration folder";
  request.start_folder = folder_;
  request.flags = kFileMustExist;
  request.cancel_is_error = true;

  std::string file;
  const bool chosen = dialog.Choose(request, file);
  const std::size_t backslash = chosen ? file.rfind('\\') : std::string::npos;
  ok_enabled_ = backslash != std::string::npos;
  folder_ = ok_enabled_ ? file.substr(0, backslash + 1) : std::string();
  dialog_done_ = true;
}

void OptionsForm::Ok() {
  if (folder_.empty()) return;
  dialog_result_ = 1;
  visible_ = false;
}

void OptionsForm::Cancel() {
  dialog_result_ = 0;
  visible_ = false;
}

}  // namespace cantorel

// The options form without its window: what its controls hold and what its
// buttons do.  A host with a desktop draws it; AddFields never shows it.

#ifndef CANTOREL_SERVICE_OPTIONS_FORM_H_
#define CANTOREL_SERVICE_OPTIONS_FORM_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_dialog.h"

namespace cantorel {

class OptionsForm {
 public:
  static constexpr std::string_view kCaption = "Cantorel options";
  static constexpr std::string_view kFolderCaption = "Configuration folder:";
  static constexpr std::string_view kBrowseCaption = "&Browse ...";
  static constexpr std::string_view kOkCaption = "&OK";
  static constexpr std::string_view kCancelCaption = "&Cancel";
  static constexpr std::string_view kReadSpreadsheetCaption = "&Read spreadsheet";

  // The configuration folder in the text box.
  std::string Folder() const { return folder_; }
  void Folder(std::string_view folder) { folder_ = folder; }
  bool OkEnabled() const { return ok_enabled_; }

  bool Visible() const { return visible_; }
  void Show() { visible_ = true; }

  // 1 after OK, 0 after Cancel.
  std::int32_t DialogResult() const { return dialog_result_; }
  // Whether Browse or Read spreadsheet was used.
  bool DialogDone() const { return dialog_done_; }

  // The buttons.  Browse asks for a text file in the folder wanted and keeps
  // its folder; without a choice the folder is emptied and OK disabled.  OK
  // does nothing while the folder is empty.
  void Browse(FileDialog& dialog);
  void Ok();
  void Cancel();
  void ReadSpreadsheet() { dialog_done_ = true; }

 private:
  std::string folder_;
  bool ok_enabled_ = true;
  bool visible_ = false;
  std::int32_t dialog_result_ = 0;
  bool dialog_done_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_OPTIONS_FORM_H_

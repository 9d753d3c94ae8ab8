#include "service/options_form.h"

#include <gtest/gtest.h>

namespace cantorel {
namespace {

class FakeDialog : public FileDialog {
 public:
  FakeDialog(bool chosen, std::string file) : chosen_(chosen), file_(std::move(file)) {}

  bool Choose(const FileDialogRequest& request, std::string& file) override {
    request_ = request;
    start_folder_ = request.start_folder;
    file = file_;
    return chosen_;
  }

  FileDialogRequest request_;
  std::string start_folder_;

 private:
  bool chosen_;
  std::string file_;
};

TEST(OptionsForm, AsksForATextFileInTheFolder) {
  OptionsForm form;
  form.Folder("C:\\config\\");
  FakeDialog dialog(true, "D:\\music\\data\\MusicMedium.Lcmpt.txt");
  form.Browse(dialog);
  EXPECT_EQ(dialog.request_.filter, "Text files|*.txt");
  EXPECT_EQ(dialog.request_.title, "Find text file in configuration folder");
  EXPECT_EQ(dialog.start_folder_, "C:\\config\\");
  EXPECT_EQ(dialog.request_.flags, 4096);
  EXPECT_TRUE(dialog.request_.cancel_is_error);
  EXPECT_EQ(form.Folder(), "D:\\music\\data\\");
  EXPECT_TRUE(form.OkEnabled());
  EXPECT_TRUE(form.DialogDone());
}

TEST(OptionsForm, WithoutAFileInAFolderThereIsNothingToAccept) {
  const std::pair<bool, std::string> answers[] = {
      {false, "C:\\a\\b.txt"}, {true, ""}, {true, "b.txt"}, {true, "/a/b.txt"}};
  for (const auto& [chosen, file] : answers) {
    OptionsForm form;
    form.Folder("C:\\config\\");
    form.Show();
    FakeDialog dialog(chosen, file);
    form.Browse(dialog);
    EXPECT_EQ(form.Folder(), "") << file;
    EXPECT_FALSE(form.OkEnabled()) << file;
    form.Ok();
    EXPECT_TRUE(form.Visible()) << file;
    EXPECT_EQ(form.DialogResult(), 0) << file;
  }
}

TEST(OptionsForm, OkAndCancelHideIt) {
  OptionsForm form;
  form.Folder("C:\\config\\");
  form.Show();
  form.Ok();
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.DialogResult(), 1);
  form.Show();
  form.Cancel();
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.DialogResult(), 0);
  EXPECT_FALSE(form.DialogDone());
  form.ReadSpreadsheet();
  EXPECT_TRUE(form.DialogDone());
}

}  // namespace
}  // namespace cantorel

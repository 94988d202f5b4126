// The run's dialogues: the file-exists rule, Skip and Cancel, the manual
// rename's Cancel question.
#include "run_dialogs.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "gui/gui_test_support.h"
#include "shell/scripted_interaction.h"

namespace tarnwick::testing {
namespace {

using gui::FileExistsDialog;
using gui::ManualRenameDialog;

class RunDialogsTest : public GuiTest {
 protected:
  FileExistsRequest Request() {
    FileExistsRequest request;
    request.proposed_name = "Report.txt";
    request.folder = "/tmp";
    request.original_name = "old.txt";
    request.skip_all_others = false;
    return request;
  }
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  ScriptedInteraction notices;
};

TEST_F(RunDialogsTest, FileExistsOkNeedsANameThatDiffersByMoreThanCase) {
  notices.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  FileExistsDialog dialog(Request(), messages, notices);
  EXPECT_EQ(dialog.name_field()->text(), "Report.txt");

  EXPECT_FALSE(dialog.Ok());  // the proposal itself
  dialog.name_field()->setText("REPORT.TXT");
  EXPECT_FALSE(dialog.Ok());  // only the case differs
  ASSERT_EQ(notices.asked().size(), 2u);
  EXPECT_EQ(notices.asked()[0].title, "Filename");
  EXPECT_EQ(notices.asked()[0].text, "You MUST enter another name to rename the file.");
  EXPECT_NE(dialog.result(), QDialog::Accepted);

  dialog.name_field()->clear();
  QTest::keyClicks(dialog.name_field(), "Report (2).txt");
  QTest::mouseClick(dialog.skip_all_box(), Qt::LeftButton);
  EXPECT_TRUE(dialog.Ok());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.answer().choice, FileExistsChoice::kOk);
  EXPECT_EQ(dialog.answer().file_name, "Report (2).txt");
  EXPECT_TRUE(dialog.answer().skip_all_others);
  EXPECT_EQ(notices.asked().size(), 2u);
}

TEST_F(RunDialogsTest, FileExistsSkipAndCancelKeepTheTick) {
  FileExistsRequest request = Request();
  request.skip_all_others = true;
  FileExistsDialog skip(request, messages, notices);
  skip.Skip();
  EXPECT_EQ(skip.answer().choice, FileExistsChoice::kSkip);
  EXPECT_TRUE(skip.answer().skip_all_others);

  // Esc is no answer here: the run goes on only through a button.
  FileExistsDialog cancel(Request(), messages, notices);
  cancel.show();
  QTest::keyClick(&cancel, Qt::Key_Escape);
  EXPECT_TRUE(cancel.isVisible());
  EXPECT_NE(cancel.answer().choice, FileExistsChoice::kCancel);
  cancel.findChild<QPushButton*>("cmdCancel")->click();
  EXPECT_EQ(cancel.answer().choice, FileExistsChoice::kCancel);
  EXPECT_FALSE(cancel.isVisible());
  EXPECT_TRUE(notices.asked().empty());
}

TEST_F(RunDialogsTest, ManualRenameCancelAsksAndGivesBackTheOriginalName) {
  ManualRenameRequest request;
  request.file_name = "IMG_old.txt";
  request.original_name = "old.txt";
  request.cursor.to_extension = true;
  ManualRenameDialog dialog(request, messages, notices);
  EXPECT_EQ(dialog.name_field()->selectedText(), "IMG_old");

  notices.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_FALSE(dialog.CancelRenaming());
  EXPECT_TRUE(dialog.CancelRenaming());
  EXPECT_TRUE(dialog.answer().cancelled);
  EXPECT_EQ(dialog.answer().file_name, "old.txt");
  EXPECT_TRUE(notices.failures().empty());

  ManualRenameDialog edited(request, messages, notices);
  edited.name_field()->setText("new name.txt");
  EXPECT_TRUE(edited.Ok());
  EXPECT_FALSE(edited.answer().cancelled);
  EXPECT_EQ(edited.answer().file_name, "new name.txt");
  EXPECT_TRUE(edited.answer().cursor.to_extension);
}

}  // namespace
}  // namespace tarnwick::testing

// The run's dialogues: the file-exists rule, Skip and Cancel, the manual
// rename's Cancel question.
#include "run_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "gui/gui_test_support.h"
#include "qt_interaction.h"
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

// Cancel asks nothing here (the run asks once the dialogue is closed) and
// gives the present name back.
TEST_F(RunDialogsTest, ManualRenameCancelGivesBackTheOriginalNameWithoutAsking) {
  ManualRenameRequest request;
  request.file_name = "IMG_old.txt";
  request.original_name = "old.txt";
  request.cursor.to_extension = true;
  ManualRenameDialog dialog(request, messages, notices);
  EXPECT_EQ(dialog.name_field()->selectedText(), "IMG_old");
  dialog.CancelRenaming();
  EXPECT_TRUE(dialog.answer().cancelled);
  EXPECT_EQ(dialog.answer().file_name, "old.txt");
  EXPECT_TRUE(notices.asked().empty());

  ManualRenameDialog edited(request, messages, notices);
  edited.name_field()->setText("new name.txt");
  EXPECT_TRUE(edited.Ok());
  EXPECT_FALSE(edited.answer().cancelled);
  EXPECT_EQ(edited.answer().file_name, "new name.txt");
  EXPECT_TRUE(edited.answer().cursor.to_extension);
}

// "Select filename" with its two positions (caret positions, counted in
// characters), the whole name, the extension tick, and the reset buttons.
TEST_F(RunDialogsTest, ManualRenameSelectsByPositionAndResetsApplyTheSelection) {
  ManualRenameRequest request;
  request.file_name = "\xF0\x9F\x98\x80 Beach 2024.jpg";  // an emoji first
  request.original_name = "beach.jpg";
  request.cursor.change_cursor_start = true;
  request.cursor.start_position = 2;
  request.cursor.end_position = 7;
  ManualRenameDialog dialog(request, messages, notices);
  EXPECT_EQ(dialog.name_field()->selectedText(), "Beach");
  auto* start = dialog.findChild<QComboBox*>("cboStartPos");
  auto* end = dialog.findChild<QComboBox*>("cboEndPos");
  ASSERT_NE(start, nullptr);
  ASSERT_NE(end, nullptr);
  EXPECT_EQ(start->count(), 17);  // 0 to the 16 characters of the name
  EXPECT_TRUE(start->isEnabled());
  end->setCurrentIndex(12);
  EXPECT_EQ(dialog.name_field()->selectedText(), "Beach 2024");

  auto* whole = dialog.findChild<QCheckBox*>("chkSelectAll");
  whole->setChecked(true);
  EXPECT_EQ(dialog.name_field()->selectedText(), dialog.name_field()->text());
  EXPECT_FALSE(start->isEnabled());
  whole->setChecked(false);

  dialog.findChild<QCheckBox*>("chkCursor")->setChecked(false);
  dialog.findChild<QCheckBox*>("chkExtension")->setChecked(true);
  dialog.findChild<QPushButton*>("cmdReset")->click();
  EXPECT_EQ(dialog.name_field()->text(), "beach.jpg");
  EXPECT_EQ(dialog.name_field()->selectedText(), "beach");
  dialog.findChild<QPushButton*>("cmdResetToRenamed")->click();
  EXPECT_EQ(dialog.name_field()->text().toStdString(), request.file_name);

  dialog.findChild<QCheckBox*>("chkCursor")->setChecked(true);
  ASSERT_TRUE(dialog.Ok());
  const ManualRenameCursor cursor = dialog.answer().cursor;
  EXPECT_TRUE(cursor.change_cursor_start);
  EXPECT_EQ(cursor.start_position, 2);
  EXPECT_EQ(cursor.end_position, 12);
  EXPECT_TRUE(cursor.to_extension);
  EXPECT_FALSE(cursor.select_all);
}

TEST_F(RunDialogsTest, TheStartQuestionCountsTheCollisions) {
  gui::StartRenamingDialog none(messages);
  EXPECT_EQ(none.findChild<QLabel*>("lblCollisions"), nullptr);
  gui::StartRenamingDialog one(messages, 1);
  ASSERT_NE(one.findChild<QLabel*>("lblCollisions"), nullptr);
  EXPECT_EQ(one.findChild<QLabel*>("lblCollisions")->text(), "1 new name collides");
  gui::StartRenamingDialog many(messages, 30);
  EXPECT_EQ(many.findChild<QLabel*>("lblCollisions")->text(), "30 new names collide");
}

TEST_F(RunDialogsTest, AShortMessageIsWideEnoughForItsWholeTitle) {
  gui::QtInteraction ui(messages, nullptr, nullptr);
  int width = 0;
  int title_width = 0;
  QTimer::singleShot(0, [&] {
    QMessageBox* box = nullptr;
    ASSERT_TRUE(WaitFor([&] { return (box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())); }));
    width = box->width();
    title_width = box->fontMetrics().horizontalAdvance(box->windowTitle());
    box->button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(ui.ShowMessage({"No files selected", "No!", Buttons::kOk, MessageIcon::kExclamation,
                            Topic::kNotice}),
            Answer::kOk);
  EXPECT_GT(width, title_width + 100);
}

TEST_F(RunDialogsTest, TheSummaryCountsTheRunAndOffersLogAndUndo) {
  gui::RunSummaryDialog copied({1, 4, 1, 2, true}, messages);
  EXPECT_EQ(copied.windowTitle(), "Run cancelled");
  EXPECT_EQ(copied.findChild<QLabel*>("lblSummary")->text(), "4 copied, 1 skipped, 2 failed");
  copied.findChild<QPushButton*>("cmdShowLog")->click();
  EXPECT_EQ(copied.choice(), RunSummaryChoice::kShowLog);

  const MessageTable& german = MessageTable::Get(Language::kGerman);
  gui::RunSummaryDialog renamed({0, 3, 0, 0, false}, german);
  EXPECT_EQ(renamed.windowTitle(), "Lauf beendet");
  EXPECT_EQ(renamed.findChild<QLabel*>("lblSummary")->text(),
            "3 umbenannt, 0 übersprungen, 0 fehlgeschlagen");
  renamed.findChild<QPushButton*>("cmdUndo")->click();
  EXPECT_EQ(renamed.choice(), RunSummaryChoice::kUndo);

  // Nothing done: nothing to take back.
  gui::RunSummaryDialog none({0, 0, 2, 0, false}, messages);
  EXPECT_FALSE(none.findChild<QPushButton*>("cmdUndo")->isEnabled());
}

}  // namespace

}  // namespace tarnwick::testing

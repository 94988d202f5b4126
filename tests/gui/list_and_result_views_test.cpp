// The list model over the core's rows, the test result list's colours and
// clipboard text, and the save dialogue's answer.
#include <QBrush>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "file_list_model.h"
#include "gui/gui_test_support.h"
#include "save_settings_dialog.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"
#include "test_results_dialog.h"

namespace tarnwick::testing {
namespace {

using gui::FileListModel;

class ListModelTest : public GuiTest {
 protected:
  ListModelTest() {
    const std::uint32_t folder = list.AddFolder("/photos");
    for (const char* name : {"b.jpg", "a.jpg", "c.jpg"}) {
      FileRow row;
      row.name = name;
      row.folder = folder;
      row.size = 2048;
      list.Append(row);
    }
  }
  QString Cell(const FileListModel& model, int row, int column) {
    return model.data(model.index(row, column), Qt::DisplayRole).toString();
  }
  FileList list;
  NewNamePreview preview;
};

TEST_F(ListModelTest, RowsShowOnlyAfterRefreshAndRowsGoneReadEmpty) {
  FileListModel model(list, preview);
  EXPECT_EQ(model.rowCount(), 0);
  model.Refresh();
  ASSERT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.columnCount(), file_column::kCount + 1);
  EXPECT_EQ(Cell(model, 1, file_column::kName), "a.jpg");
  EXPECT_EQ(Cell(model, 1, file_column::kPath), "/photos");
  EXPECT_EQ(Cell(model, 0, file_column::kSizeBytes), "2048");
  // A fill empties the list underneath; the view's rows read as empty until
  // the next Refresh.
  list.Clear();
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(Cell(model, 2, file_column::kName), "");
  EXPECT_EQ(Cell(model, 2, FileListModel::kNewNameColumn), "");
  model.Refresh();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ListModelTest, HeadingsAndTheNewNameColumn) {
  FileListModel model(list, preview);
  std::array<std::string, file_column::kCount> headings;
  headings[file_column::kName] = "Name";
  model.SetHeadings(headings, "New name");
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Name");
  EXPECT_EQ(
      model.headerData(FileListModel::kNewNameColumn, Qt::Horizontal, Qt::DisplayRole).toString(),
      "New name");
  EXPECT_FALSE(model.headerData(99, Qt::Horizontal, Qt::DisplayRole).isValid());
  model.Refresh();
  EXPECT_FALSE(
      model.data(model.index(0, FileListModel::kNewNameColumn), Qt::ForegroundRole).isValid());
}

class ResultViewsTest : public GuiTest {
 protected:
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  ScriptedInteraction interaction;
};

TEST_F(ResultViewsTest, TestResultsAreColouredAndCopiedAsPathPairs) {
  const std::vector<TestResultRow> rows = {{"same.txt", "same.txt", "/a"},
                                           {"old.txt", "new.txt", "/a/"},
                                           {"bad.txt", "<Could not be written>", "/b"}};
  gui::TestResultsDialog dialog(rows, messages, interaction);
  QTreeWidget* list = dialog.list();
  ASSERT_EQ(list->topLevelItemCount(), 3);
  EXPECT_EQ(list->topLevelItem(0)->foreground(1).color(), QColor(Qt::blue));
  EXPECT_EQ(list->topLevelItem(1)->foreground(1).color(), QColor(Qt::black));
  EXPECT_EQ(list->topLevelItem(2)->foreground(1).color(), QColor(Qt::red));
  EXPECT_TRUE(list->topLevelItem(2)->font(1).bold());
  EXPECT_EQ(dialog.ClipboardText(),
            "/a/same.txt\t/a/same.txt\r\n/a/old.txt\t/a/new.txt\r\n"
            "/b/bad.txt\t/b/<Could not be written>\r\n");
}

TEST_F(ResultViewsTest, CreateBatchAsksForAFileAndWritesTheRenames) {
  TempDir dir;
  const std::vector<TestResultRow> rows = {{"same.txt", "same.txt", "/a"},
                                           {"old.txt", "new name.txt", "/a"},
                                           {"bad.txt", "<Could not be written>", "/b"}};
  gui::TestResultsDialog dialog(rows, messages, interaction);
  auto* button = dialog.findChild<QPushButton*>("cmdCreateBatch");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(), "Create batch ...");

  const std::string path = (dir.path() / "renames.bat").string();
  interaction.Then(TextAnswer{path});
  QTest::mouseClick(button, Qt::LeftButton);
  ASSERT_EQ(interaction.asked().size(), 1u);
  EXPECT_EQ(interaction.asked()[0].title, "Save batch file");
  EXPECT_EQ(dir.ReadFile("renames.bat"),
            "@echo off\r\nmove \"/a/old.txt\" \"/a/new name.txt\"\r\n"
            "rem \"/b/bad.txt\" \"/b/<Could not be written>\"\r\n");

  // Cancel writes nothing; a folder that is not there gives an error box.
  interaction.Then(Cancelled{});
  dialog.CreateBatch();
  interaction.Then(TextAnswer{(dir.path() / "missing" / "x.bat").string()});
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  dialog.CreateBatch();
  ASSERT_EQ(interaction.asked().size(), 4u);
  EXPECT_NE(interaction.asked()[3].text.find("could not be written"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "missing"));
}

TEST_F(ResultViewsTest, SaveDialogAnswersOnlyWithAPath) {
  SaveSettingsRequest request;
  request.preset_path = "/s/last.twr";
  request.save_path = true;
  {
    gui::SaveSettingsDialog dialog(request, messages);
    EXPECT_EQ(dialog.path_field()->text(), "/s/last.twr");
    EXPECT_TRUE(dialog.save_path_box()->isChecked());
    dialog.path_field()->setText("  /s/new.twr ");
    dialog.save_path_box()->setChecked(false);
    dialog.accept();
    ASSERT_TRUE(dialog.answer());
    EXPECT_EQ(dialog.answer()->path, "/s/new.twr");
    EXPECT_FALSE(dialog.answer()->save_path);
  }
  {
    gui::SaveSettingsDialog dialog(request, messages);
    dialog.path_field()->clear();
    dialog.accept();
    EXPECT_FALSE(dialog.answer());
  }
  {
    gui::SaveSettingsDialog dialog(request, messages);
    dialog.reject();
    EXPECT_FALSE(dialog.answer());
  }
}

}  // namespace
}  // namespace tarnwick::testing

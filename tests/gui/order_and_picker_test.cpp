// The order dialogue's moves, Default and OK; the placeholder picker's search
// and insert modes.
#include <QAction>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include "core/action_order.h"
#include "gui/gui_test_support.h"
#include "pattern_picker_dialog.h"
#include "persist/option_store.h"
#include "shell/scripted_interaction.h"
#include "sort_order_dialog.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

using gui::PatternPickerDialog;
using gui::SortOrderDialog;

class OrderDialogTest : public GuiTest {
 protected:
  OrderDialogTest() : options(dir.path() / "Tarnwick.ini") {}
  QString Current(const SortOrderDialog& dialog, int row) {
    return dialog.list()->topLevelItem(row)->text(1);
  }
  bool Bold(const SortOrderDialog& dialog, int row) {
    return dialog.list()->topLevelItem(row)->font(1).bold();
  }
  TempDir dir;
  OptionStore options;
  ScriptedInteraction questions;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
};

TEST_F(OrderDialogTest, MovesSwapNeighboursAndOkStoresTheOrder) {
  SortOrderDialog dialog(options, messages, questions);
  ASSERT_EQ(dialog.list()->topLevelItemCount(), 10);
  EXPECT_EQ(Current(dialog, 4), "Prefix");
  EXPECT_FALSE(Bold(dialog, 4));

  dialog.list()->setCurrentItem(dialog.list()->topLevelItem(4));
  dialog.MoveUp();
  EXPECT_EQ(Current(dialog, 3), "Prefix");
  EXPECT_EQ(Current(dialog, 4), "Cut left");
  EXPECT_TRUE(Bold(dialog, 3));
  EXPECT_TRUE(Bold(dialog, 4));
  EXPECT_EQ(dialog.list()->topLevelItem(3)->text(2), "Cut left");  // defaults stay

  dialog.list()->setCurrentItem(dialog.list()->topLevelItem(0));
  dialog.MoveUp();  // the first row cannot go up
  EXPECT_EQ(Current(dialog, 0), "Replace filenames with");
  dialog.list()->setCurrentItem(dialog.list()->topLevelItem(9));
  dialog.MoveDown();  // nor the last go down
  EXPECT_EQ(Current(dialog, 9), "Show filename for manual edit before saving");

  // Ctrl with the number pad's minus moves down, as the button does.
  dialog.list()->setCurrentItem(dialog.list()->topLevelItem(0));
  QTest::keyClick(&dialog, Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(Current(dialog, 1), "Replace filenames with");

  dialog.Ok();
  const ActionOrder stored = ReadActionOrder(options);
  EXPECT_EQ(stored, (ActionOrder{2, 1, 3, 5, 4, 6, 7, 8, 9, 10}));
}

// The list's menu moves rows as the buttons do; a stored value that is no
// action keeps its text through the dialogue, wherever its row goes.
TEST_F(OrderDialogTest, TheMenuMovesRowsAndAValueOutsideTheRangeIsKept) {
  options.SaveOption("SortOrderInternal3", "Options", "42");
  SortOrderDialog dialog(options, messages, questions);
  EXPECT_EQ(Current(dialog, 2), "");
  dialog.list()->setCurrentItem(dialog.list()->topLevelItem(2));
  QAction* down = dialog.findChild<QAction*>("mnuMoveDown");
  ASSERT_NE(down, nullptr);
  EXPECT_TRUE(dialog.list()->actions().contains(down));
  down->trigger();
  EXPECT_EQ(Current(dialog, 2), "Cut left");
  dialog.findChild<QAction*>("mnuMoveUp")->trigger();
  dialog.findChild<QAction*>("mnuMoveDown")->trigger();
  dialog.Ok();
  EXPECT_EQ(options.GetOption("SortOrderInternal4", "Options", ""), "42");
  EXPECT_EQ(options.GetOption("SortOrderInternal3", "Options", ""), "4");
}

TEST_F(OrderDialogTest, DefaultAsksAndCancelStoresNothing) {
  StoreActionOrder(options, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
  {
    SortOrderDialog dialog(options, messages, questions);
    EXPECT_EQ(Current(dialog, 0), "Show filename for manual edit before saving");
    questions.Then(Answer::kNo).Then(Answer::kYes);
    dialog.Default();
    EXPECT_EQ(Current(dialog, 0), "Show filename for manual edit before saving");
    dialog.Default();
    EXPECT_EQ(Current(dialog, 0), "Replace filenames with");
    EXPECT_FALSE(Bold(dialog, 0));
    ASSERT_EQ(questions.asked().size(), 2u);
    EXPECT_EQ(questions.asked()[0].title, "Clear settings");
    dialog.reject();
  }
  EXPECT_EQ(ReadActionOrder(options)[0], 10);
}

class PickerDialogTest : public GuiTest {
 protected:
  // The row of the list whose tag starts with `tag`.
  int RowOf(const PatternPickerDialog& dialog, const QString& tag) {
    for (int i = 0; i < dialog.list()->topLevelItemCount(); ++i) {
      if (dialog.list()->topLevelItem(i)->text(0).startsWith(tag)) return i;
    }
    return -1;
  }
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
};

TEST_F(PickerDialogTest, SearchSelectsAndAppendInsertsTheTag) {
  PatternPickerDialog dialog(messages, "x{{Count}}", 1);
  const int count_row = RowOf(dialog, "{{count}}");
  ASSERT_GE(count_row, 0);
  // The tag in use in the field is marked, without regard to case.
  EXPECT_TRUE(dialog.list()->topLevelItem(count_row)->text(0).contains("[Currently selected"));

  QTest::keyClicks(dialog.search_field(), "parentfolder");
  const QList<QTreeWidgetItem*> selected = dialog.list()->selectedItems();
  ASSERT_EQ(selected.size(), 1);
  const QString tag = selected.front()->text(0).section(' ', 0, 0);
  EXPECT_TRUE(tag.startsWith("{{parentfolder", Qt::CaseInsensitive)) << tag.toStdString();

  EXPECT_TRUE(dialog.Ok());
  const FieldUpdate after = dialog.FieldAfter();
  EXPECT_EQ(after.text, "x{{Count}}" + tag.toStdString());
}

// Each keystroke's match replaces the one before: "exif" typed letter by
// letter passes other rows, and OK inserts only the row shown selected.
TEST_F(PickerDialogTest, ASearchTypedLetterByLetterSelectsOnlyTheLastMatch) {
  PatternPickerDialog dialog(messages, "", 0);
  QTest::keyClicks(dialog.search_field(), "exif");
  const QList<QTreeWidgetItem*> selected = dialog.list()->selectedItems();
  ASSERT_EQ(selected.size(), 1);
  const std::string tag = selected.front()->text(0).section(' ', 0, 0).toStdString();
  EXPECT_NE(tag.find("exif"), std::string::npos) << tag;
  ASSERT_TRUE(dialog.Ok());
  EXPECT_EQ(dialog.FieldAfter().text, tag);
}

TEST_F(PickerDialogTest, InsertAtCursorAndManualMode) {
  {
    PatternPickerDialog dialog(messages, "ab", 1);
    dialog.SetMode(InsertMode::kInsertAtCursor);
    const int row = RowOf(dialog, "{{count}}");
    dialog.list()->topLevelItem(row)->setSelected(true);
    EXPECT_TRUE(dialog.Ok());
    EXPECT_EQ(dialog.FieldAfter().text, "a{{count}}b");
  }
  {
    PatternPickerDialog dialog(messages, "name", 4);
    EXPECT_FALSE(dialog.manual_field()->isEnabled());
    dialog.SetMode(InsertMode::kManual);
    EXPECT_TRUE(dialog.manual_field()->isEnabled());
    EXPECT_EQ(dialog.manual_field()->text(), "name");
    dialog.ChooseRow(RowOf(dialog, "{{count}}"));
    EXPECT_EQ(dialog.manual_field()->text(), "name{{count}}");
    EXPECT_TRUE(dialog.Ok());
    EXPECT_EQ(dialog.FieldAfter().text, "name{{count}}");
  }
  {
    PatternPickerDialog dialog(messages, "keep", 4);
    dialog.reject();
    EXPECT_EQ(dialog.FieldAfter().text, "keep");
  }
}

}  // namespace
}  // namespace tarnwick::testing

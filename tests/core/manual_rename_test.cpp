// Action 10, the manual rename dialogue, and the order dialogue's logic.
#include "core/manual_rename.h"

#include "core/action_order.h"
#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

using Texts = std::vector<std::string>;

ManualRenameAnswer Typed(const std::string& name) {
  ManualRenameAnswer answer;
  answer.file_name = name;
  return answer;
}

ManualRenameAnswer CancelPressed() {
  ManualRenameAnswer answer;
  answer.cancelled = true;
  return answer;
}

class ManualRenameTest : public PipelineTest {
 protected:
  ManualRenameTest() { settings.chkEditManual = 1; }

  std::vector<std::string> DialogueTexts() const {
    std::vector<std::string> texts;
    for (const AnsweredQuestion& q : interaction.asked()) {
      if (q.kind == QuestionKind::kManualRename) texts.push_back(q.text);
    }
    return texts;
  }
};

TEST_F(ManualRenameTest, TheEditedNameIsTheResult) {
  interaction.Then(Typed("edited.txt"));
  EXPECT_EQ(Rename("orig.txt"), "edited.txt");
  EXPECT_EQ(DialogueTexts(), (Texts{"orig.txt (for orig.txt)"}));
}

TEST_F(ManualRenameTest, ForbiddenCharacterOpensTheDialogueAgainOnTheExpandedName) {
  settings.chkPrefix = 1;
  settings.txtPrefix = "{{uppercasing}}p_";
  interaction.Then(Typed("bad?name.txt")).Then(Answer::kOk).Then(Typed("good.txt"));
  EXPECT_EQ(Rename("orig.txt"), "good.txt");
  EXPECT_EQ(DialogueTexts(), (Texts{"P_orig.txt (for orig.txt)", "P_orig.txt (for orig.txt)"}));
  EXPECT_EQ(interaction.asked()[1].title, "Filename");
  EXPECT_TRUE(interaction.failures().empty());
}

TEST_F(ManualRenameTest, LengthLimitIs233Characters) {
  const std::string longest = std::string(229, 'a') + ".txt";
  interaction.Then(Typed(longest + "x")).Then(Answer::kOk).Then(Typed(longest));
  EXPECT_EQ(Rename("orig.txt"), longest);
  ASSERT_EQ(interaction.asked().size(), 3u);
  EXPECT_EQ(interaction.asked()[1].text, "Length of filename is to long!");
}

TEST_F(ManualRenameTest, CancelAsksAndNoBringsTheDialogueBack) {
  interaction.Then(CancelPressed()).Then(Answer::kNo).Then(Typed("kept.txt"));
  EXPECT_EQ(Rename("orig.txt"), "kept.txt");
  EXPECT_FALSE(app.CancelRun);

  interaction.Then(CancelPressed()).Then(Answer::kYes);
  EXPECT_EQ(Rename("other.txt"), "other.txt");
  EXPECT_TRUE(app.CancelRun);
  EXPECT_EQ(interaction.asked().back().title, "Cancel action");
}

// Nobody can type a better name (a front end that answers by default): the
// run stops after the same refusal ten times, and a box says why.
TEST_F(ManualRenameTest, TenIdenticalRefusalsCancelWithAMessage) {
  interaction.SetDefault(QuestionKind::kManualRename, Typed("still?bad.txt"));
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  EXPECT_EQ(Rename("orig.txt"), "orig.txt");
  EXPECT_TRUE(app.CancelRun);
  EXPECT_EQ(DialogueTexts().size(), 10u);
  EXPECT_NE(interaction.asked().back().text.find("refused ten times"), std::string::npos);
}

TEST_F(ManualRenameTest, EarlyPositionShowsANameLaterActionsStillChange) {
  ActionOrder order = DefaultActionOrder();
  std::swap(order[0], order[9]);  // manual edit first, complete name last
  StoreActionOrder(options, order);
  settings.chkPostfix = 1;
  settings.txtPostfix = "_end";
  interaction.Then(Typed("typed.txt"));
  EXPECT_EQ(Rename("orig.txt"), "typed_end.txt");
  EXPECT_EQ(DialogueTexts(), (Texts{"orig.txt (for orig.txt)"}));
}

TEST(ManualRenameSelection, PositionsAreClampedToTheName) {
  ManualRenameCursor cursor;
  cursor.change_cursor_start = true;
  cursor.start_position = 2;
  cursor.end_position = 40;
  const NameSelection s = ManualRenameSelection(cursor, "abcdef.txt");
  EXPECT_EQ(s.start, 2);
  EXPECT_EQ(s.length, 8);

  cursor.to_extension = true;
  EXPECT_EQ(ManualRenameSelection(cursor, "abcdef.txt").length, 4);

  cursor = {};
  cursor.select_all = true;
  EXPECT_EQ(ManualRenameSelection(cursor, "äbc").length, 3);
}

class SortOrderTest : public PipelineTest {};

TEST_F(SortOrderTest, MovesKeepPositionsAndMarkChangedRows) {
  SortOrderEditor editor(options);
  EXPECT_FALSE(editor.MoveUp(0));
  EXPECT_FALSE(editor.MoveDown(9));
  EXPECT_TRUE(editor.MoveDown(3));  // cut left below prefix
  EXPECT_EQ(editor.CurrentAction(3), kActionPrefix);
  EXPECT_EQ(editor.CurrentAction(4), kActionCutLeft);
  EXPECT_TRUE(editor.Changed(3));
  EXPECT_FALSE(editor.Changed(5));

  // Nothing is stored before OK.
  EXPECT_EQ(ReadActionOrder(options), DefaultActionOrder());
  editor.Store(options);
  EXPECT_EQ(options.GetOption("SortOrderInternal4", "Options", ""), "5");
  EXPECT_EQ(options.GetOption("SortOrderInternal5", "Options", ""), "4");
  EXPECT_EQ(SortOrderEditor(options).CurrentAction(3), kActionPrefix);
}

TEST_F(SortOrderTest, DefaultAsksFirst) {
  SortOrderEditor editor(options);
  editor.MoveUp(9);
  interaction.Then(Answer::kNo).Then(Answer::kYes);
  EXPECT_FALSE(editor.ResetToDefault(interaction, messages));
  EXPECT_TRUE(editor.Changed(9));
  EXPECT_TRUE(editor.ResetToDefault(interaction, messages));
  EXPECT_EQ(editor.order(), DefaultActionOrder());
  EXPECT_EQ(Asked(), (Texts{"Clear settings", "Clear settings"}));
}

TEST_F(SortOrderTest, DisplayNames) {
  EXPECT_EQ(ActionDisplayName(kActionPrefix, messages), "Prefix");
  EXPECT_EQ(ActionDisplayName(kActionPrefix, MessageTable::Get(Language::kGerman)), "Prefix");
  EXPECT_EQ(ActionDisplayName(kActionCutLeft, messages), "Cut left");
  EXPECT_EQ(ActionDisplayName(kActionEditManual, messages),
            "Show filename for manual edit before saving");
  EXPECT_EQ(ActionDisplayName(11, messages), "");
}

}  // namespace
}  // namespace tarnwick::testing

// The running number: its text, its place in the name, its steps and resets.
#include <limits>

#include "core/numbering.h"
#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

class NumberingTest : public PipelineTest {
 protected:
  // Numbers files placed in front of an empty prefix, with no separator, so
  // the names that come out are the numbers followed by the old names.
  void NumberBeforePrefix(const std::string& start) {
    settings.chkNumbers = 1;
    settings.chkPrefix = 1;
    settings.optNumber = kNumberBeforePrefix;
    settings.txtStartNumber = start;
    app.CurrentCount = StartNumberValue(settings);
  }

  // The numbers the next `files` files get, as the prefix shows them.
  std::vector<std::string> Numbers(int files) {
    std::vector<std::string> numbers;
    for (int i = 0; i < files; ++i) {
      const std::string name = "f" + std::to_string(list.size()) + ".txt";
      std::string result = Rename(name);
      numbers.push_back(result.substr(0, result.size() - name.size()));
    }
    return numbers;
  }
};

using Texts = std::vector<std::string>;

TEST_F(NumberingTest, WidthComesFromTheStartTextAndGrowsWhenNeeded) {
  NumberBeforePrefix("0");
  EXPECT_EQ(Numbers(11), (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));

  NumberBeforePrefix("007");
  EXPECT_EQ(Numbers(3), (Texts{"007", "008", "009"}));
}

TEST_F(NumberingTest, OperatorsApplyTheStep) {
  NumberBeforePrefix("5");
  settings.optOperator = kOperatorMultiply;
  settings.txtStep = "2";
  EXPECT_EQ(Numbers(3), (Texts{"5", "10", "20"}));

  NumberBeforePrefix("0");
  EXPECT_EQ(Numbers(3), (Texts{"0", "0", "0"}));

  NumberBeforePrefix("1");
  settings.optOperator = kOperatorSubtract;
  settings.txtStep = "1";
  // Below zero the number shows without its sign.
  EXPECT_EQ(Numbers(4), (Texts{"1", "0", "1", "2"}));
}

TEST_F(NumberingTest, AddCountGivesEachNumberToSeveralFiles) {
  NumberBeforePrefix("1");
  settings.txtAddCount = "3";
  EXPECT_EQ(Numbers(7), (Texts{"1", "1", "1", "2", "2", "2", "3"}));
}

TEST_F(NumberingTest, PlacesAtPrefixAndPostfix) {
  settings.chkNumbers = 1;
  settings.chkPrefix = 1;
  settings.txtPrefix = "P";
  settings.chkPostfix = 1;
  settings.txtPostfix = "Q";
  settings.txtLimiter = "-";
  settings.txtStartNumber = "01";
  app.CurrentCount = 1;

  settings.optNumber = kNumberBeforePrefix;
  EXPECT_EQ(Rename("a.txt"), "01-PaQ.txt");
  settings.optNumber = kNumberAfterPrefix;
  EXPECT_EQ(Rename("b.txt"), "P02-bQ.txt");
  settings.optNumber = kNumberBeforePostfix;
  EXPECT_EQ(Rename("c.txt"), "Pc-03Q.txt");
  settings.optNumber = kNumberAfterPostfix;
  EXPECT_EQ(Rename("d.txt"), "PdQ-04.txt");
}

TEST_F(NumberingTest, PostfixNumberOnANameWithoutExtensionCutsItsLastCharacter) {
  settings.chkNumbers = 1;
  settings.chkPostfix = 1;
  settings.optNumber = kNumberAfterPostfix;
  settings.txtStartNumber = "1";
  app.CurrentCount = 1;
  // Kept: unlike the plain postfix, this one leaves a final dot.
  settings.optCopyRename = kModeTest;
  EXPECT_EQ(Rename("README"), "READM1.");
}

TEST_F(NumberingTest, NumbersNeedAPrefixOrPostfixButTokensStillCount) {
  settings.chkNumbers = 1;
  settings.txtStartNumber = "1";
  settings.chkOnlyUsePatterns = 1;
  settings.txtUsePlaceholder = "{{count}}_";
  app.CurrentCount = 1;
  EXPECT_EQ(Rename("a.txt"), "1_a.txt");
  EXPECT_EQ(Rename("b.txt"), "2_b.txt");
}

TEST_F(NumberingTest, ShortNameSkipKeepsTheNumberACollisionSkipUsesIt) {
  NumberBeforePrefix("1");
  settings.chkCutLeft = 1;
  settings.txtLeftCut = "3";
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  // Too short for the cut: asked about, keeps its name and its number.
  EXPECT_EQ(Rename("a.b"), "a.b");
  EXPECT_EQ(Asked(), (Texts{"Filename to short"}));
  EXPECT_FALSE(app.CancelRun);
  EXPECT_EQ(app.CurrentCount, 1);

  // A taken target is skipped without a question, yet uses up number 1.
  settings.chkCutLeft = 0;
  SetOption("SkipExistingFiles", "1");
  dir.WriteFile("1xxy.txt");
  EXPECT_EQ(Rename("xxy.txt"), "");
  EXPECT_EQ(app.CurrentCount, 2);
  EXPECT_EQ(Rename("zzq.txt"), "2zzq.txt");
}

TEST_F(NumberingTest, CounterOverflowIsAnErrorOfTheFile) {
  NumberBeforePrefix("1");
  settings.txtStep = "10";
  app.CurrentCount = std::numeric_limits<std::int32_t>::max() - 5;
  const ProcessFileResult result = Process(AddRow("big.txt"));
  ASSERT_TRUE(result.error);
  EXPECT_EQ(result.error->number(), 6);
  EXPECT_EQ(result.name, "");
}

TEST_F(NumberingTest, ResetsByFolderAndByDay) {
  SetOption("CountDirectories", "1");
  settings.txtStartNumber = "3";
  app.CurrentCount = 9;
  EXPECT_TRUE(ResetCounterForRow(app, settings, options, "/a", "01.01.2026 10:00:00"));
  EXPECT_EQ(app.CurrentCount, 3);
  app.CurrentCount = 9;
  EXPECT_FALSE(ResetCounterForRow(app, settings, options, "/A", "02.01.2026 10:00:00"));
  EXPECT_TRUE(ResetCounterForRow(app, settings, options, "/b", "02.01.2026 10:00:00"));

  SetOption("ResetCounterByDirectory", "0");
  EXPECT_TRUE(ResetCounterForRow(app, settings, options, "/b", "02.01.2026 10:00:00"));
  app.CurrentCount = 9;
  EXPECT_FALSE(ResetCounterForRow(app, settings, options, "/c", "02.01.2026 23:59:59"));
  EXPECT_EQ(app.CurrentCount, 9);

  SetOption("CountDirectories", "0");
  EXPECT_FALSE(ResetCounterForRow(app, settings, options, "/z", "09.09.2026"));
}

}  // namespace
}  // namespace tarnwick::testing

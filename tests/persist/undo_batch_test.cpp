#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "log_undo_fixture.h"
#include "persist/log_run_headers.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

// The header of a rename run of `count` files.
std::string RenameHeader(int count) {
  return " \r\n@echo off\r\ncls\r\n"
         "echo Renaming 'Undo-List' created by Tarnwick on  15.11.2026 20:11:00\r\n"
         "echo Selected files: " +
         std::to_string(count) +
         "\r\n"
         "echo Action of this script: This script renames files\r\n"
         "echo Remember: Only the last renaming action is logged here!\r\n"
         "echo Attention: You use this script on your own risk, please make a backup of your "
         "data before using it!\r\n"
         "pause\r\n"
         "echo on\r\n";
}

class UndoBatchTest : public LogUndoTest {
 protected:
  // One run of renames: name, headers, entries, end.
  void Run(const std::vector<std::pair<std::string, std::string>>& renames, int mode = 0) {
    undo_.PrepareUndoBatchName();
    WriteRunHeaders(log_, undo_, static_cast<int>(renames.size()), mode);
    for (const auto& [from, to] : renames) {
      undo_.WriteUndoEntry(from, to, mode == 1 ? "del" : mode == 0 ? "move" : "rem");
    }
    undo_.FinishUndoBatch();
  }
};

TEST_F(UndoBatchTest, OneRunOfTwoRenames) {
  Run({{"/Photos/old1.jpg", "/Photos/new1.jpg"}, {"/Photos/old2.jpg", "/Photos/new2.jpg"}});
  EXPECT_EQ(state_.UndoBatchName, "UndoBatch.bat");
  EXPECT_EQ(BatchText(), RenameHeader(2) +
                             "move \"/Photos/new1.jpg\" \"/Photos/old1.jpg\"\r\n"
                             "move \"/Photos/new2.jpg\" \"/Photos/old2.jpg\"\r\n");
}

TEST_F(UndoBatchTest, CopyAndTestRunsSayWhatTheScriptDoes) {
  Set("OverwriteUndoBatch", "1");
  Run({{"/a/x", "/a/copy of x"}}, 1);
  std::string text = BatchText();
  EXPECT_THAT(text, HasSubstr("\r\necho Action of the script: This script deletes files\r\n"));
  EXPECT_THAT(text, ::testing::EndsWith("echo on\r\ndel \"/a/copy of x\"\r\n"));
  Run({{"/a/x", "/a/y"}}, 2);
  text = BatchText();
  EXPECT_THAT(text,
              HasSubstr("\r\necho Action of the script: This script does'nt do any action\r\n"));
  EXPECT_THAT(text, ::testing::EndsWith("echo on\r\nrem \"/a/y\" \"/a/x\"\r\n"));
}

TEST_F(UndoBatchTest, EmptyCommandShowsAsQuestionMark) {
  Set("OverwriteUndoBatch", "1");
  undo_.PrepareUndoBatchName();
  WriteRunHeaders(log_, undo_, 1, 0);
  undo_.WriteUndoEntry("/a", "/b", "");
  undo_.WriteUndoEntry("/a", "/b", "DEL");
  EXPECT_THAT(BatchText(), ::testing::EndsWith("echo on\r\n? \"/b\" \"/a\"\r\nDEL \"/b\"\r\n"));
}

TEST_F(UndoBatchTest, OverwriteKeepsOnlyTheLastRun) {
  Set("OverwriteUndoBatch", "1");
  Run({{"/p/a", "/p/b"}});
  Run({{"/p/c", "/p/d"}, {"/p/e", "/p/f"}});
  EXPECT_EQ(BatchText(), RenameHeader(2) +
                             "move \"/p/d\" \"/p/c\"\r\n"
                             "move \"/p/f\" \"/p/e\"\r\n");
  EXPECT_TRUE(std::filesystem::is_empty(dir_.path() / "tmp"));
}

TEST_F(UndoBatchTest, AppendingPutsTheNewRunInFront) {
  Run({{"/p/a", "/p/b"}, {"/p/x", "/p/y"}});
  const std::string first = BatchText();
  Run({{"/p/c", "/p/d"}, {"/p/e", "/p/f"}});
  EXPECT_EQ(BatchText(),
            RenameHeader(2) + "move \"/p/d\" \"/p/c\"\r\n" + "move \"/p/f\" \"/p/e\"\r\n" + first);
  // The saved copy of the first run stays in the temporary folder.
  ASSERT_FALSE(state_.UndoTemporaryCopy.empty());
  EXPECT_EQ(std::filesystem::path(state_.UndoTemporaryCopy).parent_path(), dir_.path() / "tmp");
  EXPECT_THAT(std::filesystem::path(state_.UndoTemporaryCopy).filename().string(),
              ::testing::StartsWith("TWRN"));
  EXPECT_EQ(ReadWholeFile(state_.UndoTemporaryCopy), first);
}

TEST_F(UndoBatchTest, UndoSwitchedOffLeavesThePreviousBatch) {
  Run({{"/p/a", "/p/b"}});
  const std::string before = BatchText();
  Set("WriteUndoList", "0");
  Run({{"/p/c", "/p/d"}});
  EXPECT_EQ(BatchText(), before);
}

TEST_F(UndoBatchTest, SingleFilesGetAStampedName) {
  Set("WriteUndoBatchInSingleFiles", "1");
  Run({{"/p/a", "/p/b"}});
  EXPECT_EQ(state_.UndoTimeStamp, "_15-11-2026_20-11-00");
  EXPECT_EQ(state_.UndoBatchName, "UndoBatch_15-11-2026_20-11-00.bat");
  EXPECT_EQ(BatchText(state_.UndoBatchName), RenameHeader(1) + "move \"/p/b\" \"/p/a\"\r\n");
  Set("BasisNameUndoBatch", "Back");
  clock_.Advance(61);
  Run({{"/p/c", "/p/d"}});
  EXPECT_EQ(state_.UndoBatchName, "Back_15-11-2026_20-12-01.bat");
  EXPECT_TRUE(std::filesystem::exists(BatchPath("UndoBatch_15-11-2026_20-11-00.bat")));
}

TEST_F(UndoBatchTest, SingleFilesHaveNoEffectWhenOverwriting) {
  Set("WriteUndoBatchInSingleFiles", "1");
  Set("OverwriteUndoBatch", "1");
  Run({{"/p/a", "/p/b"}});
  EXPECT_EQ(state_.UndoTimeStamp, "");
  EXPECT_EQ(state_.UndoBatchName, "UndoBatch.bat");
}

TEST_F(UndoBatchTest, StampCharactersGoThroughTheIllegalCharacterCleanUp) {
  Set("WriteUndoBatchInSingleFiles", "1");
  Set("DateFormat", "dd*mm*yyyy");
  undo_.PrepareUndoBatchName();
  EXPECT_EQ(state_.UndoTimeStamp, "_15112026_20-11-00");
  Set("IllegalCharReplacerActive", "1");
  Set("IllegalCharReplacer", "+");
  undo_.PrepareUndoBatchName();
  EXPECT_EQ(state_.UndoTimeStamp, "_15+11+2026_20-11-00");
}

// Remembers the preset of each input box.
class PresetRecorder : public ScriptedInteraction {
 public:
  std::optional<std::string> AskInput(const InputRequest& request) override {
    presets.push_back(request.preset);
    return ScriptedInteraction::AskInput(request);
  }
  std::vector<std::string> presets;
};

TEST_F(UndoBatchTest, IndividualNameIsAskedFor) {
  PresetRecorder ask;
  LogUndoEnv env{options_, ask, env_.messages, clock_, app_, state_};
  UndoBatch undo(env);
  Set("IndividualUndoBatchName", "1");
  Set("WriteUndoBatchInSingleFiles", "1");
  ask.Then(TextAnswer{"Holiday"}).Then(TextAnswer{""}).Then(Cancelled{});
  undo.PrepareUndoBatchName();
  EXPECT_EQ(state_.UndoBatchName, "Holiday.bat");
  // Kept: an empty answer or Cancel drops the stamp too.
  undo.PrepareUndoBatchName();
  EXPECT_EQ(state_.UndoBatchName, "UndoBatch.bat");
  undo.PrepareUndoBatchName();
  EXPECT_EQ(state_.UndoBatchName, "UndoBatch.bat");
  ASSERT_EQ(ask.asked().size(), 3u);
  EXPECT_EQ(ask.asked()[0].kind, QuestionKind::kInput);
  EXPECT_EQ(ask.asked()[0].title, "Name of the Undo-Batch");
  EXPECT_EQ(ask.asked()[0].text, "Please enter the name of the file for the Undo Batch:");
  EXPECT_EQ(ask.presets[0], "UndoBatch_15-11-2026_20-11-00");
  EXPECT_TRUE(ask.failures().empty());
}

TEST_F(UndoBatchTest, ReadOnlyOldBatchIsReplaced) {
  Set("OverwriteUndoBatch", "1");
  Run({{"/p/a", "/p/b"}});
  chmod(BatchPath().c_str(), 0444);
  Run({{"/p/c", "/p/d"}});
  EXPECT_THAT(BatchText(), ::testing::EndsWith("echo on\r\nmove \"/p/d\" \"/p/c\"\r\n"));
}

TEST_F(UndoBatchTest, UndoFolderWithVanishedParentFallsBackToDefault) {
  Set("UndoFilePath", (dir_.path() / "gone" / "undo").string());
  Run({{"/p/a", "/p/b"}});
  EXPECT_EQ(Get("UndoFilePath"), state_.DefaultUndoFolder);
  EXPECT_THAT(BatchText(), ::testing::EndsWith("move \"/p/b\" \"/p/a\"\r\n"));
}

TEST_F(UndoBatchTest, UnwritableBatchOffersToSwitchUndoOff) {
  const std::string folder = (dir_.path() / "missing").string();
  Set("UndoFilePath", folder);
  ask_.Then(Answer::kYes);
  Run({{"/p/a", "/p/b"}, {"/p/c", "/p/d"}});
  ASSERT_EQ(ask_.asked().size(), 1u);
  const AnsweredQuestion& box = ask_.asked()[0];
  EXPECT_EQ(box.title, "Logfile");
  EXPECT_EQ(box.text, "Undofile can't be written.\r\n76: Path not found\r\n(" + folder +
                          "/UndoBatch.bat)\r\n\r\nWould you like to disable undo?");
  EXPECT_EQ(box.topic, Topic::kDisableUndo);
  EXPECT_EQ(box.icon, MessageIcon::kExclamation);
  EXPECT_EQ(Get("WriteUndoList"), "0");
}

TEST_F(UndoBatchTest, UnsafeNamesBecomeEscapedComments) {
  Set("OverwriteUndoBatch", "1");
  Run({{"/p/a\"&calc.exe&\".txt", "/p/b.txt"}, {"/p/line\r\ndel x", "/p/c"}});
  EXPECT_THAT(BatchText(), ::testing::EndsWith(
                               "echo on\r\n"
                               "rem tarnwick-escaped move /p/b.txt /p/a=22=26calc.exe=26=22.txt\r\n"
                               "rem tarnwick-escaped move /p/c /p/line=0D=0Adel=20x\r\n"));
}

TEST_F(UndoBatchTest, WindowsBatchHoldsOemBytes) {
  UndoBatch windows(env_, UndoBatchTarget::kWindows);
  Set("OverwriteUndoBatch", "1");
  windows.PrepareUndoBatchName();
  windows.WriteUndoBatchHeader(1, 0);
  windows.WriteUndoEntry("/p/M\xC3\xBCller",
                         "/p/Gr\xC3\xB6\xC3\x9F"
                         "e",
                         "move");
  log_.WriteLogFile("/p/M\xC3\xBCller", "/p/x", "");
  // ü is 0x81, ö 0x94 and ß 0xE1 in code page 850; the log keeps its UTF-8.
  EXPECT_THAT(BatchText(), ::testing::EndsWith("move \"/p/Gr\x94\xE1"
                                               "e\" \"/p/M\x81ller\"\r\n"));
  EXPECT_THAT(LogText(), HasSubstr("\"/p/M\xC3\xBCller\""));
}

TEST_F(UndoBatchTest, LinuxBatchKeepsUtf8) {
  Set("OverwriteUndoBatch", "1");
  Run({{"/p/M\xC3\xBCller", "/p/x"}});
  EXPECT_THAT(BatchText(), ::testing::EndsWith("move \"/p/x\" \"/p/M\xC3\xBCller\"\r\n"));
}

}  // namespace
}  // namespace tarnwick::testing

// A run of a thousand files, with taken names, questions and a file that
// vanished, writes its log and undo batch byte for byte
// as the reference in tests/fixtures/run/ says. The reference was written by
// the run as it was before the log and batch were kept open and taken names
// were left to the move; TW_WRITE_RUN_REFERENCE=1 writes it anew.
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "run_test_fixture.h"

namespace tarnwick::testing {
namespace {

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

void CompareWithReference(const std::string& bytes, const std::string& name) {
  const std::filesystem::path reference = std::filesystem::path(TW_FIXTURE_DIR) / "run" / name;
  if (std::getenv("TW_WRITE_RUN_REFERENCE") != nullptr) {
    std::filesystem::create_directories(reference.parent_path());
    std::ofstream(reference, std::ios::binary) << bytes;
    return;
  }
  EXPECT_EQ(bytes, ReadWholeFile(reference)) << name;
}

TEST_F(RunTest, AThousandFileRunWritesTheReferenceLogAndBatch) {
  for (int i = 0; i < 1000; ++i) {
    char name[16];
    std::snprintf(name, sizeof name, "f%04d.txt", i);
    AddFile(name);
  }
  for (int i = 0; i < 1000; i += 97) {
    char name[16];
    std::snprintf(name, sizeof name, "p_f%04d.txt", i);
    AddFile(name, "taken");
  }
  SetOption("WriteLogFile", "1");
  SetOption("WriteUndoList", "1");
  Prefix("p_");
  Fill();
  std::filesystem::remove(files() / "f0500.txt");  // vanished after the fill
  // The first taken name gets another name, the second is skipped, and the
  // rest are skipped without a question.
  interaction.Then(FileExistsAnswer{FileExistsChoice::kOk, "other_f0000.txt", false});
  interaction.Then(FileExistsAnswer{FileExistsChoice::kSkip, "", false});
  interaction.SetDefault(QuestionKind::kFileExists,
                         FileExistsAnswer{FileExistsChoice::kSkip, "", true});
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  const RenameRunResult result =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(result.skipped, 10);
  const std::string root = dir.str();
  CompareWithReference(Replaced(Log(), root, "<dir>"), "thousand.log");
  CompareWithReference(Replaced(Batch(), root, "<dir>"), "thousand.bat");
}

// The run leaves taken names to its move; what a user sees stays as it was
// when every name was checked first.
TEST_F(RunTest, ANameFoundTakenByTheMoveGetsTheQuestionsOfATakenName) {
  AddFile("a.txt", "a");
  AddFile("b.txt", "b");
  AddFile("c.txt", "c");
  AddFile("p_a.txt", "taken");
  std::filesystem::create_directory(files() / "p_b.txt");  // a folder is no taken file
  Prefix("p_");
  Fill();
  // Held open by this process: the question about the taken name comes
  // first, then the box about the open file.
  const int held = ::open(FilePath("c.txt").c_str(), O_RDONLY);
  ASSERT_GE(held, 0);
  AddFile("p_c.txt", "taken c");
  interaction.Then(FileExistsAnswer{FileExistsChoice::kOk, "new_a.txt", false});
  interaction.Then(Answer::kYes);  // "Continue with next file?" after b
  interaction.Then(FileExistsAnswer{FileExistsChoice::kOk, "new_c.txt", false});
  interaction.Then(Answer::kOk);  // "File is open": skip it
  const RenameRunResult result =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  ::close(held);
  EXPECT_EQ(dir.ReadFile("files/new_a.txt"), "a");
  EXPECT_EQ(dir.ReadFile("files/p_p_a.txt"), "taken") << "renamed in its turn";
  // b: the folder in the way is an error of its file, as before.
  EXPECT_EQ(dir.ReadFile("files/b.txt"), "b");
  EXPECT_NE(Log().find("(58: File already exists; Renamed)"), std::string::npos) << Log();
  // c: asked about, then left alone because it is open.
  EXPECT_EQ(dir.ReadFile("files/c.txt"), "c");
  EXPECT_FALSE(std::filesystem::exists(files() / "new_c.txt"));
  EXPECT_EQ(Asked(),
            (std::vector<std::string>{"File exists", "Error", "File exists", "File is open"}));
  EXPECT_EQ(interaction.pending(), 0u);
  EXPECT_TRUE(interaction.failures().empty()) << ::testing::PrintToString(interaction.failures());
  EXPECT_EQ(result.failed, 1);
  EXPECT_NE(Batch().find("move \"" + FilePath("new_a.txt") + "\" \"" + FilePath("a.txt") + "\""),
            std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing

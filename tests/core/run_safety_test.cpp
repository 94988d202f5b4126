// Runs against a racing process and against faults of the file system:
// nothing is ever replaced, each failure is reported and logged, the run
// goes on, and no file is lost.
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <map>

#include "run_test_fixture.h"

namespace tarnwick::testing {
namespace {

std::string Numbered(int i) {
  char name[32];
  std::snprintf(name, sizeof name, "f%05d.dat", i);
  return name;
}

// What every file of the folder holds, by content.
std::map<std::string, int> ContentCounts(const std::filesystem::path& folder) {
  std::map<std::string, int> counts;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) ++counts[ReadWholeFile(entry.path())];
  }
  return counts;
}

// Runs `work` in a child process and returns its exit status (-1 when it
// did not exit normally).
template <typename Work>
int InChild(Work work) {
  std::fflush(nullptr);
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(work());
  int status = 0;
  ::waitpid(pid, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class RunSafetyTest : public RunTest {
 protected:
  RunSafetyTest() {
    interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
    interaction.SetDefault(QuestionKind::kFileExists,
                           FileExistsAnswer{FileExistsChoice::kSkip, "", false});
  }

  // Where the test runs as root, permissions decide nothing; the child that
  // runs the job becomes an ordinary user, who may write everything but the
  // folders made read-only.
  void LetAnyoneWrite() {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.path())) {
      std::filesystem::permissions(entry.path(), std::filesystem::perms::all);
    }
    std::filesystem::permissions(dir.path(), std::filesystem::perms::all);
  }
  static bool BecomeOrdinaryUser() {
    if (::geteuid() != 0) return true;
    return ::setgid(65534) == 0 && ::setuid(65534) == 0;
  }
};

TEST_F(RunSafetyTest, ASecondProcessTakingTheTargetNamesNeverLosesAFile) {
  constexpr int kFiles = 1000;
  for (int i = 0; i < kFiles; ++i) AddFile(Numbered(i), "orig " + std::to_string(i));
  Prefix("IMG_");
  Fill();
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  std::fflush(nullptr);
  const pid_t racer = ::fork();
  if (racer == 0) {
    // Follows the run: the moment file k is gone, the new name of file k + 1
    // is claimed, so some claims land between the run's check and its move.
    ::close(ready[0]);
    ::write(ready[1], "r", 1);
    for (int k = 0; k + 1 < kFiles; k += 2) {
      while (::access(FilePath(Numbered(k)).c_str(), F_OK) == 0) {
      }
      const std::string path = FilePath("IMG_" + Numbered(k + 1));
      const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
      if (fd < 0) continue;
      const std::string text = "racer " + std::to_string(k + 1);
      ::write(fd, text.data(), text.size());
      ::close(fd);
    }
    ::_exit(0);
  }
  ::close(ready[1]);
  char byte;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  ::close(ready[0]);
  const RenameRunResult result =
      StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  ::kill(racer, SIGKILL);
  ::waitpid(racer, nullptr, 0);

  EXPECT_EQ(result.done + result.skipped + result.failed, kFiles);
  RecordProperty("renamed", static_cast<int>(result.done));
  RecordProperty("lost_race", static_cast<int>(result.failed));
  RecordProperty("found_taken", static_cast<int>(result.skipped));
  const std::map<std::string, int> counts = ContentCounts(files());
  int racer_files = 0;
  for (int i = 0; i < kFiles; ++i) {
    EXPECT_EQ(
        counts.count("orig " + std::to_string(i)) ? counts.at("orig " + std::to_string(i)) : 0, 1)
        << i;
    const std::string claimed = "racer " + std::to_string(i);
    if (counts.count(claimed)) racer_files += counts.at(claimed);
  }
  // Every file the racer made is still there with its own content.
  EXPECT_EQ(static_cast<int>(Names().size()), kFiles + racer_files);
  // A file that lost the race was reported as a taken name, never moved.
  if (result.failed > 0) {
    EXPECT_NE(Log().find("58: File already exists"), std::string::npos);
  }
}

TEST_F(RunSafetyTest, ReadOnlyFoldersUnreadableAndVanishedFilesAreReportedAndTheRunGoesOn) {
  AddFile("a.txt", "a");
  AddFile("ro/b.txt", "b");
  AddFile("c.txt", "c");
  AddFile("gone.txt", "g");
  LetAnyoneWrite();
  FileListLoader loader({options, app, interaction, fill_log, media, messages});
  loader.FillListView(list, {files().string(), true});
  list.SelectAll();
  std::filesystem::remove(files() / "gone.txt");
  std::filesystem::permissions(files() / "ro", std::filesystem::perms::owner_read |
                                                   std::filesystem::perms::owner_exec |
                                                   std::filesystem::perms::others_read |
                                                   std::filesystem::perms::others_exec);
  Prefix("p_");
  const int status = InChild([&] {
    if (!BecomeOrdinaryUser()) return 99;
    const RenameRunResult result =
        StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
    return static_cast<int>(result.done * 10 + result.failed);
  });
  EXPECT_EQ(status, 2 * 10 + 2);
  EXPECT_EQ(ReadWholeFile(files() / "p_a.txt"), "a");
  EXPECT_EQ(ReadWholeFile(files() / "p_c.txt"), "c");
  EXPECT_EQ(ReadWholeFile(files() / "ro" / "b.txt"), "b");
  EXPECT_NE(Log().find("70: Permission denied; Renamed"), std::string::npos);
  EXPECT_NE(Log().find("53: File not found; Renamed"), std::string::npos);
  // The batch takes back what was done, and only that.
  EXPECT_NE(Batch().find(FilePath("p_a.txt")), std::string::npos);
  EXPECT_EQ(Batch().find("b.txt"), std::string::npos);
}

TEST_F(RunSafetyTest, ACopyOntoAFullDiskFailsForThatFileAloneAndLeavesNothingBehind) {
  AddFile("big.bin", std::string(256 * 1024, 'b'));
  AddFile("small.txt", "s");
  AddFile("locked.txt", "l");
  LetAnyoneWrite();
  std::filesystem::permissions(files() / "locked.txt", std::filesystem::perms::none);
  Fill();
  Prefix("copy_");
  settings.optCopyRename = kModeCopy;
  const int status = InChild([&] {
    if (!BecomeOrdinaryUser()) return 99;
    // Files may grow to 64 KiB: the big copy meets a full disk.
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{64 * 1024, 64 * 1024};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 98;
    const RenameRunResult result =
        StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
    return static_cast<int>(result.done * 10 + result.failed);
  });
  EXPECT_EQ(status, 1 * 10 + 2);
  EXPECT_EQ(ReadWholeFile(files() / "copy_small.txt"), "s");
  EXPECT_EQ(Names(),
            (std::vector<std::string>{"big.bin", "copy_small.txt", "locked.txt", "small.txt"}));
  EXPECT_EQ(ReadWholeFile(files() / "big.bin").size(), 256u * 1024u);
  EXPECT_NE(Log().find("61: Disk full; Created copy"), std::string::npos);
  EXPECT_NE(Log().find("70: Permission denied; Created copy"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing

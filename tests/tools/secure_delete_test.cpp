// Secure delete: the passes and their bytes as seen from outside, the
// questions, the refusals, and what a killed process leaves.
#include "tools/secure_delete.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "core/run_test_fixture.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

// Rnd() walks through fixed values, again and again.
class FixedRandom : public Random {
 public:
  explicit FixedRandom(std::vector<double> values) : values_(std::move(values)) {}
  void Randomize(double) override {}
  double Rnd() override { return values_[next_++ % values_.size()]; }

 private:
  std::vector<double> values_;
  std::size_t next_ = 0;
};

// What a sweep left in the file, read through a descriptor of the test's own.
struct Seen {
  ShredSweep sweep;
  std::string bytes;
};

std::string ReadThroughOwnDescriptor(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY);
  std::string bytes;
  char buffer[65536];
  for (ssize_t got; fd >= 0 && (got = ::read(fd, buffer, sizeof buffer)) > 0;) bytes.append(buffer, got);
  if (fd >= 0) ::close(fd);
  return bytes;
}

class SecureDeleteTest : public RunTest {
 protected:
  SecureDeleteTest() { SetOption("LogOnlyRename", "0"); }

  RenameRunEnv Env() { return {app, settings, list, options, interaction, messages, clock, log_undo}; }

  ToolJobResult Shred(int passes, const ShredWatch& watch = {}) {
    return SecureDeleteFiles(Env(), passes, random, watch);
  }

  FixedRandom random{{0.5, 0.25, 0.0, 0.999}};
};

TEST_F(SecureDeleteTest, EachSweepWritesItsBytesOverTheWholeFileAndTheFileGoes) {
  const std::size_t size = 2 * kShredBlock + 100;
  AddFile("secret.txt", std::string(size, 's'));
  Fill();
  interaction.Then(Answer::kYes);
  std::vector<Seen> seen;
  const ToolJobResult result = Shred(2, [&](const ShredSweep& sweep) {
    seen.push_back({sweep, ReadThroughOwnDescriptor(sweep.path)});
  });
  EXPECT_EQ(result.done, 1);
  // The question names the count and says what overwriting cannot promise.
  EXPECT_NE(interaction.asked().front().text.find("Later recovery of the 1 files is NOT possible"),
            std::string::npos);
  EXPECT_NE(interaction.asked().front().text.find("SSD"), std::string::npos);

  // Series 1: three sweeps per pass; series 2: one per pass.
  ASSERT_EQ(seen.size(), 8u);
  const unsigned char block_values[] = {0, 255, 255};
  const unsigned char rest_values[] = {90, 255, 140};
  for (std::size_t i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(seen[i].sweep.series, 1);
    EXPECT_EQ(seen[i].sweep.pass, static_cast<int>(i / 3 + 1));
    EXPECT_EQ(seen[i].sweep.sweep, static_cast<int>(i % 3 + 1));
    EXPECT_EQ(seen[i].bytes, std::string(2 * kShredBlock, static_cast<char>(block_values[i % 3])) +
                                 std::string(100, static_cast<char>(rest_values[i % 3])));
  }
  // The random name is drawn from 0.5 × 2001 and 0.25 × 1973.
  EXPECT_EQ(fs::path(seen[0].sweep.path).filename().string(), "1000.493");
  // Series 2: every block one value of 1 to 255, the rest one more.
  std::set<unsigned char> values;
  for (std::size_t i = 6; i < 8; ++i) {
    const std::string& bytes = seen[i].bytes;
    ASSERT_EQ(bytes.size(), size);
    for (std::size_t start = 0; start < size; start += kShredBlock) {
      const std::string part = bytes.substr(start, kShredBlock);
      EXPECT_EQ(part, std::string(part.size(), part[0]));
      EXPECT_NE(part[0], '\0');
      values.insert(static_cast<unsigned char>(part[0]));
    }
  }
  EXPECT_EQ(values, (std::set<unsigned char>{1, 64, 128, 255}));  // 0.999, 0.25, 0.5 ... + 1
  // Neither the old name nor the random one is left.
  EXPECT_TRUE(Names().empty());
  EXPECT_NE(Log().find("renamed for overwriting to \"" + seen[0].sweep.path + "\""),
            std::string::npos);
}

TEST_F(SecureDeleteTest, ABlockWithoutRestAndAnEmptyFileAreHandledAlike) {
  AddFile("block", std::string(kShredBlock, 'b'));
  AddFile("empty", "");
  std::ofstream(files() / "empty", std::ios::trunc);
  Fill();
  interaction.Then(Answer::kYes);
  std::vector<std::size_t> sizes;
  const ToolJobResult result = Shred(1, [&](const ShredSweep& sweep) {
    sizes.push_back(ReadThroughOwnDescriptor(sweep.path).size());
  });
  EXPECT_EQ(result.done, 2);
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(std::count(sizes.begin(), sizes.end(), kShredBlock), 4);
  EXPECT_EQ(std::count(sizes.begin(), sizes.end(), 0u), 4);
}

TEST_F(SecureDeleteTest, NoToTheQuestionTouchesNothingAndWriteProtectionIsAsked) {
  AddFile("a.txt", "a");
  AddFile("b.txt", "b");
  AddFile("c.txt", "c");
  Fill();
  interaction.Then(Answer::kNo);
  EXPECT_EQ(Shred(1).done, 0);
  EXPECT_EQ(Names().size(), 3u);

  // b.txt is write-protected: No skips it with name and content.
  fs::permissions(files() / "b.txt", fs::perms::owner_write | fs::perms::group_write |
                                         fs::perms::others_write, fs::perm_options::remove);
  interaction.Then(Answer::kYes).Then(Answer::kNo);
  ToolJobResult result = Shred(1);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.skipped, 1);
  EXPECT_EQ(Names(), (std::vector<std::string>{"b.txt"}));
  EXPECT_EQ(ReadWholeFile(files() / "b.txt"), "b");
  EXPECT_EQ(interaction.asked().back().title, "Remove write-protection?");

  // Cancel stops the job; Yes lifts the protection and shreds.
  AddFile("d.txt", "d");
  Fill();
  interaction.Then(Answer::kYes).Then(Answer::kCancel);
  result = Shred(1);
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"b.txt", "d.txt"}));
  interaction.Then(Answer::kYes).Then(Answer::kYes);
  EXPECT_EQ(Shred(1).done, 2);
  EXPECT_TRUE(Names().empty());
}

TEST_F(SecureDeleteTest, ALinkIsNeverFollowedAndAnOpenFileIsNotTouched) {
  const fs::path outside = dir.path() / "outside.txt";
  dir.WriteFile("outside.txt", "keep me");
  fs::create_symlink(outside, files() / "link.txt");
  AddFile("open.txt", "in use");
  Fill();
  const int holder = ::open(FilePath("open.txt").c_str(), O_RDONLY);
  interaction.Then(Answer::kYes);
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  const ToolJobResult result = Shred(1);
  ::close(holder);
  EXPECT_EQ(result.failed, 2);
  EXPECT_EQ(ReadWholeFile(outside), "keep me");
  EXPECT_TRUE(fs::is_symlink(files() / "link.txt"));
  EXPECT_EQ(ReadWholeFile(files() / "open.txt"), "in use");
  ASSERT_EQ(result.failures.size(), 2u);
  EXPECT_NE(result.failures[0].find("symbolic link"), std::string::npos) << result.failures[0];
  EXPECT_NE(result.failures[1].find("open in another program"), std::string::npos);
}

TEST_F(SecureDeleteTest, AKilledShredLeavesTheFileUnderItsLoggedRandomName) {
  AddFile("a_victim.txt", std::string(100000, 'v'));
  AddFile("z_later.txt", "later");
  Fill();
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kYes);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    Shred(1, [](const ShredSweep&) { ::raise(SIGKILL); });
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(Names(), (std::vector<std::string>{"1000.493", "z_later.txt"}));
  EXPECT_EQ(ReadWholeFile(files() / "z_later.txt"), "later");
  EXPECT_NE(Log().find("\"" + FilePath("a_victim.txt") + "\" renamed for overwriting to \"" +
                       FilePath("1000.493") + "\""),
            std::string::npos)
      << Log();
}

TEST_F(SecureDeleteTest, ThePassesComeFromTheOptionWithinOneToNinetyNine) {
  EXPECT_EQ(ShredPasses(options), 8);
  SetOption("FSOverwrite", "3");
  EXPECT_EQ(ShredPasses(options), 3);
  SetOption("FSOverwrite", "100");
  EXPECT_EQ(ShredPasses(options), 8);
  SetOption("FSOverwrite", "x");
  EXPECT_EQ(ShredPasses(options), 8);
}

}  // namespace
}  // namespace tarnwick::testing

// Checksums: digests as md5sum and sha256sum give them, the report lines,
// and checksum files in the coreutils forms.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "core/run_test_fixture.h"
#include "tools/checksum_list.h"
#include "tools/checksum_report.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

// What the coreutils tool prints for `path`: the digest before the blanks.
std::string CoreutilsDigest(const std::string& tool, const std::string& path) {
  const std::string command = tool + " '" + path + "'";
  FILE* pipe = ::popen(command.c_str(), "r");
  char line[256] = {};
  const bool read = pipe != nullptr && std::fgets(line, sizeof line, pipe) != nullptr;
  if (pipe != nullptr) ::pclose(pipe);
  if (!read) return "(" + tool + " failed)";
  const std::string text(line);
  return text.substr(0, text.find(' '));
}

class ChecksumTest : public RunTest {
 protected:
  ChecksumTest() { SetOption("LogOnlyRename", "0"); }
  RenameRunEnv Env() { return {app, settings, list, options, interaction, messages, clock, log_undo}; }
};

TEST_F(ChecksumTest, DigestsEqualThoseOfCoreutils) {
  AddFile("empty", "");
  std::ofstream(files() / "empty", std::ios::trunc);
  AddFile("text.txt", "The quick brown fox");
  std::string binary(3 << 20, '\0');
  for (std::size_t i = 0; i < binary.size(); ++i) binary[i] = static_cast<char>(i * 7 + i / 4096);
  AddFile("binary.bin", binary);
  for (const char* name : {"empty", "text.txt", "binary.bin"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(FileDigest(FilePath(name), DigestKind::kMd5).value(),
              CoreutilsDigest("md5sum", FilePath(name)));
    EXPECT_EQ(FileDigest(FilePath(name), DigestKind::kSha256).value(),
              CoreutilsDigest("sha256sum", FilePath(name)));
  }
  EXPECT_EQ(FileDigest(FilePath("empty"), DigestKind::kMd5).value(),
            "d41d8cd98f00b204e9800998ecf8427e");
}

TEST_F(ChecksumTest, AFileAboveFourGibibytesIsReadWhole) {
  // Sparse: a few bytes at the end of 4 GiB of holes.
  {
    std::ofstream file(files() / "huge", std::ios::binary | std::ios::trunc);
    file.seekp(static_cast<std::streamoff>(4ull << 30));
    file << "tail";
  }
  ASSERT_EQ(fs::file_size(files() / "huge"), (4ull << 30) + 4);
  // As md5sum gives it for these bytes (measured once; running it here
  // would read the 4 GiB a second time).
  EXPECT_EQ(FileDigest(FilePath("huge"), DigestKind::kMd5).value(),
            "4a1ae8314d38811a82aa7766b3fe9c20");
}

TEST_F(ChecksumTest, TheReportHasALinePerFileAndAGoneFileSaysWhy) {
  AddFile("a.txt", "a");
  AddFile("b.txt", "b");
  AddFile("c.txt", "c");
  Fill();
  fs::remove(files() / "b.txt");
  const ChecksumReport report = BuildChecksumReport(Env(), DigestKind::kSha256);
  EXPECT_EQ(report.result.done, 2);
  EXPECT_EQ(report.result.failed, 1);
  const std::string expected =
      FilePath("a.txt") + "; SHA256: " + CoreutilsDigest("sha256sum", FilePath("a.txt")) + "\r\n" +
      FilePath("b.txt") + "; SHA256: ! ERROR: 53: File not found\r\n" + FilePath("c.txt") +
      "; SHA256: " + CoreutilsDigest("sha256sum", FilePath("c.txt")) + "\r\n";
  EXPECT_EQ(report.text, expected);
  EXPECT_NE(Log().find("SHA256 checksum [" + FilePath("c.txt") + "; SHA256: "), std::string::npos)
      << Log();

  // Esc between files keeps the lines made so far.
  Fill();
  interaction.PressCancelAtPoll(3);
  const ChecksumReport stopped = BuildChecksumReport(Env(), DigestKind::kMd5);
  EXPECT_TRUE(stopped.result.cancelled);
  EXPECT_EQ(stopped.lines.size(), 1u);
}

TEST_F(ChecksumTest, ChecksumFilesRoundTripInTheCoreutilsForms) {
  const std::string digest(64, 'a');
  const std::string plain = CoreutilsLine(digest, "dir/name.txt");
  EXPECT_EQ(plain, digest + "  dir/name.txt\n");
  const std::string odd = CoreutilsLine(digest, "back\\slash\nnew");
  EXPECT_EQ(odd, "\\" + digest + "  back\\\\slash\\nnew\n");

  const std::string upper(64, 'B');
  const std::string text = plain + odd + "# a comment\r\n\r\n" + upper + " *binary.bin\r\n" +
                           "SHA256 (tagged name) = " + digest + "\n" + "not a line\n" +
                           std::string(32, 'c') + "  md5 length\n" + "\\" + digest + "  bad\\q\n";
  const ChecksumList list = ParseChecksumList(text, DigestKind::kSha256);
  ASSERT_EQ(list.entries.size(), 4u);
  EXPECT_EQ(list.entries[0].path, "dir/name.txt");
  EXPECT_EQ(list.entries[1].path, "back\\slash\nnew");
  EXPECT_EQ(list.entries[2].path, "binary.bin");
  EXPECT_EQ(list.entries[2].digest, std::string(64, 'b'));
  EXPECT_EQ(list.entries[2].line, 5u);
  EXPECT_EQ(list.entries[3].path, "tagged name");
  EXPECT_EQ(list.bad_lines, (std::vector<std::size_t>{7, 8, 9}));

  // What sha256sum -c reads, we write.
  AddFile("check me.txt", "content");
  const std::string sums = (dir.path() / "sums").string();
  std::ofstream(sums) << CoreutilsLine(
      FileDigest(FilePath("check me.txt"), DigestKind::kSha256).value(), FilePath("check me.txt"));
  EXPECT_EQ(std::system(("sha256sum --status -c '" + sums + "'").c_str()), 0);
}

}  // namespace
}  // namespace tarnwick::testing

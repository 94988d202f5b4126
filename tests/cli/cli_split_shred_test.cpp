// "split", "merge", "shred" and "checksum" end to end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using testing::ReadWholeFile;

class CliSplitShredTest : public ::testing::Test {
 protected:
  CliSplitShredTest() {
    std::string bytes(2500, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 37);
    cli_.dir().WriteFile("f.bin", bytes);
  }
  std::string Path(const std::string& relative) const {
    return (cli_.dir().path() / relative).string();
  }
  CliRunner cli_;
};

TEST_F(CliSplitShredTest, SplitMergeAndChecksumsRoundTrip) {
  CliResult r = cli_.Run({"split", Path("f.bin"), "--size", "1000", "--unit", "bytes", "--batch"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_TRUE(fs::exists(Path("f.bin_00002.part")));  // 2.5 - 1 rounds to 2: three pieces
  EXPECT_FALSE(fs::exists(Path("f.bin_00003.part")));
  EXPECT_THAT(ReadWholeFile(Path("f.bin.bat")), HasSubstr("copy /b \"" + Path("f.bin_00000.part")));

  r = cli_.Run({"merge", Path("back.bin"), "--from-list", cli_.dir().str(), "--select",
                "f.bin_*.part", "--sort", "--delete-source"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_TRUE(ReadWholeFile(Path("back.bin")) == ReadWholeFile(Path("f.bin")));
  EXPECT_FALSE(fs::exists(Path("f.bin_00000.part")));
  // Again onto the same target: refused; onto a source: refused even so.
  EXPECT_EQ(cli_.Run({"merge", Path("back.bin"), Path("f.bin")}).exit_code, 3);
  EXPECT_EQ(cli_.Run({"merge", Path("f.bin"), Path("f.bin"), "--overwrite"}).exit_code, 3);

  r = cli_.Run({"checksum", "sha256", Path("f.bin"), Path("back.bin"), "--format", "coreutils"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  cli_.dir().WriteFile("sums", r.out);
  EXPECT_EQ(std::system(("cd '" + cli_.dir().str() + "' && sha256sum --status -c sums").c_str()), 0);
  r = cli_.Run({"checksum", "sha256", "--check", Path("sums")});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr(Path("back.bin") + ": OK"));

  // A changed and a vanished file fail the check, each named.
  cli_.dir().WriteFile("back.bin", "changed");
  r = cli_.Run({"checksum", "sha256", "--check", Path("sums")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.out, HasSubstr(Path("back.bin") + ": FAILED"));
  fs::remove(Path("f.bin"));
  r = cli_.Run({"checksum", "sha256", "--check", Path("sums")});
  EXPECT_THAT(r.out, HasSubstr(Path("f.bin") + ": FAILED open or read"));
  EXPECT_THAT(r.err, HasSubstr("53: File not found"));

  r = cli_.Run({"checksum", "md5", Path("back.bin")});
  EXPECT_EQ(r.exit_code, 0);
  EXPECT_EQ(r.out, Path("back.bin") + "; MD5: 8977dfac2f8e04cb96e66882235f5aba\n");
}

TEST_F(CliSplitShredTest, ShredAsksAndRefusesWithoutAnAnswer) {
  CliResult r = cli_.Run({"shred", Path("f.bin")});
  EXPECT_EQ(r.exit_code, 3);
  EXPECT_THAT(r.err, HasSubstr("not confirmed"));
  EXPECT_TRUE(fs::exists(Path("f.bin")));
  fs::create_directories(Path("folder"));
  EXPECT_EQ(cli_.Run({"shred", Path("folder"), "--yes"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"shred", Path("f.bin"), "--passes", "100", "--yes"}).exit_code, 2);
  r = cli_.Run({"shred", Path("f.bin"), "--passes", "1", "--yes"});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_FALSE(fs::exists(Path("f.bin")));
}

TEST_F(CliSplitShredTest, BadSizesAreRefusedAsTheDialogueRefusesThem) {
  EXPECT_EQ(cli_.Run({"split", Path("f.bin"), "--size", "0.5", "--unit", "bytes"}).exit_code, 3);
  EXPECT_EQ(cli_.Run({"split", Path("f.bin"), "--size", "1", "--unit", "count"}).exit_code, 3);
  EXPECT_EQ(cli_.Run({"split", Path("f.bin"), "--unit", "bytes"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"split", Path("f.bin"), "--size", "9", "--unit", "parsecs"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"checksum", "crc32", Path("f.bin")}).exit_code, 2);
}

}  // namespace
}  // namespace tarnwick

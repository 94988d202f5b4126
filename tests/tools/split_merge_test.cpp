// Split into pieces and merge back: the chunk rule, the pieces and their
// script, the checks that stop a job, and the bytes that come back.
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>

#include "core/run_test_fixture.h"
#include "tools/merge_files.h"
#include "tools/split_file.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

std::string Bytes(std::size_t size) {
  std::string text(size, '\0');
  for (std::size_t i = 0; i < size; ++i) text[i] = static_cast<char>((i * 131 + i / 251) & 0xff);
  return text;
}

class SplitMergeTest : public RunTest {
 protected:
  SplitMergeTest() { SetOption("LogOnlyRename", "0"); }

  RenameRunEnv Env() { return {app, settings, list, options, interaction, messages, clock, log_undo}; }

  SplitChoices Bytewise(double amount) {
    SplitChoices choices;
    choices.amount = amount;
    choices.unit = SplitUnit::kBytes;
    choices.extension = "part";
    return choices;
  }

  // Selects only the rows whose names match `pattern`, in name order.
  void SelectMatching(const std::string& pattern) {
    Fill();
    const SortColumn by_name{file_column::kName, false};
    list.MultiSortListView({&by_name, 1});
    const std::regex wanted(pattern);
    for (std::size_t row = 0; row < list.size(); ++row) {
      list.Select(row, std::regex_match(list.Text(row, file_column::kName), wanted));
    }
  }

  std::vector<std::string> Pieces(const std::string& name) const {
    std::vector<std::string> pieces;
    for (const std::string& file : Names()) {
      if (file.starts_with(name + "_") && file.ends_with(".part")) pieces.push_back(file);
    }
    return pieces;
  }

  MergeChoices Into(const std::string& name) {
    MergeChoices choices;
    choices.target = FilePath(name);
    return choices;
  }
};

TEST_F(SplitMergeTest, TheChunkFollowsTheUnitAndTheCountTest) {
  EXPECT_EQ(ChunkSize(1000, SplitUnit::kBytes, 5000), 1000);
  EXPECT_EQ(ChunkSize(2, SplitUnit::kKilobytes, 5000), 2048);
  EXPECT_EQ(ChunkSize(1.5, SplitUnit::kMegabytes, 5000), 1536 * 1024);
  // Megabytes go through whole kilobytes: 0.0001 MB is 0.1024 KB, none.
  EXPECT_EQ(ChunkSize(1.0001, SplitUnit::kMegabytes, 5000), 1024 * 1024);
  // "Count" 3 of 10 bytes: 10 \ 3 = 3, and 10 / 3072 > 10 \ 3072 adds one.
  EXPECT_EQ(ChunkSize(3, SplitUnit::kCount, 10), 4);
  // A rest that is a multiple of n × 1024 adds nothing.
  EXPECT_EQ(ChunkSize(3, SplitUnit::kCount, 6144), 2048);
  EXPECT_EQ(ChunkSize(3, SplitUnit::kCount, 3 * 3072 + 1), 3072 + 1);

  const MessageTable& english = messages;
  EXPECT_EQ(CheckSplitChoices(Bytewise(0.5), english), "You must enter a size => 1!");
  SplitChoices count = Bytewise(1);
  count.unit = SplitUnit::kCount;
  EXPECT_EQ(CheckSplitChoices(count, english), "You must enter a size greater 1 to proceed!");
  count.amount = 2;
  EXPECT_EQ(CheckSplitChoices(count, english), "");
  EXPECT_EQ(CheckMergeChoices(MergeChoices{}, english),
            "You must select a destination file before proceeding.");
}

TEST_F(SplitMergeTest, PiecesRoundToEvenAndTheLastTakesTheRest) {
  const SplitChoices choices = Bytewise(1000);
  const auto lengths = [&](std::uint64_t size) {
    std::vector<std::uint64_t> result;
    for (const SplitPiece& piece : PlanSplit("/d/f", size, choices).pieces) result.push_back(piece.length);
    return result;
  };
  EXPECT_TRUE(lengths(1000).empty());  // no larger than a piece: not split
  EXPECT_EQ(lengths(1001), (std::vector<std::uint64_t>{1001}));
  EXPECT_EQ(lengths(2400), (std::vector<std::uint64_t>{1000, 1400}));
  EXPECT_EQ(lengths(2500), (std::vector<std::uint64_t>{1000, 1000, 500}));  // 1.5 to even
  EXPECT_EQ(lengths(2600), (std::vector<std::uint64_t>{1000, 1000, 600}));
  EXPECT_EQ(lengths(3500), (std::vector<std::uint64_t>{1000, 1000, 1500}));  // 2.5 to even

  // Far beyond 32 bits, the same rule.
  SplitChoices big = Bytewise(1);
  big.unit = SplitUnit::kMegabytes;
  big.amount = 1024;
  const SplitPlan huge = PlanSplit("/d/f", 5ull << 30, big);
  ASSERT_EQ(huge.pieces.size(), 5u);
  EXPECT_EQ(huge.pieces[4].first, 4ull << 30);
  EXPECT_EQ(huge.pieces[4].length, 1ull << 30);
}

TEST_F(SplitMergeTest, SplitThenMergeGivesBackEveryByteAndTheScriptJoinsThePieces) {
  const std::size_t sizes[] = {0, 1, 999, 1000, 1001, 2400, 2600, 64000 * 3 + 17};
  for (const std::size_t size : sizes) {
    SCOPED_TRACE(size);
    for (const std::string& name : Names()) fs::remove(files() / name);
    AddFile("f.bin", "");
    std::ofstream(files() / "f.bin", std::ios::binary | std::ios::trunc) << Bytes(size);
    SelectMatching("f\\.bin");
    SplitChoices choices = Bytewise(1000);
    choices.batch = true;
    const ToolJobResult split = SplitFiles(Env(), choices);
    EXPECT_EQ(split.failed, 0);
    const std::vector<std::string> pieces = Pieces("f.bin");
    EXPECT_NE(Log().find(size <= 1000 ? "Not split" : "piece(s)"), std::string::npos) << Log();
    if (size <= 1000) {
      EXPECT_TRUE(pieces.empty());
      EXPECT_EQ(split.skipped, 1);
      continue;
    }
    // The script: one line, the quoted pieces joined by " + ", then the target.
    std::string script = "copy /b ";
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      script += "\"" + FilePath(pieces[i]) + "\"" + (i + 1 < pieces.size() ? " + " : " ");
    }
    script += "\"" + FilePath("f.bin") + "\"\r\n";
    EXPECT_EQ(ReadWholeFile(files() / "f.bin.bat"), script);

    SelectMatching("f\\.bin_\\d{5}\\.part");
    const ToolJobResult merged = MergeFiles(Env(), Into("joined.bin"));
    EXPECT_EQ(merged.done, static_cast<std::int64_t>(pieces.size()));
    EXPECT_EQ(ReadWholeFile(files() / "joined.bin"), Bytes(size));
  }
  EXPECT_NE(Log().find("Merge file(s) [\"" + FilePath("f.bin_00000.part")), std::string::npos);
}

TEST_F(SplitMergeTest, CountThreeOfTenBytesGivesPiecesOfFourFourAndTwo) {
  AddFile("ten.txt", "0123456789");
  SelectMatching("ten\\.txt");
  SplitChoices choices = Bytewise(3);
  choices.unit = SplitUnit::kCount;
  SplitFiles(Env(), choices);
  EXPECT_EQ(ReadWholeFile(files() / "ten.txt_00000.part"), "0123");
  EXPECT_EQ(ReadWholeFile(files() / "ten.txt_00001.part"), "4567");
  EXPECT_EQ(ReadWholeFile(files() / "ten.txt_00002.part"), "89");
}

TEST_F(SplitMergeTest, ExistingPiecesStopTheJobAndAreNeverReplacedUnlessAsked) {
  AddFile("a.bin", Bytes(2500));
  AddFile("b.bin", Bytes(2500));
  // The literal "_0." test stops the job before a byte is written.
  AddFile("a.bin_0.part", "mine");
  SelectMatching("[ab]\\.bin");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  ToolJobResult result = SplitFiles(Env(), Bytewise(1000));
  EXPECT_EQ(result.done, 0);
  ASSERT_FALSE(interaction.asked().empty());
  EXPECT_EQ(interaction.asked().back().text, "The file(s) for splitting already exists, process cancelled! ");
  EXPECT_TRUE(Pieces("b.bin").empty());

  // A real earlier piece is not found by that test, but it is not replaced.
  fs::remove(files() / "a.bin_0.part");
  AddFile("a.bin_00001.part", "mine");
  SelectMatching("[ab]\\.bin");
  result = SplitFiles(Env(), Bytewise(1000));
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(ReadWholeFile(files() / "a.bin_00001.part"), "mine");
  EXPECT_TRUE(Pieces("b.bin").empty());

  // With overwriting, the pieces are written over.
  SplitChoices overwrite = Bytewise(1000);
  overwrite.overwrite = true;
  SelectMatching("[ab]\\.bin");
  result = SplitFiles(Env(), overwrite);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(ReadWholeFile(files() / "a.bin_00001.part"), Bytes(2500).substr(1000, 1000));
}

TEST_F(SplitMergeTest, TheSourceGoesOnlyAfterItsSplitAndASmallFileIsKept) {
  AddFile("big.bin", Bytes(3000));
  AddFile("small.bin", Bytes(10));
  SelectMatching(".*\\.bin");
  SplitChoices choices = Bytewise(1000);
  choices.delete_source = true;
  const ToolJobResult result = SplitFiles(Env(), choices);
  EXPECT_EQ(result.done, 1);
  EXPECT_EQ(result.skipped, 1);
  EXPECT_FALSE(fs::exists(files() / "big.bin"));
  EXPECT_EQ(ReadWholeFile(files() / "small.bin"), Bytes(10));
  EXPECT_EQ(Pieces("big.bin").size(), 3u);
}

TEST_F(SplitMergeTest, APieceThatDoesNotFitIsRemovedAndTheSourceStays) {
  AddFile("big.bin", Bytes(300 * 1024));
  SelectMatching("big\\.bin");
  SplitChoices choices = Bytewise(100);
  choices.unit = SplitUnit::kKilobytes;
  choices.delete_source = true;
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  // The disk "fills" after 64 KiB of any file this process writes.
  struct rlimit old_limit;
  getrlimit(RLIMIT_FSIZE, &old_limit);
  signal(SIGXFSZ, SIG_IGN);
  struct rlimit small = old_limit;
  small.rlim_cur = 64 * 1024;
  setrlimit(RLIMIT_FSIZE, &small);
  const ToolJobResult result = SplitFiles(Env(), choices);
  setrlimit(RLIMIT_FSIZE, &old_limit);
  signal(SIGXFSZ, SIG_DFL);
  EXPECT_EQ(result.failed, 1);
  EXPECT_TRUE(Pieces("big.bin").empty());
  EXPECT_EQ(ReadWholeFile(files() / "big.bin"), Bytes(300 * 1024));
  ASSERT_FALSE(interaction.asked().empty());
  EXPECT_EQ(interaction.asked().back().text.rfind("Cannot split file:big.bin", 0), 0u)
      << interaction.asked().back().text;
}

TEST_F(SplitMergeTest, EscBetweenPiecesKeepsThePiecesWrittenAndTheSource) {
  AddFile("big.bin", Bytes(5000));
  SelectMatching("big\\.bin");
  SplitChoices choices = Bytewise(1000);
  choices.delete_source = true;
  interaction.PressCancelAtPoll(3);  // the job's first poll, then after pieces 0 and 1
  const ToolJobResult result = SplitFiles(Env(), choices);
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(Pieces("big.bin").size(), 2u);
  EXPECT_TRUE(fs::exists(files() / "big.bin"));
}

TEST_F(SplitMergeTest, AMergeNeverLosesATargetOrASource) {
  AddFile("1.txt", "one");
  AddFile("2.txt", "two");
  AddFile("3.txt", "three");
  AddFile("out.dat", "older");
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);

  // A target that exists stops the job unless overwriting was asked for.
  SelectMatching("\\d\\.txt");
  ToolJobResult result = MergeFiles(Env(), Into("out.dat"));
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(interaction.asked().back().text, "The file for joining exists already, process was cancelled!");
  EXPECT_EQ(ReadWholeFile(files() / "out.dat"), "older");

  // A target that is one of the sources is refused, even with overwriting.
  MergeChoices onto_source = Into("2.txt");
  onto_source.overwrite = true;
  SelectMatching("\\d\\.txt");
  result = MergeFiles(Env(), onto_source);
  EXPECT_EQ(result.done, 0);
  EXPECT_EQ(ReadWholeFile(files() / "2.txt"), "two");

  // A source that vanished stops the merge with the split tool's words; the
  // old target and every source stay, nothing half-written is left.
  MergeChoices replace = Into("out.dat");
  replace.overwrite = true;
  replace.delete_source = true;
  SelectMatching("\\d\\.txt");
  fs::remove(files() / "3.txt");
  result = MergeFiles(Env(), replace);
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(interaction.asked().back().text.rfind("Cannot split file:3.txt", 0), 0u);
  EXPECT_EQ(ReadWholeFile(files() / "out.dat"), "older");
  EXPECT_TRUE(fs::exists(files() / "1.txt"));
  EXPECT_EQ(Names(), (std::vector<std::string>{"1.txt", "2.txt", "out.dat"}));

  // Esc: the same.
  SelectMatching("\\d\\.txt");
  interaction.PressCancelAtPoll(2);
  result = MergeFiles(Env(), replace);
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(ReadWholeFile(files() / "out.dat"), "older");
  EXPECT_EQ(Names(), (std::vector<std::string>{"1.txt", "2.txt", "out.dat"}));

  // Done: replaced in one step, then the sources go.
  SelectMatching("\\d\\.txt");
  result = MergeFiles(Env(), replace);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(ReadWholeFile(files() / "out.dat"), "onetwo");
  EXPECT_EQ(Names(), (std::vector<std::string>{"out.dat"}));
}

TEST_F(SplitMergeTest, TheFilterLeavesOutNamesWithoutItsTextInAnyCase) {
  AddFile("a.PART1", "a");
  AddFile("b.txt", "b");
  AddFile("c.part2", "c");
  SelectMatching("[abc]\\..*");
  MergeChoices choices = Into("all.dat");
  choices.filter = true;
  choices.filter_text = "part";
  const ToolJobResult result = MergeFiles(Env(), choices);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.skipped, 1);
  EXPECT_EQ(ReadWholeFile(files() / "all.dat"), "ac");
  EXPECT_NE(Log().find("Merge file(s)"), std::string::npos) << Log();
}

TEST_F(SplitMergeTest, AFileAboveTwoGibibytesIsSplitAndMergedByteForByte) {
  // Sparse: data at the start, around the old 2,143,223,809-byte limit and
  // at the end; holes between.
  const std::uint64_t size = (2ull << 30) + 12345;
  AddFile("huge.bin", "");
  {
    std::fstream file(files() / "huge.bin", std::ios::binary | std::ios::in | std::ios::out);
    for (const std::uint64_t at : {std::uint64_t{0}, std::uint64_t{2143223800}, size - 4096}) {
      file.seekp(static_cast<std::streamoff>(at));
      file << Bytes(4096);
    }
  }
  ASSERT_EQ(fs::file_size(files() / "huge.bin"), size);
  SelectMatching("huge\\.bin");
  SplitChoices choices = Bytewise(2);
  choices.unit = SplitUnit::kCount;
  choices.delete_source = false;
  ASSERT_EQ(SplitFiles(Env(), choices).done, 1);
  ASSERT_EQ(Pieces("huge.bin").size(), 2u);
  SelectMatching("huge\\.bin_\\d{5}\\.part");
  ASSERT_EQ(MergeFiles(Env(), Into("back.bin")).done, 2);
  EXPECT_EQ(fs::file_size(files() / "back.bin"), size);
  const std::string compare = "cmp -s '" + FilePath("back.bin") + "' '" + FilePath("huge.bin") + "'";
  EXPECT_EQ(std::system(compare.c_str()), 0);
}

}  // namespace
}  // namespace tarnwick::testing

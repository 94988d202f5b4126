// The batch of a test run's renames.
#include "core/result_batch.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "persist/undo_line.h"

namespace tarnwick {
namespace {

TEST(ResultListBatchTest, NamesABatchCannotCarryBecomeEscapedComments) {
  const std::vector<TestResultRow> rows = {{"a.txt", "say \"hi\".txt", "/f"},
                                           {"b.txt", "line\nbreak.txt", "/f"},
                                           {"c.txt", "50% off.txt", "/f"}};
  const std::string batch = ResultListBatch(rows);
  const std::vector<std::string> lines = vb::Split(batch, "\r\n");
  ASSERT_EQ(lines.size(), 5u);  // header, three rows, the empty rest after the last line end
  EXPECT_EQ(lines[0], "@echo off");
  EXPECT_TRUE(lines[1].starts_with("rem tarnwick-escaped move ")) << lines[1];
  EXPECT_EQ(lines[1].find('"'), std::string::npos);
  EXPECT_TRUE(lines[2].starts_with("rem tarnwick-escaped move ")) << lines[2];
  EXPECT_EQ(lines[3], "move \"/f/c.txt\" \"/f/50% off.txt\"");
  EXPECT_EQ(lines[4], "");

  // The comment keeps both names exactly: the present one first.
  const std::optional<UndoLine> read = ParseUndoLine(lines[2]);
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->escaped);
  EXPECT_EQ(read->new_path, "/f/b.txt");
  EXPECT_EQ(read->old_path, "/f/line\nbreak.txt");
}

TEST(ResultListBatchTest, NothingToRenameGivesTheHeaderOnly) {
  EXPECT_EQ(ResultListBatch({}), "@echo off\r\n");
  EXPECT_EQ(ResultListBatch({{"same", "same", "/"}}), "@echo off\r\n");
}

}  // namespace
}  // namespace tarnwick

#include "playlist/playlist_commands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "base/random.h"
#include "playlist/lost_files.h"
#include "playlist/media_types.h"
#include "playlist/playlist_rows.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

const std::filesystem::path kMp3 = std::filesystem::path(TW_FIXTURE_DIR) / "mp3";

PlaylistRow Row(std::string title, std::string path) {
  PlaylistRow row;
  row.title = std::move(title);
  row.length = "00:00";
  row.path = std::move(path);
  return row;
}

class PlaylistCommandsTest : public ::testing::Test {
 protected:
  PlaylistUi ui() { return {ask_, MessageTable::Get(Language::kEnglish)}; }
  std::string Copy(const std::string& fixture, const std::string& relative) {
    const std::filesystem::path target = dir_.path() / relative;
    std::filesystem::create_directories(target.parent_path());
    std::filesystem::copy_file(kMp3 / fixture, target);
    return target.string();
  }

  TempDir dir_;
  ScriptedInteraction ask_;
};

TEST(MediaTypesTest, FilterMediaTakesTheListedTypesInAnyCase) {
  EXPECT_TRUE(FilterMedia("a.MP3"));
  EXPECT_TRUE(FilterMedia("/x/y.669"));
  EXPECT_TRUE(FilterMedia("b.aiff"));
  EXPECT_FALSE(FilterMedia("c.mp"));
  EXPECT_FALSE(FilterMedia("mp3"));
  EXPECT_FALSE(FilterMedia("d.txt"));
  EXPECT_EQ(GetFileExt("A.B.FLAC"), "flac");
}

TEST_F(PlaylistCommandsTest, CheckRemovesOnlyTheRedRowsAndKeepsTheTicks) {
  std::vector<PlaylistRow> rows = {Row("here", dir_.WriteFile("a.mp3").string()),
                                   Row("gone", dir_.str() + "/gone.mp3"),
                                   Row("url", "http://radio/x")};
  rows[0].checked = false;
  ask_.Then(Answer::kNo);
  EXPECT_FALSE(CheckList(rows, ui()));
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_FALSE(rows[0].red);
  EXPECT_FALSE(rows[0].checked);
  EXPECT_TRUE(rows[1].red);
  EXPECT_EQ(rows[2].tag, "<DELETE>");
  EXPECT_EQ(ask_.asked()[0].text,
            "2 files not found and are red marked!\r\nDo you wish to remove the files now?");

  ask_.Then(Answer::kYes).Then(Answer::kOk);
  EXPECT_TRUE(CheckList(rows, ui()));
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].title, "here");
  EXPECT_FALSE(rows[0].checked);
  EXPECT_EQ(ask_.asked().back().text, "2 not found files removed from list.");

  ask_.Then(Answer::kOk);
  EXPECT_FALSE(CheckItem(rows, 0, ui()));
  EXPECT_EQ(ask_.asked().back().title, "Check title");
  EXPECT_EQ(ask_.asked().back().text, "No missing files found!");
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(PlaylistCommandsTest, CorrectTakesTagsAndCountsFilesWithout) {
  std::vector<PlaylistRow> rows = {Row("x", Copy("ffmpeg_v23.mp3", "a.mp3")),
                                   Row("y", Copy("v1_plain.mp3", "b.mp3")),
                                   Row("wave", Copy("tone.wav", "c.wav")),
                                   Row("gone", dir_.str() + "/none.mp3")};
  rows[2].length = "00:07";
  ask_.Then(Answer::kYes).Then(Answer::kOk);
  EXPECT_TRUE(CorrectList(rows, ui()));
  EXPECT_EQ(rows[0].title, "FF Artist - FF Title");
  EXPECT_EQ(rows[1].title, "Plain Artist - Plain Title");
  EXPECT_EQ(rows[2].title, "wave");
  EXPECT_EQ(rows[2].length, "00:07");
  EXPECT_EQ(ask_.asked().back().text, "2 Titles could not be corrected.");
  EXPECT_EQ(ask_.asked().back().title, "Correct list");

  ask_.Then(Answer::kOk);
  EXPECT_FALSE(CorrectItem(rows, 2, ui()));
  EXPECT_EQ(ask_.asked().back().text, "1 Titles could not be corrected.");
  EXPECT_EQ(ask_.asked().back().title, "Correct title");

  ask_.Then(Answer::kNo);
  rows[0].title = "changed";
  EXPECT_FALSE(CorrectList(rows, ui()));
  EXPECT_EQ(rows[0].title, "changed");
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(PlaylistCommandsTest, AddedFilesAreCorrectedOnlyWhenAsked) {
  const std::string mp3 = Copy("v1_plain.mp3", "Some Name.mp3");
  EXPECT_EQ(RowForFile(mp3, false).title, "Some Name");
  EXPECT_EQ(RowForFile(mp3, true).title, "Plain Artist - Plain Title");
  const PlaylistRow wav = RowForFile(Copy("tone.wav", "tone.wav"), true);
  EXPECT_EQ(wav.title, "tone");
  EXPECT_TRUE(wav.checked);
}

TEST_F(PlaylistCommandsTest, ShuffleAsksInGermanAndKeepsEveryRow) {
  VbRandom random;
  random.Randomize(7);
  std::vector<PlaylistRow> one = {Row("only", "/a")};
  ask_.Then(Answer::kYes);
  EXPECT_FALSE(ShuffleList(one, ui(), random));
  EXPECT_EQ(one[0].title, "only");
  EXPECT_EQ(ask_.asked()[0].text, "Soll die Liste wirklich zufällig sortiert werden?");
  EXPECT_EQ(ask_.asked()[0].title, "Zufallsliste");

  std::vector<PlaylistRow> rows;
  for (int i = 0; i < 50; ++i) rows.push_back(Row(std::to_string(i), "/" + std::to_string(i)));
  const std::vector<PlaylistRow> before = rows;
  ask_.Then(Answer::kYes);
  EXPECT_TRUE(ShuffleList(rows, ui(), random));
  std::set<std::string> titles;
  for (const PlaylistRow& row : rows) titles.insert(row.title);
  EXPECT_EQ(titles.size(), 50u);
  bool moved = false;
  for (std::size_t i = 0; i < rows.size(); ++i) moved = moved || rows[i].title != before[i].title;
  EXPECT_TRUE(moved);

  const std::vector<std::int32_t> order = RandomLongArray(1000, random);
  EXPECT_EQ(std::set<std::int32_t>(order.begin(), order.end()).size(), 1000u);
  EXPECT_EQ(*std::min_element(order.begin(), order.end()), 1);
  EXPECT_EQ(*std::max_element(order.begin(), order.end()), 1000);
}

TEST_F(PlaylistCommandsTest, LostFilesAreFoundByTagsThenNameThenTitle) {
  Copy("v1_plain.mp3", "music/deep/renamed.mp3");
  const std::string by_name = Copy("lame_plain.mp3", "music/old name.mp3");
  const std::string by_title = Copy("lame_plain.mp3", "music/deep/Some Song.MP3");
  std::vector<PlaylistRow> rows = {Row("plain artist - plain title", "/gone/x.mp3"),
                                   Row("whatever", "/gone/OLD NAME.mp3"),
                                   Row("some song", "/gone/y.mp3"),
                                   Row("nowhere", "/gone/z.mp3"),
                                   Row("here", by_name)};
  std::vector<PlaylistRow> shallow = rows;
  const LostFilesProgress flat =
      FindLostFiles(shallow, (dir_.path() / "music").string(), false, nullptr);
  EXPECT_EQ(flat.found, 1u);
  EXPECT_EQ(shallow[1].path, by_name);
  EXPECT_TRUE(shallow[0].red);

  ask_.Then(TextAnswer{(dir_.path() / "music").string()}).Then(Answer::kYes);
  EXPECT_TRUE(SearchLostFiles(rows, ui()));
  EXPECT_EQ(rows[0].path, (dir_.path() / "music/deep/renamed.mp3").string());
  EXPECT_EQ(rows[1].path, by_name);
  EXPECT_EQ(rows[2].path, by_title);
  EXPECT_EQ(rows[3].path, "/gone/z.mp3");
  EXPECT_TRUE(rows[3].red);
  EXPECT_FALSE(rows[0].red);
  EXPECT_EQ(ask_.statuses(StatusArea::kStatusLine).back(), "Ready! Searched files: 3");
  EXPECT_TRUE(ask_.failures().empty());
}

TEST(PlaylistRowsTest, MovesAndClipboardText) {
  std::vector<PlaylistRow> rows = {Row("a", "/a"), Row("b", "/b")};
  EXPECT_FALSE(MoveRow(rows, 0, true));
  EXPECT_TRUE(MoveRow(rows, 0, false));
  EXPECT_FALSE(MoveRow(rows, 1, false));
  EXPECT_EQ(RowsAsText(rows), "b\t00:00\t/b\na\t00:00\t/a\n");
}

}  // namespace
}  // namespace tarnwick

#include "playlist/copy_titles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "persist/option_store.h"
#include "playlist/playlist_commands.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

class CopyTitlesTest : public ::testing::Test {
 protected:
  CopyTitlesTest() : options_(config_.path() / "Tarnwick.ini") {
    std::filesystem::create_directories(dir_.path() / "target");
  }

  PlaylistRow Row(const std::string& name, bool create = true) {
    PlaylistRow row;
    row.title = name;
    row.path = (dir_.path() / name).string();
    if (create) dir_.WriteFile(name, "data of " + name);
    return row;
  }
  PlaylistUi ui() { return {ask_, MessageTable::Get(Language::kEnglish)}; }
  std::string Target() const { return (dir_.path() / "target").string(); }

  TempDir dir_;
  TempDir config_;
  OptionStore options_;
  ScriptedInteraction ask_;
};

TEST_F(CopyTitlesTest, CopiesTickedRowsAndNeverReplacesAFile) {
  std::vector<PlaylistRow> rows = {Row("a.mp3"), Row("b.mp3"), Row("gone.mp3", false),
                                   Row("c.mp3")};
  rows[1].checked = false;
  dir_.WriteFile("target/c.mp3", "older");
  ask_.Then(TextAnswer{Target()}).Then(Answer::kOk);
  CopyTitles(rows, CopyTitlesMode::kCopy, options_, ui());
  EXPECT_EQ(ReadWholeFile(dir_.path() / "target/a.mp3"), "data of a.mp3");
  EXPECT_FALSE(std::filesystem::exists(dir_.path() / "target/b.mp3"));
  EXPECT_EQ(ReadWholeFile(dir_.path() / "target/c.mp3"), "older");
  EXPECT_EQ(options_.GetOption("StartDir", "Playlist", ""), Target());
  const AnsweredQuestion& end = ask_.asked().back();
  EXPECT_EQ(end.title, "Copy playlist titles");
  EXPECT_EQ(end.text,
            "1 files not found an not copied!\n\n1 files are already in the folder and were left "
            "as they are.");
  EXPECT_EQ(end.icon, MessageIcon::kExclamation);
  EXPECT_EQ(ask_.statuses(StatusArea::kStatusLine)[0], "Copying: [1/4] a.mp3 ...");
  EXPECT_EQ(ask_.statuses(StatusArea::kStatusLine)[1],
            "File doesn't exist: " + rows[2].path);
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(CopyTitlesTest, AMoveKeepsTheRowsPathsAndNoTickedRowIsASuccess) {
  std::vector<PlaylistRow> rows = {Row("a.mp3"), Row("gone.mp3", false)};
  options_.SaveOption("StartDir", "Playlist", Target());
  ask_.Then(TextAnswer{Target()}).Then(Answer::kOk);
  CopyTitles(rows, CopyTitlesMode::kMove, options_, ui());
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "target/a.mp3"));
  EXPECT_FALSE(std::filesystem::exists(rows[0].path));
  EXPECT_EQ(ask_.asked().back().title, "Move playlist titles");
  EXPECT_EQ(ask_.asked().back().text, "1 files not found an not moved!");

  for (PlaylistRow& row : rows) row.checked = false;
  ask_.Then(TextAnswer{Target()}).Then(Answer::kOk);
  CopyTitles(rows, CopyTitlesMode::kMove, options_, ui());
  EXPECT_EQ(ask_.asked().back().title, "Copy playlist titles");
  EXPECT_EQ(ask_.asked().back().text, "Action successfull!");
  EXPECT_EQ(ask_.asked().back().icon, MessageIcon::kInformation);

  // Cancel in the folder chooser does nothing, and neither does an empty list.
  ask_.Then(Cancelled{});
  CopyTitles(rows, CopyTitlesMode::kCopy, options_, ui());
  const std::size_t asked = ask_.asked().size();
  CopyTitles({}, CopyTitlesMode::kCopy, options_, ui());
  EXPECT_EQ(ask_.asked().size(), asked);
  EXPECT_TRUE(ask_.failures().empty());
}

TEST_F(CopyTitlesTest, EscStopsTheWalk) {
  std::vector<PlaylistRow> rows = {Row("a.mp3"), Row("b.mp3")};
  std::size_t seen = 0;
  const CopyTitlesResult result = CopyPlaylistTitles(
      rows, Target(), CopyTitlesMode::kCopy,
      [&](std::size_t, std::size_t, const std::string&, bool) { return ++seen < 2; });
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.done, 1u);
  EXPECT_FALSE(std::filesystem::exists(dir_.path() / "target/b.mp3"));
}

}  // namespace
}  // namespace tarnwick

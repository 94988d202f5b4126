#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "log_undo_fixture.h"
#include "persist/default_paths.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class DefaultPathsTest : public LogUndoTest {
 protected:
  std::string Base() const { return (dir_.path() / "data").string(); }
  ProgramFolders Create() {
    return CreateDefaultPaths(env_, log_, Base(), (dir_.path() / "home").string());
  }
};

TEST_F(DefaultPathsTest, MakesTheSixFoldersAndFillsTheState) {
  const ProgramFolders folders = Create();
  const std::string program = Base() + "/Oakhollow/Tarnwick";
  EXPECT_EQ(folders.maker, Base() + "/Oakhollow");
  EXPECT_EQ(folders.program, program);
  EXPECT_EQ(folders.settings, program + "/Rename Settings");
  for (const std::string& folder : {folders.maker, folders.program, folders.log, folders.undo,
                                    folders.settings, folders.favorites}) {
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
  }
  EXPECT_EQ(state_.DefaultLogFolder, program + "/Log Files");
  EXPECT_EQ(state_.DefaultUndoFolder, program + "/Undo Files");
  // Writers find their files there from now on.
  log_.WriteLogFile("/a", "/b", "");
  EXPECT_TRUE(std::filesystem::exists(program + "/Log Files/Tarnwick.log"));
}

TEST_F(DefaultPathsTest, AMissingBaseIsMadeAndTheFallbackUsedWhenItCannotBe) {
  Create();
  EXPECT_TRUE(std::filesystem::is_directory(Base() + "/Oakhollow/Tarnwick/Favorites"));
  // A base below a regular file can never be made.
  const std::string file = dir_.WriteFile("plain").string();
  std::filesystem::create_directories(dir_.path() / "home");
  const ProgramFolders folders =
      CreateDefaultPaths(env_, log_, file + "/data", (dir_.path() / "home").string());
  EXPECT_EQ(folders.maker, (dir_.path() / "home" / "Oakhollow").string());
  EXPECT_TRUE(std::filesystem::is_directory(folders.favorites));
}

TEST_F(DefaultPathsTest, StaleOptionsAreSetRightSilently) {
  Set("UndoFilePath", (dir_.path() / "UndoBatch.bat").string());
  Set("LogFilePath", (dir_.path() / "gone" / "x.log").string());
  Create();
  EXPECT_EQ(Get("UndoFilePath"), state_.DefaultUndoFolder);
  EXPECT_EQ(Get("LogFilePath"), state_.DefaultLogFolder + "/Tarnwick.log");
  EXPECT_TRUE(ask_.asked().empty());
}

TEST_F(DefaultPathsTest, UndoFolderWithMissingParentIsReset) {
  Set("UndoFilePath", (dir_.path() / "gone" / "undo").string());
  Create();
  EXPECT_EQ(Get("UndoFilePath"), state_.DefaultUndoFolder);
}

TEST_F(DefaultPathsTest, GoodValuesStay) {
  const std::string own = (dir_.path() / "own").string();
  Set("UndoFilePath", own);  // the folder itself need not exist, its parent must
  Set("LogFilePath", (dir_.path() / "my.log").string());
  Create();
  EXPECT_EQ(Get("UndoFilePath"), own);
  EXPECT_EQ(Get("LogFilePath"), (dir_.path() / "my.log").string());
}

TEST_F(DefaultPathsTest, FavoritesMoveFromTheProgramFolderOnce) {
  state_.ProgramFolder = (dir_.path() / "program").string();
  dir_.WriteFile("program/Favorites.twf", "fav");
  Set("LogOnlyRename", "0");
  Create();
  const std::string copied = Base() + "/Oakhollow/Tarnwick/Favorites/Favorites.twf";
  EXPECT_EQ(ReadWholeFile(copied), "fav");
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "program/Favorites.twf"));
  const std::string log = ReadWholeFile(state_.DefaultLogFolder + "/Tarnwick.log");
  EXPECT_EQ(log,
            "-> [15.11.2026 20:11:00] CreateDefaultPaths [Copy favorites to new location ... "
            "[15.11.2026 20:11:00]]\r\n");
  dir_.WriteFile("program/Favorites.twf", "newer");
  Create();
  EXPECT_EQ(ReadWholeFile(copied), "fav");
}

}  // namespace
}  // namespace tarnwick::testing

// Where the log and the undo batch go, as the options say at each moment.
#include "persist/log_options.h"

#include <gtest/gtest.h>

#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

TEST(LogOptionsTest, PathsFollowEveryChangeOfTheOptionsAndTheDefaultFolders) {
  testing::TempDir dir;
  OptionStore options(dir.path() / "Tarnwick.ini");
  LogUndoState state;
  state.DefaultLogFolder = "/var/tmp/logs";
  state.DefaultUndoFolder = "/var/tmp/undo";
  state.UndoBatchName = "UndoBatch.bat";
  EXPECT_EQ(CurrentLogFilePath(options, state), "/var/tmp/logs/Tarnwick.log");
  EXPECT_EQ(UndoBatchPath(options, state), "/var/tmp/undo/UndoBatch.bat");
  options.SaveOption("LogFilePath", "Options", "/srv/a/../b/run.log");
  options.SaveOption("UndoFilePath", "Options", "/srv/undo");
  EXPECT_EQ(CurrentLogFilePath(options, state), "/srv/b/run.log");
  EXPECT_EQ(UndoBatchPath(options, state), "/srv/undo/UndoBatch.bat");
  options.SetOverride("LogFilePath", "Options", "/other/x.log");
  EXPECT_EQ(CurrentLogFilePath(options, state), "/other/x.log");
  // Another store of the same file, and a store of another file.
  OptionStore elsewhere(dir.path() / "Other.ini");
  EXPECT_EQ(CurrentLogFilePath(elsewhere, state), "/var/tmp/logs/Tarnwick.log");
  state.DefaultLogFolder = "/home/me/logs";
  EXPECT_EQ(CurrentLogFilePath(elsewhere, state), "/home/me/logs/Tarnwick.log");
  // A relative folder counts from the working folder at the moment of asking.
  elsewhere.SaveOption("UndoFilePath", "Options", "rel/undo");
  EXPECT_EQ(UndoFolderPath(elsewhere, state), AbsolutePath("rel/undo"));
}

}  // namespace
}  // namespace tarnwick

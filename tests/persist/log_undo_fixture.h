#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "base/clock.h"
#include "persist/log_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/undo_batch.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {

// A private world for the log and undo writers: options file, default
// folders, temporary folder, a clock standing at 15.11.2026 20:11:00 and a
// scripted person to ask.
class LogUndoTest : public ::testing::Test {
 protected:
  LogUndoTest() {
    const char* tmp = getenv("TMPDIR");
    if (tmp != nullptr) old_tmpdir_ = tmp;
    std::filesystem::create_directories(dir_.path() / "tmp");
    setenv("TMPDIR", (dir_.path() / "tmp").c_str(), 1);
    state_.DefaultLogFolder = (dir_.path() / "Log Files").string();
    state_.DefaultUndoFolder = (dir_.path() / "Undo Files").string();
    std::filesystem::create_directories(state_.DefaultLogFolder);
    std::filesystem::create_directories(state_.DefaultUndoFolder);
  }
  ~LogUndoTest() override {
    if (old_tmpdir_.empty()) {
      unsetenv("TMPDIR");
    } else {
      setenv("TMPDIR", old_tmpdir_.c_str(), 1);
    }
  }

  void Set(const std::string& key, const std::string& value) {
    options_.SaveOption(key, "Options", value);
  }
  std::string Get(const std::string& key) const { return options_.GetOption(key, "Options", ""); }

  std::string LogPath() const { return state_.DefaultLogFolder + "/Tarnwick.log"; }
  std::string LogText() const { return ReadWholeFile(LogPath()); }
  std::string BatchPath(const std::string& name = "UndoBatch.bat") const {
    return state_.DefaultUndoFolder + "/" + name;
  }
  std::string BatchText(const std::string& name = "UndoBatch.bat") const {
    return ReadWholeFile(BatchPath(name));
  }

  TempDir dir_;
  std::string old_tmpdir_;
  OptionStore options_{dir_.path() / "config" / "Tarnwick.ini"};
  ScriptedInteraction ask_;
  FixedClock clock_{vb::DateTime{2026, 11, 15, 20, 11, 0}};
  AppState app_;
  LogUndoState state_;
  LogUndoEnv env_{options_, ask_, MessageTable::Get(Language::kEnglish), clock_, app_, state_};
  RunLog log_{env_};
  UndoBatch undo_{env_};
};

}  // namespace tarnwick::testing

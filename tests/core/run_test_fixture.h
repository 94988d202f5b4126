#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/clock.h"
#include "core/rename_settings.h"
#include "core/start_rename.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_source.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {

// A fill's log lines, kept.
class KeptFillLog : public FileListLog {
 public:
  void WriteLogFileHeader() override {}
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    lines.push_back(std::string(subject) + " " + std::string(text));
  }
  std::vector<std::string> lines;
};

// A folder of files on disk, the list filled from it as the window fills it,
// options, log and undo folders of their own, a scripted person and a fixed
// clock: everything StartRename needs, as a front end hands it in.
class RunTest : public ::testing::Test {
 protected:
  RunTest() : options(dir.path() / "Tarnwick.ini") {
    std::filesystem::create_directories(files());
    std::filesystem::create_directories(dir.path() / "undo");
    std::filesystem::create_directories(dir.path() / "log");
    log_undo.DefaultUndoFolder = (dir.path() / "undo").string();
    log_undo.DefaultLogFolder = (dir.path() / "log").string();
    SetOption("ReadySound", "0");
    app.BatchMode = true;
    app.CurrentPath = files().string();
  }

  std::filesystem::path files() const { return dir.path() / "files"; }
  std::string FilePath(const std::string& name) const { return (files() / name).string(); }
  void AddFile(const std::string& name, const std::string& content = "x") {
    dir.WriteFile("files/" + name, content.empty() ? name : content);
  }
  void SetOption(std::string_view key, std::string_view value) {
    options.SaveOption(key, "Options", value);
  }
  std::string Option(std::string_view key) const { return options.GetOption(key, "Options", ""); }

  // The list filled from the folder, every row selected.
  void Fill() {
    FileListLoader loader({options, app, interaction, fill_log, media, messages});
    loader.FillListView(list, {files().string(), false});
    list.SelectAll();
  }

  RenameRunResult Run() {
    Fill();
    return StartRename({app, settings, list, options, interaction, messages, clock, log_undo});
  }

  // The names in the folder, sorted.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(files())) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  std::string Batch() const { return ReadWholeFile(dir.path() / "undo" / "UndoBatch.bat"); }
  std::string Log() const { return ReadWholeFile(dir.path() / "log" / "Tarnwick.log"); }

  // The titles of the questions and boxes so far.
  std::vector<std::string> Asked() const {
    std::vector<std::string> titles;
    for (const AnsweredQuestion& q : interaction.asked()) titles.push_back(q.title);
    return titles;
  }
  bool WasAsked(const std::string& title) const {
    const std::vector<std::string> titles = Asked();
    return std::find(titles.begin(), titles.end(), title) != titles.end();
  }

  void Prefix(const std::string& prefix) {
    settings.chkPrefix = 1;
    settings.txtPrefix = prefix;
  }

  TempDir dir;
  OptionStore options;
  AppState app;
  RenameSettings settings;
  FileList list;
  ScriptedInteraction interaction;
  KeptFillLog fill_log;
  FileRowMediaSource media;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  FixedClock clock{{2004, 3, 8, 10, 15, 5}};
  LogUndoState log_undo;
};

}  // namespace tarnwick::testing

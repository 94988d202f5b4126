#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_source.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {

// Answers every question with its first button, records message boxes and
// status texts, and reports Esc at the polls named in `cancel_at_polls`.
class FakeInteraction : public Interaction {
 public:
  Answer ShowMessage(const MessageBoxRequest& request) override {
    messages.push_back(request);
    return Answer::kOk;
  }
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest&) override {
    return StartRenamingChoice::kCancel;
  }
  FileExistsAnswer AskFileExists(const FileExistsRequest&) override { return {}; }
  ManualRenameAnswer AskManualRename(const ManualRenameRequest&) override { return {}; }
  void ShowTestResults(const std::vector<TestResultRow>&) override {}
  std::optional<std::string> AskInput(const InputRequest&) override { return std::nullopt; }
  std::optional<std::string> ChooseFile(const FileChooserRequest&) override { return std::nullopt; }
  std::optional<std::string> ChooseFolder(const FolderChooserRequest&) override {
    return std::nullopt;
  }
  std::optional<SaveSettingsAnswer> AskSaveSettings(const SaveSettingsRequest&) override {
    return std::nullopt;
  }
  void ShowStatus(StatusArea area, std::string_view text) override {
    statuses.emplace_back(area, std::string(text));
  }
  void SetCaption(std::string_view) override {}
  void ShowProgress(std::int64_t value, std::int64_t max) override { last_progress = {value, max}; }
  void HideProgress() override { progress_hidden = true; }
  void SetControlsEnabled(bool enabled, bool) override { controls.push_back(enabled); }
  void PlayWave(const std::string&) override {}
  bool PollCancel() override {
    ++polls;
    for (int at : cancel_at_polls) {
      if (at == polls) return true;
    }
    return false;
  }
  void Yield() override {}

  std::vector<MessageBoxRequest> messages;
  std::vector<std::pair<StatusArea, std::string>> statuses;
  std::pair<std::int64_t, std::int64_t> last_progress{-1, -1};
  bool progress_hidden = false;
  std::vector<bool> controls;
  std::vector<int> cancel_at_polls;
  int polls = 0;
};

class FakeLog : public FileListLog {
 public:
  void WriteLogFileHeader() override { lines.push_back("<header>"); }
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    lines.push_back(std::string(subject) + " | " + std::string(text));
  }
  std::vector<std::string> lines;
};

// Gives a media text to every file and an EXIF date to every picture asked.
class FakeMedia : public FileRowMediaSource {
 public:
  std::string MediaInfoText(const std::filesystem::path& file) override {
    ++media_asked;
    return "3:25";
  }
  std::optional<ListDateTime> ExifDate(const std::filesystem::path& file) override {
    ++exif_asked;
    return ListDateTime{2021, 7, 4, 9, 8, 7};
  }
  int media_asked = 0;
  int exif_asked = 0;
};

// A folder on disk, options in a private file, and a loader over fakes.
class FillTest : public ::testing::Test {
 protected:
  FillTest()
      : options_(dir_.path() / "config" / "Tarnwick.ini"),
        context_{options_, state_, ui_, log_, media_, MessageTable::Get(Language::kEnglish)},
        loader_(context_) {
    std::filesystem::create_directories(root());
  }

  std::filesystem::path root() const { return dir_.path() / "files"; }
  std::string Write(const std::string& relative, const std::string& content = "") {
    return dir_.WriteFile("files/" + relative, content).string();
  }
  void SetOption(const std::string& name, const std::string& value) {
    options_.SaveOption(name, "Options", value);
  }
  void Fill(bool subfolders = false) { loader_.FillListView(list_, {root().string(), subfolders}); }
  std::vector<std::string> Column(int column) const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < list_.size(); ++i) texts.push_back(list_.Text(i, column));
    return texts;
  }
  std::vector<std::string> Names() const { return Column(file_column::kName); }

  TempDir dir_;
  OptionStore options_;
  AppState state_;
  FakeInteraction ui_;
  FakeLog log_;
  FakeMedia media_;
  FileListContext context_;
  FileListLoader loader_;
  FileList list_;
};

}  // namespace tarnwick::testing

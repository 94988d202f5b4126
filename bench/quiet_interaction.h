#pragma once

// What the benchmarks hand the core where a person would sit: nobody
// watches, every question gets a quiet answer, nothing is shown or logged.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "filelist/file_list_context.h"
#include "shell/interaction.h"

namespace tarnwick::bench {

class QuietInteraction : public Interaction {
 public:
  Answer ShowMessage(const MessageBoxRequest& r) override {
    return r.buttons == Buttons::kYesNo ? Answer::kNo : Answer::kOk;
  }
  StartRenamingChoice AskStartRenaming(const StartRenamingRequest&) override {
    return StartRenamingChoice::kRename;
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
  void ShowStatus(StatusArea, std::string_view) override {}
  void SetCaption(std::string_view) override {}
  void ShowProgress(std::int64_t, std::int64_t) override {}
  void HideProgress() override {}
  void SetControlsEnabled(bool, bool) override {}
  void PlayWave(const std::string&) override {}
  bool PollCancel() override { return false; }
  void Yield() override {}
};

class NoLog : public FileListLog {
 public:
  void WriteLogFileHeader() override {}
  void WriteLogFileTool(std::string_view, std::string_view) override {}
};

}  // namespace tarnwick::bench

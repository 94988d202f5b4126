#include "shell/interaction_defaults.h"

#include <array>

namespace tarnwick {
namespace {

constexpr std::array kTopicDefaults = {
    TopicDefault{Topic::kNotice, "A message that only informs", Answer::kOk},
    TopicDefault{Topic::kProceedInSystemFolder, "Renaming in a system folder: proceed anyway?",
                 Answer::kNo},
    TopicDefault{Topic::kSkipShortName,
                 "A name shorter than the characters to cut: continue with the next file?",
                 Answer::kYes},
    TopicDefault{Topic::kSkipOpenFile,
                 "A file is open in another program: skip it (OK) or stop the run (Cancel)?",
                 Answer::kOk},
    TopicDefault{Topic::kContinueAfterError, "A file failed: continue with the next file?",
                 Answer::kYes},
    TopicDefault{Topic::kShowTestResults, "After a test: show the list of files to be created?",
                 Answer::kYes},
    TopicDefault{Topic::kConfirmCancelRename, "Manual renaming cancelled: cancel the whole run?",
                 Answer::kYes},
    TopicDefault{Topic::kDisableLogging, "The log file cannot be written: disable logging?",
                 Answer::kNo},
    TopicDefault{Topic::kDisableUndo, "The undo batch cannot be written: disable undo?",
                 Answer::kNo},
    TopicDefault{Topic::kSaveWithoutPath,
                 "Saving settings whose folder is gone: save without the folder?", Answer::kYes},
    TopicDefault{Topic::kDiscardChanges, "Quit and discard unsaved settings?", Answer::kNo},
    TopicDefault{Topic::kResetAllOptions, "Set all options back to their defaults?", Answer::kNo},
    TopicDefault{Topic::kRunUndoBatch, "Execute the undo batch?", Answer::kNo},
    TopicDefault{Topic::kDeleteLogFile, "Delete the log file?", Answer::kNo},
    TopicDefault{Topic::kVisitDownloadPage, "A new version is available: visit the download page?",
                 Answer::kNo},
    TopicDefault{Topic::kConfirmSecureDelete,
                 "Secure delete: overwrite and delete the selected files?", Answer::kNo},
    TopicDefault{Topic::kRemoveWriteProtection,
                 "Secure delete of a write-protected file: delete it anyway (No skips it)?",
                 Answer::kNo},
    TopicDefault{Topic::kOverwritePictures,
                 "Compressing pictures to JPEG: replace and delete the original files?",
                 Answer::kNo},
    TopicDefault{Topic::kOther,
                 "Any other question: the answer that goes no further (Cancel, No, Abort)",
                 Answer::kCancel},
};

const TopicDefault* FindTopic(Topic topic) {
  for (const TopicDefault& row : kTopicDefaults) {
    if (row.topic == topic) return &row;
  }
  return nullptr;
}

}  // namespace

std::span<const TopicDefault> TopicDefaults() { return kTopicDefaults; }

bool HasButton(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::kOk:
      return answer == Answer::kOk;
    case Buttons::kOkCancel:
      return answer == Answer::kOk || answer == Answer::kCancel;
    case Buttons::kYesNo:
      return answer == Answer::kYes || answer == Answer::kNo;
    case Buttons::kYesNoCancel:
      return answer == Answer::kYes || answer == Answer::kNo || answer == Answer::kCancel;
    case Buttons::kRetryCancel:
      return answer == Answer::kRetry || answer == Answer::kCancel;
    case Buttons::kAbortRetryIgnore:
      return answer == Answer::kAbort || answer == Answer::kRetry || answer == Answer::kIgnore;
  }
  return false;
}

bool IsYesNo(Buttons buttons) {
  return buttons == Buttons::kYesNo || buttons == Buttons::kYesNoCancel;
}

Answer CautiousAnswer(Buttons buttons) {
  switch (buttons) {
    case Buttons::kOk:
      return Answer::kOk;
    case Buttons::kYesNo:
      return Answer::kNo;
    case Buttons::kAbortRetryIgnore:
      return Answer::kAbort;
    case Buttons::kOkCancel:
    case Buttons::kYesNoCancel:
    case Buttons::kRetryCancel:
      return Answer::kCancel;
  }
  return Answer::kCancel;
}

Answer DefaultAnswer(const MessageBoxRequest& request) {
  const TopicDefault* row = FindTopic(request.topic);
  if (row != nullptr && request.topic != Topic::kOther && HasButton(request.buttons, row->answer)) {
    return row->answer;
  }
  return CautiousAnswer(request.buttons);
}

StartRenamingChoice DefaultAnswer(const StartRenamingRequest&) {
  return StartRenamingChoice::kRename;
}

FileExistsAnswer DefaultAnswer(const FileExistsRequest& request) {
  return FileExistsAnswer{FileExistsChoice::kSkip, request.proposed_name, request.skip_all_others};
}

ManualRenameAnswer DefaultAnswer(const ManualRenameRequest& request) {
  return ManualRenameAnswer{false, request.file_name, request.cursor};
}

std::optional<std::string> DefaultAnswer(const InputRequest& request) { return request.preset; }

std::optional<std::string> DefaultAnswer(const FileChooserRequest&) { return std::nullopt; }

std::optional<std::string> DefaultAnswer(const FolderChooserRequest&) { return std::nullopt; }

std::optional<SaveSettingsAnswer> DefaultAnswer(const SaveSettingsRequest&) { return std::nullopt; }

std::string_view AnswerName(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return "OK";
    case Answer::kCancel:
      return "Cancel";
    case Answer::kYes:
      return "Yes";
    case Answer::kNo:
      return "No";
    case Answer::kRetry:
      return "Retry";
    case Answer::kAbort:
      return "Abort";
    case Answer::kIgnore:
      return "Ignore";
  }
  return "?";
}

std::string_view ChoiceName(StartRenamingChoice choice) {
  switch (choice) {
    case StartRenamingChoice::kRename:
      return "Rename";
    case StartRenamingChoice::kTest:
      return "Test";
    case StartRenamingChoice::kCancel:
      return "Cancel";
  }
  return "?";
}

std::string_view ChoiceName(FileExistsChoice choice) {
  switch (choice) {
    case FileExistsChoice::kOk:
      return "OK";
    case FileExistsChoice::kSkip:
      return "Skip";
    case FileExistsChoice::kCancel:
      return "Cancel";
  }
  return "?";
}

}  // namespace tarnwick

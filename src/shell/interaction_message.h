#pragma once

#include <string>

namespace tarnwick {

// The buttons a message box offers.
enum class Buttons { kOk, kOkCancel, kYesNo, kYesNoCancel, kRetryCancel, kAbortRetryIgnore };

// The button pressed.
enum class Answer { kOk, kCancel, kYes, kNo, kRetry, kAbort, kIgnore };

// The symbol beside the text.
enum class MessageIcon { kNone, kInformation, kExclamation, kQuestion, kCritical };

// What a message box is about, so that a front end that cannot ask anyone
// knows which answer to give without reading the text. Each topic has one
// documented default answer (interaction_defaults.h). A question that fits
// none of them is kOther; a box that only tells something is kNotice.
enum class Topic {
  kNotice,                 // a message with OK only
  kProceedInSystemFolder,  // "Renaming in windows path can destroy ..."
  kSkipShortName,          // "Filename to short": continue with the next file?
  kSkipOpenFile,           // "File is open": OK skips the file, Cancel stops
  kContinueAfterError,     // "Continue with next file?" after a failed file
  kShowTestResults,        // "Do you want to see the list of files to be created?"
  kConfirmCancelRename,    // "Do you really want to cancel the renaming?"
  kDisableLogging,         // "Would you like to disable logging?"
  kDisableUndo,            // "Would you like to disable undo?"
  kSaveWithoutPath,        // "Continue saving without path?"
  kDiscardChanges,         // "Do you really want to quit and discard changes?"
  kResetAllOptions,        // "Set all options back to defaults?"
  kRunUndoBatch,           // "Do you really want to execute the undo-batch?"
  kDeleteLogFile,          // "Do you really want to delete the log file?"
  kVisitDownloadPage,      // "Do you want to visit the download page?"
  kConfirmSecureDelete,    // "Are you sure you want to secure delete the selected files? ..."
  kRemoveWriteProtection,  // "The file is write-protected. Do you want to delete it anyway?"
  kOverwritePictures,      // "If you continue you will overwrite all exisiting files, ..."
  kOther,                  // anything else
};

// A message box: title, text, buttons and icon, as the caller words them.
// Texts may hold line ends ("\r\n" or "\n").
struct MessageBoxRequest {
  std::string title;
  std::string text;
  Buttons buttons = Buttons::kOk;
  MessageIcon icon = MessageIcon::kNone;
  Topic topic = Topic::kNotice;
};

}  // namespace tarnwick

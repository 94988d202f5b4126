#pragma once

#include <QDialog>
#include <map>
#include <string>
#include <vector>

#include "persist/log_undo_env.h"
#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QButtonGroup;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTabWidget;

namespace tarnwick::gui {

// How an option is edited. Radio rows of one tab that follow each other
// form one choice (`Option1`): the one picked stores "1", the others "0".
enum class OptionKind { kTick, kText, kNumber, kChoice, kRadio };

// One option of the dialogue: its key in section `Options`, its default, the
// caption's key, the tab, and for a choice its words' keys (stored as the
// English word, read in either language: see shell/option_choice.h).
struct OptionRow {
  const char* key;
  const char* default_value;
  OptionKind kind;
  const char* caption;
  int tab;
  std::vector<const char*> choices = {};
};

// The options of the dialogue in the order they are shown.
const std::vector<OptionRow>& OptionRows();

// `frmOptions`: every option in tabs. Each control shows the value the
// program uses (the stored one, else the default its readers take). OK
// stores what the user changed, and nothing else (FSOverwrite outside 1 to
// 99 becomes 8; the date format in lower case), with the notices of a
// changed file view and of a change that needs a new start; Default asks
// "Set all options back to defaults?" and shows the defaults; Cancel stores
// nothing. The log and undo tab opens the log and the undo folder, runs the
// undo batch and deletes the log; the program tab picks the settings file
// loaded at start.
class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  OptionsDialog(OptionStore& options, const MessageTable& messages, Interaction& questions,
                const std::map<std::string, std::string>& computed_defaults,
                const LogUndoEnv* log_undo = nullptr, QWidget* parent = nullptr);

  // The value a control shows now, as it would be stored.
  std::string Shown(const std::string& key) const;
  void SetShown(const std::string& key, const std::string& value);
  // Returns whether the defaults were put in.
  bool Default();
  void Ok();

 private:
  std::string DefaultOf(const OptionRow& row) const;
  QWidget* Editor(const OptionRow& row, QWidget* parent);
  void BuildSettingsFileChoice(QFormLayout* form);
  void BuildLogAndUndoButtons(QFormLayout* form);
  void ShowLogSize();
  void RunUndoBatch();
  void DeleteLogFile();
  void StoreSettingsFileChoice();
  void ShowNotices(const std::vector<std::string>& changed);

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& questions_;
  std::map<std::string, std::string> computed_defaults_;
  const LogUndoEnv* log_undo_;
  std::map<std::string, QWidget*> editors_;
  // What each control showed on opening: OK stores only what differs.
  std::map<std::string, std::string> opened_;
  QButtonGroup* radios_ = nullptr;
  QRadioButton* no_settings_file_ = nullptr;    // optSettingsFile
  QRadioButton* load_settings_file_ = nullptr;  // optSettingsFile2
  QLineEdit* settings_path_ = nullptr;          // txtSettingsPath
  QLabel* log_size_ = nullptr;
};

}  // namespace tarnwick::gui

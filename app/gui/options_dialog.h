#pragma once

#include <QDialog>
#include <map>
#include <string>
#include <vector>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QTabWidget;

namespace tarnwick::gui {

// How an option is edited.
enum class OptionKind { kTick, kText, kNumber, kChoice };

// One option of the dialogue: its key in section `Options`, its default, the
// caption's key, the tab, and for a choice its words' keys (stored as the
// word of the user's language).
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

// `frmOptions`: every option in tabs. OK stores every value (FSOverwrite
// outside 1 to 99 becomes 8; the date format in lower case); Default asks
// "Set all options back to defaults?" and shows the defaults; Cancel stores
// nothing.
class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  OptionsDialog(OptionStore& options, const MessageTable& messages, Interaction& questions,
                const std::map<std::string, std::string>& computed_defaults,
                QWidget* parent = nullptr);

  // The value a control shows now, as it would be stored.
  std::string Shown(const std::string& key) const;
  void SetShown(const std::string& key, const std::string& value);
  // Returns whether the defaults were put in.
  bool Default();
  void Ok();

 private:
  std::string DefaultOf(const OptionRow& row) const;
  QWidget* Editor(const OptionRow& row, QWidget* parent);

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& questions_;
  std::map<std::string, std::string> computed_defaults_;
  std::map<std::string, QWidget*> editors_;
};

}  // namespace tarnwick::gui

#pragma once

#include <QDialog>
#include <string>

#include "placeholders/picker.h"
#include "shell/message_table.h"

class QButtonGroup;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace tarnwick::gui {

// `frmPatterns`: the catalogue of placeholders for one text field. The list,
// its search, the in-use marks and the result live in the core's
// PatternPicker; the dialogue mirrors them. After OK, `FieldAfter` gives the
// calling field's new text and cursor by the chosen insert mode.
class PatternPickerDialog : public QDialog {
  Q_OBJECT

 public:
  PatternPickerDialog(const MessageTable& messages, const std::string& field_text,
                      std::size_t field_cursor, QWidget* parent = nullptr);

  PatternPicker& picker() { return picker_; }
  QLineEdit* search_field() const { return search_; }
  QTreeWidget* list() const { return list_; }
  QLineEdit* manual_field() const { return manual_; }

  void SetMode(InsertMode mode);
  // A click on a row of the list.
  void ChooseRow(int row);
  // OK: returns whether the dialogue closed (an empty list keeps it open).
  bool Ok();
  // The calling field after the dialogue; unchanged after Cancel.
  FieldUpdate FieldAfter() const;

 private:
  void Search(const QString& text);
  void SelectionToPicker();
  void ShowManualText();

  const MessageTable& messages_;
  std::string field_text_;
  std::size_t field_cursor_;
  PatternPicker picker_;
  QLineEdit* search_ = nullptr;
  QTreeWidget* list_ = nullptr;
  QLabel* count_ = nullptr;
  QButtonGroup* modes_ = nullptr;
  QLineEdit* separator_ = nullptr;
  QLineEdit* manual_ = nullptr;
  bool mirroring_ = false;
};

}  // namespace tarnwick::gui

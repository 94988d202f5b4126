#pragma once

#include <QDialog>
#include <QTimer>
#include <string>

#include "shell/message_table.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace tarnwick::gui {

// The log in a window of our own, for a desktop without an application that
// opens text files: read-only, following the file as runs write to it, with
// a search. A log that is replaced (a new run with "only the last action")
// is read again from its start. Only the last 16 MB of a larger log are
// shown, with a note saying so.
class LogViewer : public QDialog {
  Q_OBJECT

 public:
  LogViewer(const std::string& path, const MessageTable& messages, QWidget* parent = nullptr);

  QPlainTextEdit* text_field() const { return text_; }
  QLineEdit* search_field() const { return search_; }
  // Reads what was added to the file since the last look; tests call it
  // instead of waiting for the timer.
  void Follow();
  // Selects the next place of the search text after the cursor, from the
  // start again at the end; false when the text is nowhere.
  bool FindNext();

 private:
  void ReadFrom(std::uint64_t offset);

  std::string path_;
  const MessageTable& messages_;
  QPlainTextEdit* text_ = nullptr;
  QLineEdit* search_ = nullptr;
  QLabel* note_ = nullptr;
  QTimer follow_;
  std::uint64_t read_up_to_ = 0;
  std::uint64_t inode_ = 0;
};

}  // namespace tarnwick::gui

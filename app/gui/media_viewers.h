#pragma once

#include <QDialog>
#include <string>

#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QLabel;
class QPlainTextEdit;

namespace tarnwick::gui {

// What both viewers share: the file, its text, a button that copies the
// file into a folder kept under `folder_key`, and the window's place.
class MediaViewer : public QDialog {
  Q_OBJECT

 public:
  QPlainTextEdit* text_field() const { return text_; }
  // Copies the file into `folder` (never over a file of the same name) and
  // keeps the folder; false with a message when that fails.
  bool CopyFileTo(const std::string& folder);

 protected:
  struct Keys {
    const char* top;
    const char* left;
    const char* folder;
  };
  MediaViewer(std::string path, Keys keys, OptionStore& options, const MessageTable& messages,
              Interaction& notices, QWidget* parent);
  // The text beside `side` (null: the text alone), and the buttons.
  void Build(QWidget* side, const std::string& text);
  void done(int result) override;

  std::string path_;
  Keys keys_;
  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  QPlainTextEdit* text_ = nullptr;

 private:
  void ChooseFolderAndCopy();
};

// `frmMP3Info`: the facts and tags of an MP3 or Windows Media file
// (`MP3Top`, `MP3Left`, `CopySoundDir`).
class MediaInfoDialog : public MediaViewer {
  Q_OBJECT

 public:
  MediaInfoDialog(const std::string& path, OptionStore& options, const MessageTable& messages,
                  Interaction& notices, QWidget* parent = nullptr);
};

// `frmReadMetaInfo`: a picture scaled to fit beside the list of its EXIF
// entries (`EXIFTop`, `EXIFLeft`, `CopyPicDir`).
class ExifViewerDialog : public MediaViewer {
  Q_OBJECT

 public:
  ExifViewerDialog(const std::string& path, OptionStore& options, const MessageTable& messages,
                   Interaction& notices, QWidget* parent = nullptr);
  QLabel* picture() const { return picture_; }

 private:
  QLabel* picture_ = nullptr;
};

}  // namespace tarnwick::gui

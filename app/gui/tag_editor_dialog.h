#pragma once

#include <QDialog>
#include <map>
#include <string>
#include <vector>

#include "media/tag_editor_model.h"
#include "persist/option_store.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarnwick::gui {

// `frmMP3Tagger`: the version 1 and version 2 tags of an MP3 file, edited
// and written through the media writers. It takes the selected files and
// steps through them with Previous and Next. Its place on the screen is
// kept (`MP3TaggerTop`, `MP3TaggerLeft`).
class TagEditorDialog : public QDialog {
  Q_OBJECT

 public:
  TagEditorDialog(std::vector<std::string> files, OptionStore& options,
                  const MessageTable& messages, Interaction& notices, QWidget* parent = nullptr);
  ~TagEditorDialog() override;

  // Shows the file at `index` of the files.
  void ShowFile(std::size_t index);
  // `cmdUpdate`; true when the tags were written.
  bool Update();
  // `cmdRefresh`.
  void Reload();
  const TagEditorFile& file() const { return file_; }
  // A box by its control name ("v2Artist"); the genres are combo boxes.
  QLineEdit* box(std::string_view name) const;
  QComboBox* genre(int version) const { return version == 1 ? v1_genre_ : v2_genre_; }

 protected:
  void done(int result) override;

 private:
  QFormLayout* BuildTagFrame(int version, QGroupBox*& outer);
  QGroupBox* BuildV1Frame();
  QGroupBox* BuildV2Frame();
  QWidget* BuildMpegFrame();
  void ShowRecords();
  TagEditorUpdate Collect() const;
  void CopyV1ToV2();
  void CopyV2ToV1();
  void EnableFrames();
  void Tell(const std::string& text, MessageIcon icon);

  std::vector<std::string> files_;
  std::size_t index_ = 0;
  TagEditorFile file_;
  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& notices_;
  std::map<std::string, QLineEdit*, std::less<>> boxes_;
  QComboBox* v1_genre_ = nullptr;
  QComboBox* v2_genre_ = nullptr;
  QCheckBox* v1_on_ = nullptr;
  QCheckBox* v2_on_ = nullptr;
  QGroupBox* v1_frame_ = nullptr;
  QGroupBox* v2_frame_ = nullptr;
  QComboBox* version_ = nullptr;
  QCheckBox* clear_ = nullptr;
  QLabel* file_label_ = nullptr;
  QLabel* count_label_ = nullptr;
  QLabel* no_info_ = nullptr;
  QLabel* damage_ = nullptr;
  std::vector<QLabel*> mpeg_labels_;
  QPushButton* update_ = nullptr;
  QPushButton* previous_ = nullptr;
  QPushButton* next_ = nullptr;
};

}  // namespace tarnwick::gui

#include "media_viewers.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFont>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/path_text.h"
#include "media/exif_reader.h"
#include "media/exif_translation.h"
#include "media/media_info_text.h"
#include "platform/files.h"
#include "qt_text.h"
#include "window_place.h"

namespace tarnwick::gui {
namespace {

constexpr int kPictureSide = 320;

}  // namespace

MediaViewer::MediaViewer(std::string path, Keys keys, OptionStore& options,
                         const MessageTable& messages, Interaction& notices, QWidget* parent)
    : QDialog(parent),
      path_(std::move(path)),
      keys_(keys),
      options_(options),
      messages_(messages),
      notices_(notices) {
  setSizeGripEnabled(true);
}

void MediaViewer::Build(QWidget* side, const std::string& text) {
  auto* layout = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  if (side != nullptr) row->addWidget(side, 0, Qt::AlignTop);
  text_ = new QPlainTextEdit(this);
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setPlainText(Q(text).replace("\r\n", "\n"));
  text_->setMinimumSize(420, 360);
  row->addWidget(text_, 1);
  layout->addLayout(row, 1);
  auto* buttons = new QDialogButtonBox(this);
  auto* copy_text = buttons->addButton(Msg(messages_, "viewer.copy_text"),
                                       QDialogButtonBox::ActionRole);
  copy_text->setObjectName("cmdCopyText");
  auto* copy_file = buttons->addButton(Msg(messages_, "viewer.copy_file"),
                                       QDialogButtonBox::ActionRole);
  copy_file->setObjectName("cmdCopy");
  auto* close = buttons->addButton(Msg(messages_, "viewer.close"), QDialogButtonBox::RejectRole);
  close->setObjectName("cmdClose");
  layout->addWidget(buttons);
  connect(copy_text, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(text_->toPlainText()); });
  connect(copy_file, &QPushButton::clicked, this, &MediaViewer::ChooseFolderAndCopy);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  RestoreWindowPlace(*this, options_, keys_.top, keys_.left);
}

void MediaViewer::ChooseFolderAndCopy() {
  const QString start = Q(options_.GetOption(keys_.folder, "Options", ParentFolder(path_)));
  const QString folder =
      QFileDialog::getExistingDirectory(this, Msg(messages_, "viewer.copy_folder_title"), start);
  if (!folder.isEmpty()) CopyFileTo(S(folder));
}

bool MediaViewer::CopyFileTo(const std::string& folder) {
  const std::string target = JoinPath(folder, LastPathElement(path_));
  const FileStatus status = CopyFile(path_, target, false);
  if (!status.ok()) {
    notices_.ShowMessage({std::string(messages_.Text("run.title_error")),
                          target + "\r\n" + std::to_string(status.number) + ": " +
                              status.description,
                          Buttons::kOk, MessageIcon::kCritical, Topic::kNotice});
    return false;
  }
  options_.SaveOption(keys_.folder, "Options", folder);
  notices_.ShowMessage({windowTitle().toStdString(),
                        std::string(messages_.Text("viewer.copied")) + "\r\n" + target,
                        Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
  return true;
}

void MediaViewer::done(int result) {
  SaveWindowPlace(*this, options_, keys_.top, keys_.left);
  QDialog::done(result);
}

MediaInfoDialog::MediaInfoDialog(const std::string& path, OptionStore& options,
                                 const MessageTable& messages, Interaction& notices,
                                 QWidget* parent)
    : MediaViewer(path, {"MP3Top", "MP3Left", "CopySoundDir"}, options, messages, notices,
                  parent) {
  setObjectName("frmMP3Info");
  setWindowTitle(Msg(messages, "viewer.mp3_title") + Q(LastPathElement(path)) + ")");
  Build(nullptr, MediaInfoText(path, messages));
  text_->setObjectName("txtMP3Info");
}

ExifViewerDialog::ExifViewerDialog(const std::string& path, OptionStore& options,
                                   const MessageTable& messages, Interaction& notices,
                                   QWidget* parent)
    : MediaViewer(path, {"EXIFTop", "EXIFLeft", "CopyPicDir"}, options, messages, notices,
                  parent) {
  setObjectName("frmReadMetaInfo");
  setWindowTitle(Msg(messages, "viewer.exif_title") + Q(path) + ")");
  picture_ = new QLabel(this);
  picture_->setObjectName("picImage");
  picture_->setFixedSize(kPictureSide, kPictureSide);
  picture_->setAlignment(Qt::AlignCenter);
  QImageReader reader(Q(path));
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isValid()) {
    reader.setScaledSize(size.scaled(kPictureSide, kPictureSide, Qt::KeepAspectRatio));
  }
  const QImage image = reader.read();
  if (image.isNull()) {
    picture_->setText(Msg(messages, "viewer.no_picture"));
  } else {
    picture_->setPixmap(QPixmap::fromImage(image));
  }
  ExifReader exif(messages, DefaultExifTranslationFiles());
  exif.SetImageFile(path);
  Build(picture_, exif.ListInfo());
  text_->setObjectName("ListInfo");
}

}  // namespace tarnwick::gui

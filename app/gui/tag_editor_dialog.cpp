#include "tag_editor_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/path_text.h"
#include "media/id3_genres.h"
#include "qt_text.h"
#include "window_place.h"

namespace tarnwick::gui {
namespace {

constexpr int kGenreCount = 148;
// The widths of the fields of a version 1 tag.
constexpr int kV1TextLength = 30;
constexpr int kV1CommentLength = 28;

const std::array kMpegLabelNames = {"lblMPEG",  "lblLen",      "lblkBit",   "lblFreq",
                                    "lblCopy",  "lblOrig",     "lblCRC",    "lblEmphasis",
                                    "lblv1Vers", "lblv2Vers"};

QComboBox* GenreBox(const char* name, bool editable, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  box->setEditable(editable);
  box->addItem(QString());
  for (int i = 0; i < kGenreCount; ++i) box->addItem(Q(GenreName(i)));
  box->setMaxVisibleItems(20);
  return box;
}

void ShowGenre(QComboBox* box, const std::string& genre) {
  const int found = box->findText(Q(genre), Qt::MatchFixedString);
  if (found >= 0) {
    box->setCurrentIndex(found);
  } else if (box->isEditable()) {
    box->setEditText(Q(genre));
  } else {
    box->setCurrentIndex(0);
  }
}

}  // namespace

TagEditorDialog::TagEditorDialog(std::vector<std::string> files, OptionStore& options,
                                 const MessageTable& messages, Interaction& notices,
                                 QWidget* parent)
    : QDialog(parent),
      files_(std::move(files)),
      options_(options),
      messages_(messages),
      notices_(notices) {
  setObjectName("frmMP3Tagger");
  setWindowTitle(Msg(messages, "tag_editor.window_title"));
  auto* layout = new QVBoxLayout(this);
  auto* head = new QHBoxLayout;
  file_label_ = new QLabel(this);
  file_label_->setObjectName("lblFile");
  file_label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  count_label_ = new QLabel(this);
  previous_ = new QPushButton(Msg(messages, "tag_editor.previous"), this);
  previous_->setObjectName("cmdPrevious");
  next_ = new QPushButton(Msg(messages, "tag_editor.next"), this);
  next_->setObjectName("cmdNext");
  head->addWidget(file_label_, 1);
  head->addWidget(count_label_);
  head->addWidget(previous_);
  head->addWidget(next_);
  layout->addLayout(head);
  connect(previous_, &QPushButton::clicked, this, [this] { ShowFile(index_ - 1); });
  connect(next_, &QPushButton::clicked, this, [this] { ShowFile(index_ + 1); });

  no_info_ = new QLabel(Msg(messages, "tag_editor.no_mp3"), this);
  no_info_->setObjectName("lblNoInfov1");
  damage_ = new QLabel(this);
  damage_->setObjectName("lblDamage");
  damage_->setWordWrap(true);
  damage_->setStyleSheet("color: #a33;");
  layout->addWidget(no_info_);
  layout->addWidget(damage_);

  auto* frames = new QHBoxLayout;
  frames->addWidget(BuildV1Frame(), 1);
  auto* copy_column = new QVBoxLayout;
  auto* to_v2 = new QPushButton(Msg(messages, "tag_editor.copy_v1_to_v2"), this);
  to_v2->setObjectName("cmdCopyV1toV2");
  auto* to_v1 = new QPushButton(Msg(messages, "tag_editor.copy_v2_to_v1"), this);
  to_v1->setObjectName("cmdCopyV2toV1");
  copy_column->addStretch();
  copy_column->addWidget(to_v2);
  copy_column->addWidget(to_v1);
  copy_column->addStretch();
  frames->addLayout(copy_column);
  frames->addWidget(BuildV2Frame(), 1);
  layout->addLayout(frames);
  connect(to_v2, &QPushButton::clicked, this, &TagEditorDialog::CopyV1ToV2);
  connect(to_v1, &QPushButton::clicked, this, &TagEditorDialog::CopyV2ToV1);
  layout->addWidget(BuildMpegFrame());

  auto* buttons = new QDialogButtonBox(this);
  update_ = buttons->addButton(Msg(messages, "tag_editor.update"), QDialogButtonBox::ActionRole);
  update_->setObjectName("cmdUpdate");
  auto* refresh =
      buttons->addButton(Msg(messages, "tag_editor.refresh"), QDialogButtonBox::ActionRole);
  refresh->setObjectName("cmdRefresh");
  auto* close = buttons->addButton(Msg(messages, "tag_editor.close"), QDialogButtonBox::RejectRole);
  close->setObjectName("cmdCancel");
  layout->addWidget(buttons);
  connect(update_, &QPushButton::clicked, this, [this] { Update(); });
  connect(refresh, &QPushButton::clicked, this, &TagEditorDialog::Reload);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  RestoreWindowPlace(*this, options_, "MP3TaggerTop", "MP3TaggerLeft");
  ShowFile(0);
}

TagEditorDialog::~TagEditorDialog() = default;

QGroupBox* TagEditorDialog::BuildV1Frame() {
  auto* outer = new QGroupBox(this);
  auto* column = new QVBoxLayout(outer);
  v1_on_ = new QCheckBox(Msg(messages_, "tag_editor.frame_v1"), outer);
  v1_on_->setObjectName("chkv1");
  column->addWidget(v1_on_);
  v1_frame_ = new QGroupBox(outer);
  v1_frame_->setObjectName("frav1");
  v1_frame_->setFlat(true);
  auto* form = new QFormLayout(v1_frame_);
  for (const TagBox& box : V1Boxes()) {
    if (box.name == "v1Genre") {
      v1_genre_ = GenreBox("v1Genre", false, v1_frame_);
      form->addRow(Msg(messages_, box.label_key), v1_genre_);
      continue;
    }
    auto* field = new QLineEdit(v1_frame_);
    field->setObjectName(QString::fromLatin1(box.name.data(), box.name.size()));
    field->setMaxLength(box.name == "v1Comment" ? kV1CommentLength
                        : box.name == "v1Year"  ? 4
                        : box.name == "v1TNR"   ? 3
                                                : kV1TextLength);
    boxes_.emplace(std::string(box.name), field);
    form->addRow(Msg(messages_, box.label_key), field);
  }
  column->addWidget(v1_frame_);
  column->addStretch();
  connect(v1_on_, &QCheckBox::toggled, this, &TagEditorDialog::EnableFrames);
  return outer;
}

QGroupBox* TagEditorDialog::BuildV2Frame() {
  auto* outer = new QGroupBox(this);
  auto* column = new QVBoxLayout(outer);
  v2_on_ = new QCheckBox(Msg(messages_, "tag_editor.frame_v2"), outer);
  v2_on_->setObjectName("chkv2");
  column->addWidget(v2_on_);
  v2_frame_ = new QGroupBox(outer);
  v2_frame_->setObjectName("frav2");
  v2_frame_->setFlat(true);
  auto* form = new QFormLayout(v2_frame_);
  for (const TagBox& box : V2Boxes()) {
    if (box.name == "v2Genre") {
      v2_genre_ = GenreBox("v2Genre", true, v2_frame_);
      form->addRow(Msg(messages_, box.label_key), v2_genre_);
      continue;
    }
    auto* field = new QLineEdit(v2_frame_);
    field->setObjectName(QString::fromLatin1(box.name.data(), box.name.size()));
    boxes_.emplace(std::string(box.name), field);
    form->addRow(Msg(messages_, box.label_key), field);
  }
  version_ = new QComboBox(v2_frame_);
  version_->setObjectName("cmbVersion");
  version_->addItems({"2.3", "2.4"});
  form->addRow(Msg(messages_, "tag_editor.write_version"), version_);
  clear_ = new QCheckBox(Msg(messages_, "tag_editor.clear"), v2_frame_);
  clear_->setObjectName("chkClear");
  form->addRow(clear_);
  column->addWidget(v2_frame_);
  connect(v2_on_, &QCheckBox::toggled, this, &TagEditorDialog::EnableFrames);
  return outer;
}

QWidget* TagEditorDialog::BuildMpegFrame() {
  auto* frame = new QGroupBox(Msg(messages_, "tag_editor.mpeg_frame"), this);
  auto* grid = new QGridLayout(frame);
  for (std::size_t i = 0; i < kMpegLabelNames.size(); ++i) {
    auto* label = new QLabel(frame);
    label->setObjectName(kMpegLabelNames[i]);
    grid->addWidget(label, static_cast<int>(i % 5), static_cast<int>(i / 5));
    mpeg_labels_.push_back(label);
  }
  return frame;
}

QLineEdit* TagEditorDialog::box(std::string_view name) const {
  const auto found = boxes_.find(name);
  return found == boxes_.end() ? nullptr : found->second;
}

void TagEditorDialog::ShowFile(std::size_t index) {
  if (files_.empty() || index >= files_.size()) return;
  index_ = index;
  Reload();
}

void TagEditorDialog::Reload() {
  if (files_.empty()) return;
  file_ = LoadTagEditorFile(files_[index_], messages_);
  file_label_->setText(Q(LastPathElement(file_.path)));
  file_label_->setToolTip(Q(file_.path));
  count_label_->setText(
      Q(FillMessage(messages_.Text("tag_editor.file_count"),
                    {std::to_string(index_ + 1), std::to_string(files_.size())})));
  previous_->setEnabled(index_ > 0);
  next_->setEnabled(index_ + 1 < files_.size());
  previous_->setVisible(files_.size() > 1);
  next_->setVisible(files_.size() > 1);
  count_label_->setVisible(files_.size() > 1);
  ShowRecords();
}

void TagEditorDialog::ShowRecords() {
  no_info_->setVisible(!file_.is_mp3);
  damage_->setText(Q(file_.damage));
  damage_->setVisible(!file_.damage.empty());
  update_->setEnabled(file_.is_mp3);
  v1_on_->setEnabled(file_.is_mp3);
  v2_on_->setEnabled(file_.is_mp3);
  v1_on_->setChecked(file_.has_v1);
  v2_on_->setChecked(file_.has_v2);
  for (const TagBox& b : V1Boxes()) {
    if (QLineEdit* field = box(b.name)) field->setText(Q(file_.v1.*b.v1));
  }
  for (const TagBox& b : V2Boxes()) {
    if (QLineEdit* field = box(b.name)) field->setText(Q(file_.v2.*b.v2));
  }
  ShowGenre(v1_genre_, file_.v1.genre);
  ShowGenre(v2_genre_, file_.v2.genre);
  // An existing tag is written again in its own version.
  version_->setCurrentIndex(file_.mpeg.ID3v2Version == 4 ? 1 : 0);
  clear_->setChecked(false);
  const auto texts = MpegLabelTexts(file_, messages_);
  for (std::size_t i = 0; i < mpeg_labels_.size(); ++i) {
    mpeg_labels_[i]->setText(file_.is_mp3 ? Q(texts[i]) : QString());
  }
  EnableFrames();
}

void TagEditorDialog::EnableFrames() {
  v1_frame_->setEnabled(file_.is_mp3 && v1_on_->isChecked());
  v2_frame_->setEnabled(file_.is_mp3 && v2_on_->isChecked());
}

TagEditorUpdate TagEditorDialog::Collect() const {
  TagEditorUpdate update;
  update.v1_on = v1_on_->isChecked();
  update.v2_on = v2_on_->isChecked();
  update.version_row = version_->currentIndex();
  update.clear = clear_->isChecked();
  update.v1 = file_.v1;
  update.v2 = file_.v2;
  for (const TagBox& b : V1Boxes()) {
    if (QLineEdit* field = box(b.name)) update.v1.*b.v1 = S(field->text());
  }
  for (const TagBox& b : V2Boxes()) {
    if (QLineEdit* field = box(b.name)) update.v2.*b.v2 = S(field->text());
  }
  update.v1.genre = S(v1_genre_->currentText());
  update.v2.genre = S(v2_genre_->currentText());
  return update;
}

bool TagEditorDialog::Update() {
  if (!file_.is_mp3) return false;
  const TagUpdateResult result = UpdateTags(file_.path, Collect());
  if (result.outcome != TagUpdateOutcome::kWritten) {
    Tell(TagUpdateMessage(result, file_.path, messages_),
         result.outcome == TagUpdateOutcome::kWriteFailed ? MessageIcon::kCritical
                                                          : MessageIcon::kExclamation);
    if (QLineEdit* field = box(result.box)) field->setFocus();
    return false;
  }
  Reload();
  return true;
}

void TagEditorDialog::CopyV1ToV2() {
  for (const TagBox& b : V1Boxes()) {
    QLineEdit* from = box(b.name);
    QLineEdit* to = box("v2" + std::string(b.name.substr(2)));
    if (from != nullptr && to != nullptr) to->setText(from->text());
  }
  v2_genre_->setEditText(v1_genre_->currentText());
}

void TagEditorDialog::CopyV2ToV1() {
  for (const TagBox& b : V1Boxes()) {
    QLineEdit* to = box(b.name);
    QLineEdit* from = box("v2" + std::string(b.name.substr(2)));
    if (from != nullptr && to != nullptr) to->setText(from->text().left(to->maxLength()));
  }
  ShowGenre(v1_genre_, S(v2_genre_->currentText()));
}

void TagEditorDialog::Tell(const std::string& text, MessageIcon icon) {
  notices_.ShowMessage({std::string(messages_.Text("tag_editor.window_title")), text,
                        Buttons::kOk, icon, Topic::kNotice});
}

void TagEditorDialog::done(int result) {
  SaveWindowPlace(*this, options_, "MP3TaggerTop", "MP3TaggerLeft");
  QDialog::done(result);
}

}  // namespace tarnwick::gui

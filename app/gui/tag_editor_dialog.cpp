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
constexpr int kV1TextLength = 30;
constexpr int kV1CommentLength = 28;

const std::array kMpegLabelNames = {"lblMPEG",  "lblLen",      "lblkBit",   "lblFreq",
                                    "lblCopy",  "lblOrig",     "lblCRC",    "lblEmphasis",
                                    "lblv1Vers", "lblv2Vers"};

// The widths of the boxes of a version 1 tag.
int V1BoxLength(std::string_view box) {
  if (box == "v1Comment") return kV1CommentLength;
  if (box == "v1Year") return 4;
  if (box == "v1TNR") return 3;
  return kV1TextLength;
}

QComboBox* GenreBox(const QString& name, bool editable, QWidget* parent) {
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

// The frame of version 1 or 2: its tick, and its boxes in a form (returned)
// that the tick enables.
QFormLayout* TagEditorDialog::BuildTagFrame(int version, QGroupBox*& outer) {
  const bool first = version == 1;
  outer = new QGroupBox(this);
  auto* column = new QVBoxLayout(outer);
  QCheckBox*& tick = first ? v1_on_ : v2_on_;
  tick = new QCheckBox(Msg(messages_, first ? "tag_editor.frame_v1" : "tag_editor.frame_v2"),
                       outer);
  tick->setObjectName(first ? "chkv1" : "chkv2");
  column->addWidget(tick);
  QGroupBox*& frame = first ? v1_frame_ : v2_frame_;
  frame = new QGroupBox(outer);
  frame->setObjectName(first ? "frav1" : "frav2");
  frame->setFlat(true);
  auto* form = new QFormLayout(frame);
  for (const TagBox& box : first ? V1Boxes() : V2Boxes()) {
    const QString name = QString::fromLatin1(box.name.data(), box.name.size());
    if (box.name.substr(2) == "Genre") {
      QComboBox*& genre = first ? v1_genre_ : v2_genre_;
      // Version 2 takes any genre text; version 1 only the table's numbers.
      genre = GenreBox(name, !first, frame);
      form->addRow(Msg(messages_, box.label_key), genre);
      continue;
    }
    auto* field = new QLineEdit(frame);
    field->setObjectName(name);
    if (first) field->setMaxLength(V1BoxLength(box.name));
    boxes_.emplace(std::string(box.name), field);
    form->addRow(Msg(messages_, box.label_key), field);
  }
  column->addWidget(frame);
  column->addStretch();
  connect(tick, &QCheckBox::toggled, this, &TagEditorDialog::EnableFrames);
  return form;
}

QGroupBox* TagEditorDialog::BuildV1Frame() {
  QGroupBox* outer = nullptr;
  BuildTagFrame(1, outer);
  return outer;
}

QGroupBox* TagEditorDialog::BuildV2Frame() {
  QGroupBox* outer = nullptr;
  QFormLayout* form = BuildTagFrame(2, outer);
  version_ = new QComboBox(v2_frame_);
  version_->setObjectName("cmbVersion");
  version_->addItems({"2.3", "2.4"});
  form->addRow(Msg(messages_, "tag_editor.write_version"), version_);
  clear_ = new QCheckBox(Msg(messages_, "tag_editor.clear"), v2_frame_);
  clear_->setObjectName("chkClear");
  form->addRow(clear_);
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

#include "options_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include "base/text.h"
#include "persist/option_store.h"
#include "qt_text.h"

namespace tarnwick::gui {
namespace {

constexpr const char* kTabs[] = {"options.tab_file_list", "options.tab_renaming",
                                 "options.tab_log_undo", "options.tab_program",
                                 "options.tab_pictures"};

using K = OptionKind;

}  // namespace

const std::vector<OptionRow>& OptionRows() {
  static const std::vector<OptionRow> rows = {
      {"Icons", "1", K::kTick, "options.show_icons", 0},
      {"ShowSystemFiles", "0", K::kTick, "options.show_system_files", 0},
      {"ShowHiddenFiles", "0", K::kTick, "options.show_hidden_files", 0},
      {"MP3WAVLength", "0", K::kTick, "options.show_mediainfo", 0},
      {"ShowTooltips", "1", K::kTick, "options.show_tooltips", 0},
      {"LoadOnlyFileName", "0", K::kTick, "options.load_only_file_names", 0},
      {"CheckNotForNewFiles", "0", K::kTick, "options.check_not_for_new_files", 0},
      {"JumpToLastSelectedFile", "0", K::kTick, "options.jump_to_last_selected", 0},
      {"ShowNewNames", "1", K::kTick, "main.menu.new_name_column", 0},
      {"FileDateType",
       "options.file_date_created",
       K::kChoice,
       "options.file_date_type",
       0,
       {"options.file_date_created", "options.file_date_last_modified",
        "options.file_date_last_access"}},
      {"SampleRefreshRate",
       "sample.rate_normal",
       K::kChoice,
       "options.refreshing_of_sample",
       0,
       {"sample.rate_turn_off", "sample.rate_normal", "sample.rate_average", "sample.rate_slow",
        "sample.rate_special"}},
      {"UseEXIFDate", "0", K::kTick, "options.use_exif_date", 1},
      {"KeepOldFiledate", "0", K::kTick, "options.keep_old_filedate", 1},
      {"DateFormat", "", K::kText, "options.date_format", 1},
      {"DateSeperator", "-", K::kText, "options.date_separator", 1},
      {"TimeSeperator", "-", K::kText, "options.time_separator", 1},
      {"CountDirectories", "0", K::kTick, "options.count_directories", 1},
      {"ResetCounterByDirectory", "1", K::kTick, "options.reset_counter_by_directory", 1},
      {"ResetCounterByDate", "0", K::kTick, "options.reset_counter_by_date", 1},
      {"IllegalCharReplacerActive", "0", K::kTick, "options.illegal_char_replacer", 1},
      {"IllegalCharReplacer", "", K::kText, "options.illegal_char_replacer", 1},
      {"SecureWindowsFolder", "0", K::kTick, "options.secure_windows_folder", 1},
      {"CorrectMP3Tags", "1", K::kTick, "options.correct_mp3_tags", 1},
      {"ProcessNoMP3", "0", K::kTick, "options.process_no_mp3", 1},
      {"FormatMP3TrackTag", "1", K::kTick, "options.format_mp3_track", 1},
      {"IgnoreRegExCasing", "0", K::kTick, "options.ignore_regex_casing", 1},
      {"WriteLogFile", "1", K::kTick, "options.write_log_file", 2},
      {"LogFilePath", "", K::kText, "options.log_file_path", 2},
      {"LogFilePathMulti", "0", K::kTick, "options.log_append", 2},
      {"LogOnlyRename", "1", K::kTick, "options.log_only_rename", 2},
      {"LogSystemInfo", "0", K::kTick, "options.log_system_info", 2},
      {"LogOptionSettings", "0", K::kTick, "options.log_options", 2},
      {"LogRenameSettings", "0", K::kTick, "options.log_renaming_settings", 2},
      {"WriteUndoList", "1", K::kTick, "options.write_undo_batch", 2},
      {"UndoFilePath", "", K::kText, "options.undo_file_path", 2},
      {"OverwriteUndoBatch", "0", K::kTick, "options.overwrite_undo_batch", 2},
      {"IndividualUndoBatchName", "0", K::kTick, "options.individual_undo_batch_name", 2},
      {"WriteUndoBatchInSingleFiles", "0", K::kTick, "options.undo_batch_in_single_files", 2},
      {"BasisNameUndoBatch", "UndoBatch", K::kText, "options.undo_batch_base_name", 2},
      {"Language",
       "options.language_system",
       K::kChoice,
       "options.language",
       3,
       {"options.language_system", "options.language_english", "options.language_german"}},
      {"UseWindowsStyle", "1", K::kTick, "options.use_windows_style", 3},
      {"ContextMenu", "0", K::kTick, "options.context_menu", 3},
      {"TimeMeasuring", "0", K::kTick, "options.time_measuring", 3},
      {"FreezeApp", "0", K::kTick, "options.freeze_app", 3},
      {"ReadySound", "1", K::kTick, "options.ready_sound", 3},
      {"ReadySoundPath", "", K::kText, "options.ready_sound_path", 3},
      {"AdvancedToolTip", "1", K::kTick, "options.advanced_tooltip", 3},
      {"SaveChanges", "1", K::kTick, "options.save_changes", 3},
      {"CorrectPlaylistFiles", "1", K::kTick, "options.correct_playlist_files", 3},
      {"FSOverwrite", "8", K::kNumber, "options.shredder_overwrites", 3},
      {"StartWithWindows", "0", K::kTick, "options.start_with_windows", 3},
      {"View", "1", K::kTick, "options.preview_mode", 4},
      {"View1", "1", K::kTick, "options.preview_mode", 4},
      {"View2", "1", K::kTick, "options.preview_mode", 4},
      {"FullPic", "0", K::kTick, "options.slideshow_fullscreen", 4},
      {"OnlySelected", "0", K::kTick, "options.slideshow_only_selected", 4},
      {"Loop", "1", K::kTick, "options.slideshow_loop", 4},
      {"Intervall", "5", K::kNumber, "options.slideshow_interval", 4},
      {"StretchSlide", "0", K::kTick, "options.slideshow_stretch", 4},
      {"MouseNext", "0", K::kTick, "options.slideshow_mouse_next", 4},
      {"BestSize", "0", K::kTick, "options.best_size", 4},
      {"PicInfo", "0", K::kTick, "options.show_picture_info", 4},
      {"Randomize", "0", K::kTick, "options.slideshow_randomize", 4},
      {"ShowOnlyPictureFilesInSlideshow", "0", K::kTick, "options.slideshow_only_viewable", 4},
      {"CopyButton", "0", K::kTick, "options.copy_button", 4},
      {"CopyPath", "", K::kText, "options.copy_path", 4},
  };
  return rows;
}

OptionsDialog::OptionsDialog(OptionStore& options, const MessageTable& messages,
                             Interaction& questions,
                             const std::map<std::string, std::string>& computed_defaults,
                             QWidget* parent)
    : QDialog(parent),
      options_(options),
      messages_(messages),
      questions_(questions),
      computed_defaults_(computed_defaults) {
  setWindowTitle(Msg(messages, "options.title"));
  resize(640, 520);
  auto* layout = new QVBoxLayout(this);
  auto* tabs = new QTabWidget(this);
  std::vector<QFormLayout*> forms;
  for (const char* tab : kTabs) {
    auto* scroll = new QScrollArea(tabs);
    auto* page = new QWidget(scroll);
    forms.push_back(new QFormLayout(page));
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    tabs->addTab(scroll, Msg(messages, tab));
  }
  for (const OptionRow& row : OptionRows()) {
    QWidget* editor = Editor(row, forms[row.tab]->parentWidget());
    editors_[row.key] = editor;
    QString caption = Msg(messages, row.caption);
    if (caption.contains("%1")) caption = Q(FillMessage(S(caption), {row.key}));
    if (row.kind == OptionKind::kTick) {
      static_cast<QCheckBox*>(editor)->setText(caption);
      forms[row.tab]->addRow(editor);
    } else {
      forms[row.tab]->addRow(caption, editor);
    }
    SetShown(row.key, options.GetOption(row.key, "Options", DefaultOf(row)));
  }
  layout->addWidget(tabs);
  auto* buttons = new QDialogButtonBox(this);
  auto* reset =
      buttons->addButton(Msg(messages, "options.title_default"), QDialogButtonBox::ResetRole);
  buttons->addButton(Msg(messages, "options.button_ok"), QDialogButtonBox::AcceptRole);
  buttons->addButton(Msg(messages, "options.button_cancel"), QDialogButtonBox::RejectRole);
  layout->addWidget(buttons);
  connect(reset, &QPushButton::clicked, this, [this] { Default(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &OptionsDialog::Ok);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

std::string OptionsDialog::DefaultOf(const OptionRow& row) const {
  if (const auto found = computed_defaults_.find(row.key); found != computed_defaults_.end()) {
    return found->second;
  }
  if (row.kind == OptionKind::kChoice) return std::string(messages_.Text(row.default_value));
  return row.default_value;
}

QWidget* OptionsDialog::Editor(const OptionRow& row, QWidget* parent) {
  QWidget* editor = nullptr;
  switch (row.kind) {
    case OptionKind::kTick:
      editor = new QCheckBox(parent);
      break;
    case OptionKind::kChoice: {
      auto* box = new QComboBox(parent);
      for (const char* choice : row.choices) box->addItem(Msg(messages_, choice));
      editor = box;
      break;
    }
    case OptionKind::kText:
    case OptionKind::kNumber:
      editor = new QLineEdit(parent);
      break;
  }
  editor->setObjectName(row.key);
  return editor;
}

std::string OptionsDialog::Shown(const std::string& key) const {
  const auto found = editors_.find(key);
  if (found == editors_.end()) return {};
  if (auto* box = qobject_cast<QCheckBox*>(found->second)) return box->isChecked() ? "1" : "0";
  if (auto* combo = qobject_cast<QComboBox*>(found->second)) return S(combo->currentText());
  if (auto* field = qobject_cast<QLineEdit*>(found->second)) return S(field->text());
  return {};
}

void OptionsDialog::SetShown(const std::string& key, const std::string& value) {
  const auto found = editors_.find(key);
  if (found == editors_.end()) return;
  if (auto* box = qobject_cast<QCheckBox*>(found->second)) box->setChecked(value == "1");
  if (auto* combo = qobject_cast<QComboBox*>(found->second)) {
    const int index = combo->findText(Q(value), Qt::MatchFixedString);
    combo->setCurrentIndex(index >= 0 ? index : 0);
  }
  if (auto* field = qobject_cast<QLineEdit*>(found->second)) field->setText(Q(value));
}

bool OptionsDialog::Default() {
  const Answer answer =
      questions_.ShowMessage({std::string(messages_.Text("options.title_default")),
                              std::string(messages_.Text("options.set_all_back_to_defaults")),
                              Buttons::kYesNo, MessageIcon::kQuestion, Topic::kResetAllOptions});
  if (answer != Answer::kYes) return false;
  for (const OptionRow& row : OptionRows()) SetShown(row.key, DefaultOf(row));
  return true;
}

void OptionsDialog::Ok() {
  for (const OptionRow& row : OptionRows()) {
    std::string value = Shown(row.key);
    if (std::string_view(row.key) == "FSOverwrite") {
      const long times = std::strtol(value.c_str(), nullptr, 10);
      if (times < 1 || times > 99) value = "8";
    }
    if (std::string_view(row.key) == "DateFormat") value = S(Q(value).toLower());
    options_.SaveOption(row.key, "Options", value);
  }
  accept();
}

}  // namespace tarnwick::gui

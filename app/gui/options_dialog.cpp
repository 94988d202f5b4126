#include "options_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "base/text.h"
#include "core/undo_runner.h"
#include "desktop_integration.h"
#include "filelist/file_size_text.h"
#include "persist/log_file.h"
#include "persist/log_options.h"
#include "persist/option_store.h"
#include "persist/undo_batch.h"
#include "platform/files.h"
#include "qt_text.h"
#include "shell/option_choice.h"

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
      {"NaturalNameOrder", "0", K::kTick, "options.natural_name_order", 0},
      {"DoubleClickShowsInfo", "0", K::kTick, "options.double_click_shows_info", 0},
      {"CheckNotForNewFiles", "0", K::kTick, "options.check_not_for_new_files", 0},
      {"JumpToLastSelectedFile", "0", K::kTick, "options.jump_to_last_selected", 0},
      {"ShowNewNames", "1", K::kTick, "main.menu.new_name_column", 0},
      {"FileDateType",
       "options.file_date_last_modified",
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
      {"ResetCounterByDirectory", "1", K::kRadio, "options.reset_counter_by_directory", 1},
      {"ResetCounterByDate", "0", K::kRadio, "options.reset_counter_by_date", 1},
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

namespace {

// "Picture preview mode %1" of the options View, View1 and View2: 1, 2, 3.
std::string PreviewModeNumber(const std::string& key) {
  if (key == "View") return "1";
  if (key == "View1") return "2";
  if (key == "View2") return "3";
  return key;
}

// What the options named after Windows do on Linux, as their tooltip.
const char* LinuxMeaningKey(const std::string& key) {
  if (key == "StartWithWindows") return "options.linux_start_with_windows";
  if (key == "UseWindowsStyle") return "options.linux_use_windows_style";
  if (key == "ContextMenu") return "options.linux_context_menu";
  if (key == "SecureWindowsFolder") return "options.linux_secure_windows_folder";
  return nullptr;
}

const OptionRow* RowOf(const std::string& key) {
  for (const OptionRow& row : OptionRows()) {
    if (key == row.key) return &row;
  }
  return nullptr;
}

std::vector<std::string_view> ChoiceKeys(const OptionRow& row) {
  return {row.choices.begin(), row.choices.end()};
}

bool Contains(const std::vector<std::string>& keys, std::string_view key) {
  return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

OptionsDialog::OptionsDialog(OptionStore& options, const MessageTable& messages,
                             Interaction& questions,
                             const std::map<std::string, std::string>& computed_defaults,
                             const LogUndoEnv* log_undo, QWidget* parent)
    : QDialog(parent),
      options_(options),
      messages_(messages),
      questions_(questions),
      computed_defaults_(computed_defaults),
      log_undo_(log_undo) {
  setObjectName("frmOptions");
  setWindowTitle(Msg(messages, "options.title"));
  setMinimumSize(760, 680);
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
  radios_ = new QButtonGroup(this);
  radios_->setObjectName("Option1");
  for (const OptionRow& row : OptionRows()) {
    QWidget* editor = Editor(row, forms[row.tab]->parentWidget());
    editors_[row.key] = editor;
    QString caption = Msg(messages, row.caption);
    if (caption.contains("%1")) caption = Q(FillMessage(S(caption), {PreviewModeNumber(row.key)}));
    if (auto* button = qobject_cast<QAbstractButton*>(editor)) {
      button->setText(caption);
      forms[row.tab]->addRow(editor);
    } else {
      forms[row.tab]->addRow(caption, editor);
    }
  }
  for (const OptionRow& row : OptionRows()) {
    SetShown(row.key, options.GetOption(row.key, "Options", DefaultOf(row)));
    opened_[row.key] = Shown(row.key);
  }
  BuildLogAndUndoButtons(forms[2]);
  BuildSettingsFileChoice(forms[3]);
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

// `optSettingsFile` (none) and `optSettingsFile2` (this file), as start-up
// reads them: `SettingsFile` "1" loads `SettingsFilePath`.
void OptionsDialog::BuildSettingsFileChoice(QFormLayout* form) {
  auto* group = new QGroupBox(Msg(messages_, "options.settings_file_group"), this);
  auto* column = new QVBoxLayout(group);
  no_settings_file_ = new QRadioButton(Msg(messages_, "options.no_settings_file"), group);
  no_settings_file_->setObjectName("optSettingsFile");
  load_settings_file_ = new QRadioButton(Msg(messages_, "options.load_settings_file"), group);
  load_settings_file_->setObjectName("optSettingsFile2");
  auto* path_row = new QHBoxLayout;
  settings_path_ = new QLineEdit(Q(options_.GetOption("SettingsFilePath", "Options", "")), group);
  settings_path_->setObjectName("txtSettingsPath");
  auto* browse = new QPushButton(Msg(messages_, "options.browse"), group);
  path_row->addWidget(settings_path_, 1);
  path_row->addWidget(browse);
  column->addWidget(no_settings_file_);
  column->addWidget(load_settings_file_);
  column->addLayout(path_row);
  form->addRow(group);
  const bool load = options_.GetOption("SettingsFile", "Options", "0") == "1";
  (load ? load_settings_file_ : no_settings_file_)->setChecked(true);
  connect(browse, &QPushButton::clicked, this, [this] {
    const QString chosen = QFileDialog::getOpenFileName(
        this, Msg(messages_, "options.load_settings_file"), settings_path_->text(),
        Msg(messages_, "settings_file.filter") + " (*.twr)");
    if (chosen.isEmpty()) return;
    settings_path_->setText(chosen);
    load_settings_file_->setChecked(true);
  });
}

void OptionsDialog::StoreSettingsFileChoice() {
  if (no_settings_file_ == nullptr) return;
  const std::string path = S(settings_path_->text().trimmed());
  // Kept: the choice of a file without a path falls back to none.
  const bool load = load_settings_file_->isChecked() && !path.empty();
  options_.SaveOption("NoSettingsFile", "Options", load ? "0" : "1");
  options_.SaveOption("SettingsFile", "Options", load ? "1" : "0");
  options_.SaveOption("SettingsFilePath", "Options", path);
}

void OptionsDialog::BuildLogAndUndoButtons(QFormLayout* form) {
  if (log_undo_ == nullptr) return;
  auto* group = new QGroupBox(Msg(messages_, "options.log_undo_group"), this);
  auto* column = new QVBoxLayout(group);
  auto* row = new QHBoxLayout;
  const auto button = [&](const char* key, const char* name) {
    auto* push = new QPushButton(Msg(messages_, key), group);
    push->setObjectName(name);
    row->addWidget(push);
    return push;
  };
  QPushButton* show_log = button("main.menu.show_log", "cmdShowLog");
  QPushButton* delete_log = button("log.delete_logfile", "cmdDeleteLog");
  QPushButton* undo_folder = button("main.menu.undo_folder", "cmdUndoFolder");
  QPushButton* run_batch = button("undo.title_start", "cmdRunUndoBatch");
  row->addStretch();
  column->addLayout(row);
  log_size_ = new QLabel(group);
  log_size_->setObjectName("lblLogSize");
  column->addWidget(log_size_);
  form->addRow(group);
  ShowLogSize();
  connect(show_log, &QPushButton::clicked, this, [this] {
    const std::string path = RunLog(*log_undo_).LogFilePath();
    if (QFileInfo::exists(Q(path))) OpenWithDesktop(path);
  });
  connect(undo_folder, &QPushButton::clicked, this,
          [this] { OpenWithDesktop(UndoFolderPath(log_undo_->options, log_undo_->state)); });
  connect(delete_log, &QPushButton::clicked, this, &OptionsDialog::DeleteLogFile);
  connect(run_batch, &QPushButton::clicked, this, &OptionsDialog::RunUndoBatch);
}

// "Notice: The logfile has a current file size of 12 KB"; 0 Bytes without a log.
void OptionsDialog::ShowLogSize() {
  if (log_size_ == nullptr) return;
  const FileResult<std::uint64_t> size = FileSize64(RunLog(*log_undo_).LogFilePath());
  const std::string shown = size.ok() ? FormatFileSize(size.value(), messages_.language())
                                      : std::string("0 Bytes");
  log_size_->setText(Msg(messages_, "log.current_size") + " " + Q(shown));
}

void OptionsDialog::DeleteLogFile() {
  const Answer answer = questions_.ShowMessage(
      {std::string(messages_.Text("log.delete_logfile")),
       std::string(messages_.Text("log.really_delete")), Buttons::kYesNo, MessageIcon::kQuestion,
       Topic::kDeleteLogFile});
  if (answer != Answer::kYes) return;
  DeleteFile(RunLog(*log_undo_).LogFilePath());
  ShowLogSize();
}

// The batch is carried out by the program itself, as `tarnwick-cli undo`
// does: newest run first, never overwriting a file.
void OptionsDialog::RunUndoBatch() {
  const Answer answer = questions_.ShowMessage(
      {std::string(messages_.Text("undo.title_start")),
       std::string(messages_.Text("undo.really_execute")), Buttons::kYesNo,
       MessageIcon::kQuestion, Topic::kRunUndoBatch});
  if (answer != Answer::kYes) return;
  const UndoReport report = tarnwick::RunUndoBatch(UndoBatch(*log_undo_).UndoBatchPath(), {}, nullptr);
  std::string text;
  if (!report.status.ok()) {
    text = std::to_string(report.status.number) + ": " + report.status.description;
  } else {
    text = FillMessage(messages_.Text("options.undo_batch_done"),
                       {std::to_string(report.done), std::to_string(report.failed),
                        std::to_string(report.skipped)});
  }
  questions_.ShowMessage({std::string(messages_.Text("undo.title_start")), text, Buttons::kOk,
                          report.failed > 0 || !report.status.ok() ? MessageIcon::kExclamation
                                                                   : MessageIcon::kInformation,
                          Topic::kNotice});
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
    case OptionKind::kRadio: {
      auto* radio = new QRadioButton(parent);
      radios_->addButton(radio);
      editor = radio;
      break;
    }
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
  if (const char* meaning = LinuxMeaningKey(row.key)) editor->setToolTip(Msg(messages_, meaning));
  return editor;
}

std::string OptionsDialog::Shown(const std::string& key) const {
  const auto found = editors_.find(key);
  if (found == editors_.end()) return {};
  if (auto* box = qobject_cast<QAbstractButton*>(found->second)) return box->isChecked() ? "1" : "0";
  if (auto* combo = qobject_cast<QComboBox*>(found->second)) {
    const OptionRow* row = RowOf(key);
    const int index = combo->currentIndex();
    if (row == nullptr || index < 0) return {};
    return ChoiceValue(row->choices[static_cast<std::size_t>(index)]);
  }
  if (auto* field = qobject_cast<QLineEdit*>(found->second)) return S(field->text());
  return {};
}

void OptionsDialog::SetShown(const std::string& key, const std::string& value) {
  const auto found = editors_.find(key);
  if (found == editors_.end()) return;
  if (auto* box = qobject_cast<QAbstractButton*>(found->second)) {
    if (value == "1" || !box->autoExclusive()) box->setChecked(value == "1");
  }
  if (auto* combo = qobject_cast<QComboBox*>(found->second)) {
    const OptionRow* row = RowOf(key);
    const auto index = row != nullptr ? FindChoice(value, ChoiceKeys(*row)) : std::nullopt;
    combo->setCurrentIndex(index ? static_cast<int>(*index) : 0);
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
  std::vector<std::string> changed;
  for (const OptionRow& row : OptionRows()) {
    std::string value = Shown(row.key);
    if (value == opened_[row.key]) continue;
    if (std::string_view(row.key) == "FSOverwrite") {
      const long times = std::strtol(value.c_str(), nullptr, 10);
      if (times < 1 || times > 99) value = "8";
    }
    if (std::string_view(row.key) == "DateFormat") value = S(Q(value).toLower());
    options_.SaveOption(row.key, "Options", value);
    changed.emplace_back(row.key);
  }
  StoreSettingsFileChoice();
  ShowNotices(changed);
  accept();
}

void OptionsDialog::ShowNotices(const std::vector<std::string>& changed) {
  const bool file_view = Contains(changed, "ShowSystemFiles") ||
                         Contains(changed, "ShowHiddenFiles") || Contains(changed, "Icons") ||
                         Contains(changed, "DateFormat");
  if (file_view) {
    questions_.ShowMessage({std::string(messages_.Text("options.title_information")),
                            std::string(messages_.Text("options.file_view_changed")),
                            Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
  }
  if (Contains(changed, "UseWindowsStyle") || Contains(changed, "Language")) {
    questions_.ShowMessage({std::string(messages_.Text("options.title_restart_necessary")),
                            std::string(messages_.Text("options.changes_apply_at_next_start")),
                            Buttons::kOk, MessageIcon::kInformation, Topic::kNotice});
  }
}

}  // namespace tarnwick::gui

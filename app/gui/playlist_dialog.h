#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "base/random.h"
#include "persist/option_store.h"
#include "playlist/copy_titles.h"
#include "playlist/playlist_commands.h"
#include "playlist/playlist_row.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

class QAction;
class QCheckBox;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

namespace tarnwick::gui {

// `frmPlaylistCopy`, the playlist editor: the list `lvwFilePreview` of
// titles with ticks, built from files (the add button, drag and drop) or
// loaded from an M3U or PLS file, checked, corrected from the tags,
// shuffled, searched for lost files and saved. The rows live in the core's
// records; the list shows them. Questions go to `questions`; the window's own
// status line and progress bar show the work.
class PlaylistDialog : public QDialog {
  Q_OBJECT

 public:
  PlaylistDialog(OptionStore& options, const MessageTable& messages, Interaction& questions,
                 QWidget* parent = nullptr);
  ~PlaylistDialog() override;

  // `ShowUp` with a playlist file: loads it. False (with the message shown)
  // when it is no playlist.
  bool LoadFile(const std::string& path);
  // Adds files as `cmdAddTitle` and a drop do: media types only, each
  // corrected from its tags when `CorrectPlaylistFiles` is "1".
  void AddFiles(const QStringList& paths);

  // The commands, for the buttons, the menu and tests.
  void DeleteSelected();
  void MoveSelected(bool up);
  void TickAll(bool ticked);
  void CopyToClipboard();
  void Load();
  // `cmdSavePLS`: asks for a file; false when nothing was written.
  bool Save();
  bool SaveTo(const std::string& path);
  void CheckAll();
  void CheckSelected();
  void CorrectAll();
  void CorrectSelected();
  void Shuffle();
  void SearchLost();
  void ChangePath();
  // `cmdCopyFiles`, `cmdMoveFiles`: the ticked rows' files into a folder.
  void CopyFiles(CopyTitlesMode mode);
  void ClearAll();

  const std::vector<PlaylistRow>& rows() const { return rows_; }
  bool dirty() const { return dirty_; }
  QTreeWidget* list() const { return list_; }
  QLabel* play_time() const { return play_time_; }
  QLabel* status() const { return status_; }
  QList<QAction*> menu_actions() const;
  QSize sizeHint() const override { return {860, 520}; }
  // Tests fix the shuffle.
  void SetRandom(std::unique_ptr<Random> random) { random_ = std::move(random); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void reject() override;

 private:
  class StatusInteraction;

  void BuildButtons(QVBoxLayout* column);
  void BuildMenu(QMenu* menu);
  // The list shows rows_ again; the ticks and the selection follow.
  void ShowRows();
  int CurrentIndex() const;
  std::vector<std::size_t> SelectedIndexes() const;
  PlaylistUi ui();
  void Changed(bool changed);
  // Asks before the rows go: true when they may.
  bool MayDiscard();
  void Tell(std::string_view title_key, const std::string& text, MessageIcon icon);

  OptionStore& options_;
  const MessageTable& messages_;
  Interaction& questions_;
  std::unique_ptr<StatusInteraction> status_interaction_;
  std::unique_ptr<Random> random_;
  std::vector<PlaylistRow> rows_;
  bool dirty_ = false;
  std::string file_;  // the playlist loaded or saved last

  QTreeWidget* list_ = nullptr;
  QLabel* play_time_ = nullptr;
  QLabel* status_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QCheckBox* keep_top_ = nullptr;
  QPushButton* copy_files_ = nullptr;
  QPushButton* move_files_ = nullptr;
  QMenu* menu_ = nullptr;
};

// Whether a name is a playlist the editor loads: ".m3u", ".m3u8" or ".pls".
bool IsPlaylistName(std::string_view name);

}  // namespace tarnwick::gui

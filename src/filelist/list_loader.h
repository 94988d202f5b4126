#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "filelist/extension_list.h"
#include "filelist/file_list.h"
#include "filelist/file_list_context.h"
#include "filelist/folder_read.h"
#include "filelist/type_text_cache.h"
#include "shell/message_table.h"

namespace tarnwick {

// What a fill reads besides the options.
struct FillRequest {
  // The folder to show (`ctlExplorer1.Path`); a relative one counts from the
  // working folder.
  std::string folder;
  // `chkIncludeSubfolders`: walk the subfolders too.
  bool include_subfolders = false;
};

// Fills a FileList from the disk. One loader lives as long as the list; it
// keeps the type text cache and the items of the extension box between fills.
//
// Rows come in name order (NameOrder: the user's locale, numbers in their
// natural order with the option `NaturalNameOrder`), folder after folder,
// the subfolders depth first in the same order; a sort chosen before (`MultiSortListView`) is applied again at the end.
// Esc (or Ctrl-C) through `Interaction::PollCancel` stops a fill; the rows read
// so far stay, and the log gets the line "!User terminated filling file list
// with ESC".
class FileListLoader {
 public:
  explicit FileListLoader(FileListContext context)
      : context_(context), types_(context.messages.language()) {}

  // `FillListFiles`: a fill with the window's share: the hidden and system
  // flags taken from the options, status texts, the controls disabled during
  // the fill, the icons switched off for good at the first fill with
  // subfolders, and the first row selected at the end.
  void FillListFiles(FileList& list, const FillRequest& request);

  // `FillListView`: the rows of the folder and, if asked, its subfolders.
  // Uses the flags `ShowHiddenFlag` and `ShowSystemFlag` of the state as they
  // are and the filter `CurrentFilter`. True when Esc (Ctrl-C on the
  // command line) stopped the fill: the rows are then those read so far.
  bool FillListView(FileList& list, const FillRequest& request);

  // The rows of the files named by `paths` (absolute, or relative to the
  // working folder), in the order named, each folder read once, with the
  // flags and filter of FillListView. Returns the paths that give no row
  // (no such file, a folder, or a file the list does not show).
  std::vector<std::string> FillListWithFiles(FileList& list, std::span<const std::string> paths);

  // Why the folder of the last fill could not be read; success when it was.
  const FileStatus& folder_error() const { return folder_error_; }

  // The items of the extension box after the last fill.
  std::vector<std::string> Extensions() const { return extensions_.Items(); }

 private:
  // Empties the list and takes the options a fill shows its rows with.
  void BeginFill(FileList& list);
  // `GetFiles`, with its status texts, the Esc test and the error report.
  // Returns the read; `opened` is false when nothing could be read.
  FolderRead GetFiles(const std::string& folder);
  void ReportReadError(const std::string& folder, const FolderRead& read);
  // `ViewFolder` on records read already; false when the read failed.
  bool ViewFolder(FileList& list, const std::string& folder, const FolderRead& read);
  void WalkSubfolders(FileList& list, const std::string& folder, const FolderRead& read);
  // The Esc test: true when a cancel is pending, which is then set in the
  // state.
  bool TestCancel();

  FileListContext context_;
  TypeTextCache types_;
  ExtensionList extensions_;
  // A key press lasts: when a folder read stops on Esc, the next test sees
  // the same press again.
  bool key_still_down_ = false;
  // The name order of the last fill, shared with the list for its sorts.
  std::shared_ptr<const NameOrder> name_order_;
  // Esc stopped the fill in hand.
  bool stopped_ = false;
  FileStatus folder_error_;
  // Device and inode of the folders from the top down to the one walked.
  std::vector<std::pair<std::uint64_t, std::uint64_t>> walk_path_;
};

// Copies the options `ShowSystemFiles` and `ShowHiddenFiles` into the
// state's flags, as each fill of the window does first.
void TakeViewFlags(const OptionStore& options, AppState& state);

}  // namespace tarnwick

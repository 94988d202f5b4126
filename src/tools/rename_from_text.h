#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/start_rename.h"

namespace tarnwick {

class FileList;

// A text file of new names, one per row, as `frmRenameTextFile` reads it.
//
// The bytes are taken as UTF-8 when they are valid UTF-8 (a byte-order mark
// is dropped), else as Windows-1252. Rows end at CR LF, empty rows kept, so a
// file that ends in CR LF has one more, empty, row than names. A file with
// no CR LF at all is a Linux text file: its rows end at LF, and the LF that
// ends the last row ends that row and starts no new one.
struct NameTextFile {
  std::uint64_t size = 0;  // bytes on disk
  std::string text;        // the whole text, UTF-8
  std::vector<std::string> rows;
  bool utf8 = false;        // read as UTF-8 rather than Windows-1252
  bool lf_only = false;     // rows ended by LF alone
  std::string error;        // the file could not be read or is no text
};

NameTextFile ReadNameTextFile(const std::string& path, const MessageTable& messages);
// The same for the bytes of such a file.
NameTextFile NameTextFromBytes(std::string_view bytes, const MessageTable& messages);

// The validation report: one line per character a name cannot hold (a
// control character below 32, or \ / : * ? " < > |): "Row 0, Char 3:<tab>->
// ? [ASCII: 63]" and CR LF. Kept: rows count from 0, characters from 1.
// Empty when every row passes.
std::string NameTextReport(const std::vector<std::string>& rows, const MessageTable& messages);

// The words of the text: line ends become blanks, runs of blanks one blank,
// and the pieces between blanks are counted.
std::int64_t CountNameTextWords(const NameTextFile& file);

// What `cmdExecute` may do with the file for `selected` rows of the list.
struct NameTextCheck {
  bool ok = false;
  std::string title;    // of the box that says why not
  std::string message;  // the box's text: the report, or the count check
};
NameTextCheck CheckNameTextFile(const NameTextFile& file, std::size_t selected,
                                const MessageTable& messages);

// The new names of the selected rows in list order: row k of the text, and
// the row's own extension where the new name has none.
std::vector<std::string> NamesForSelectedRows(const NameTextFile& file, const FileList& list);

// `cmdExecute`'s question "Are you sure to proceed?"; true on Yes.
bool ConfirmRenameFromText(Interaction& interaction, const MessageTable& messages);

// `mnuRenameFromFile`: the run of the names, after a check that passed.
RenameRunResult RenameFromTextFile(const RenameRunEnv& env, const NameTextFile& file);

}  // namespace tarnwick

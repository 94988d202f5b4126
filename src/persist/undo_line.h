#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// One line of an undo batch for the file a run changed.
//
// Ordinary names give the lines the command interpreter runs:
//   move "NEW" "OLD"      a rename, moved back
//   del "NEW"             a copy, removed (the source was never touched)
//   rem "NEW" "OLD"       a test run: a comment holding both names
// Any other command is written like "move"; an empty one becomes "?", so a
// fault in the caller shows in the batch instead of hiding.
//
// Names the batch cannot carry safely: a Linux file name may hold a double
// quote, a line break or another control character (1 to 31, 127), or bytes
// that are not UTF-8. Put between quotes, such a name could end the quoted
// text or the line early and make the rest of it a command of its own. A
// line with such a name is therefore written as a comment that no command
// interpreter runs:
//   rem tarnwick-escaped COMMAND NEW [OLD]
// where COMMAND is the command as above and each name is written byte by
// byte: the letters A-Z a-z, the digits and the characters / . _ - stand for
// themselves, and every other byte is "=" followed by its value in two
// upper-case hexadecimal digits (a blank is "=20", "=" itself "=3D"). Names
// are separated by one blank. `tarnwick-cli undo` reads these lines back with
// ParseUndoLine and carries them out like the plain ones. "%" and other
// characters outside that list are not special here: a name that holds only
// printable, valid UTF-8 stays exactly as it stands.
std::string UndoEntryLine(std::string_view old_path, std::string_view new_path,
                          std::string_view command);

// True when `name` can stand between double quotes in a batch line.
bool IsSafeInUndoLine(std::string_view name);

// The escaped form of a name used by the comment lines above, and its reverse
// (nothing for a text that is not a well-formed escaped name).
std::string EscapeUndoName(std::string_view name);
std::optional<std::string> UnescapeUndoName(std::string_view escaped);

// A line of an undo batch read back: the command in lower case as written
// ("move", "del", "rem", or another word), the path the run created
// (`new_path`) and, for two-name commands, the path it came from.
// `escaped` tells a line that came from the escaped comment form.
struct UndoLine {
  std::string command;
  std::string new_path;
  std::string old_path;
  bool escaped = false;
};

// Reads one line (without its line end) of an undo batch: the plain form
// COMMAND "NEW" ["OLD"] and the escaped comment form. Any other line (the
// header, "echo", "pause", an empty line, a plain comment) gives nothing.
std::optional<UndoLine> ParseUndoLine(std::string_view line);

}  // namespace tarnwick

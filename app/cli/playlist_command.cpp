// "playlist": show, convert, check, correct and build M3U and PLS playlists,
// and look for the files of missing titles.
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/path_text.h"
#include "cli_command.h"
#include "json_text.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "playlist/copy_titles.h"
#include "playlist/lost_files.h"
#include "playlist/playlist_file.h"
#include "playlist/playlist_length.h"
#include "playlist/playlist_rows.h"
#include "shell/message_table.h"
#include "tsv_text.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "playlist";

struct PlaylistArgs {
  std::string action;
  std::vector<std::string> inputs;  // FILE, IN OUT, DIR ...
  std::string out;
  std::string search;
  bool json = false;
  bool remove_missing = false;
  bool subfolders = false;
  bool overwrite = false;
};

std::optional<std::string> ParseArgs(std::span<const std::string> args, PlaylistArgs& a) {
  if (args.empty()) {
    return "an action is missing (show, convert, check, correct, find-lost, make, copy, move)";
  }
  a.action = args[0];
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--json") {
      a.json = true;
    } else if (arg == "--remove-missing") {
      a.remove_missing = true;
    } else if (arg == "--subfolders") {
      a.subfolders = true;
    } else if (arg == "--overwrite") {
      a.overwrite = true;
    } else if (arg == "--out" || arg == "--search") {
      if (i + 1 >= args.size()) return arg + " needs a value";
      (arg == "--out" ? a.out : a.search) = args[++i];
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else {
      a.inputs.push_back(arg);
    }
  }
  return std::nullopt;
}

std::string_view Message(std::string_view key) {
  return MessageTable::Get(Language::kEnglish).Text(key);
}

// Loads a playlist or says why not.
std::optional<std::vector<PlaylistRow>> Load(const std::string& file, CliIo& io) {
  const PlaylistLoad load = LoadPlaylist(file);
  if (!load.status.ok()) {
    Failure(io, file + ": " + load.status.description);
    return std::nullopt;
  }
  if (!load.ok()) {
    Failure(io, file + ": " + std::string(Message("playlist.not_supported")));
    return std::nullopt;
  }
  return load.rows;
}

// Writes the rows to OUT: never an empty list, never over an existing file
// unless --overwrite was given.
int Save(const PlaylistArgs& a, const std::vector<PlaylistRow>& rows, CliIo& io) {
  if (rows.empty()) return Failure(io, std::string(Message("playlist.cannot_save_empty")));
  std::error_code error;
  if (!a.overwrite && std::filesystem::symlink_status(a.out, error).type() !=
                          std::filesystem::file_type::not_found) {
    return Failure(io, a.out + " exists; give --overwrite to replace it");
  }
  const PlaylistSave save = SavePlaylist(a.out, rows);
  if (save.unstorable_row >= 0) {
    return Failure(io, "row " + std::to_string(save.unstorable_row + 1) +
                           ": the path holds a line break, which no playlist can store");
  }
  if (!save.status.ok()) return Failure(io, a.out + ": " + save.status.description);
  return kExitOk;
}

void PrintRows(const std::vector<PlaylistRow>& rows, bool json, CliIo& io) {
  if (!json) {
    for (const PlaylistRow& row : rows) {
      io.out << TsvField(row.title) << '\t' << row.length << '\t' << TsvField(row.path) << '\t'
             << (RowFileExists(row) ? "yes" : "no") << '\n';
    }
    return;
  }
  std::string list;
  for (const PlaylistRow& row : rows) {
    JsonObject o;
    o.Text("title", row.title);
    o.Text("length", row.length);
    o.Number("seconds", LengthSeconds(row.length));
    o.Text("path", row.path);
    o.Bool("exists", RowFileExists(row));
    list += (list.empty() ? "" : ", ") + o.str();
  }
  JsonObject root;
  root.Number("count", static_cast<std::int64_t>(rows.size()));
  root.Text("time", LengthText(TotalSeconds(rows)));
  root.Raw("rows", "[" + list + "]");
  io.out << root.str() << '\n';
}

int Show(const PlaylistArgs& a, CliIo& io) {
  const auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  PrintRows(*rows, a.json, io);
  return kExitOk;
}

int Convert(PlaylistArgs a, CliIo& io) {
  const auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  a.out = a.inputs[1];
  return Save(a, *rows, io);
}

int Check(const PlaylistArgs& a, CliIo& io) {
  auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  if (rows->empty()) return kExitOk;
  const std::size_t missing = MarkMissingRows(*rows, 0, rows->size() - 1);
  for (std::size_t i = 0; i < rows->size(); ++i) {
    if ((*rows)[i].red)
      io.out << "missing\t" << (i + 1) << '\t' << TsvField((*rows)[i].path) << '\n';
  }
  if (missing == 0) {
    io.out << Message("playlist.no_missing_files") << '\n';
  } else {
    io.out << missing << ' ' << Message("playlist.files_red_marked") << '\n';
  }
  if (!a.remove_missing) return kExitOk;
  RemoveTaggedRows(*rows);
  const int saved = Save(a, *rows, io);
  if (saved == kExitOk) io.out << missing << ' ' << Message("playlist.missing_removed") << '\n';
  return saved;
}

int Correct(const PlaylistArgs& a, CliIo& io) {
  auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  std::size_t failed = 0;
  for (PlaylistRow& row : *rows) {
    if (CorrectRow(row)) continue;
    ++failed;
    io.err << "not corrected: " << row.path << '\n';
  }
  const int saved = Save(a, *rows, io);
  if (saved != kExitOk) return saved;
  if (failed == 0) {
    io.out << Message("playlist.all_corrected") << '\n';
  } else {
    io.out << failed << ' ' << Message("playlist.not_corrected") << '\n';
  }
  return kExitOk;
}

// A folder from the command line as a full path, so that rows hold full paths.
std::string FullFolder(const std::string& folder) {
  return AbsolutePathName(folder, std::filesystem::current_path().string());
}

int FindLost(const PlaylistArgs& a, CliIo& io) {
  auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  if (!FolderExists(a.search)) return Failure(io, a.search + ": no such folder");
  const std::vector<PlaylistRow> before = *rows;
  const LostFilesProgress end = FindLostFiles(*rows, FullFolder(a.search), a.subfolders, nullptr);
  for (std::size_t i = 0; i < rows->size(); ++i) {
    const PlaylistRow& row = (*rows)[i];
    if (row.path != before[i].path) {
      io.out << "found\t" << (i + 1) << '\t' << TsvField(row.path) << '\n';
    } else if (row.red) {
      io.out << "missing\t" << (i + 1) << '\t' << TsvField(row.path) << '\n';
    }
  }
  io.out << Message("playlist.lost.ready") << ' ' << end.files << "  "
         << Message("playlist.lost.found") << ' ' << end.found << '\n';
  return Save(a, *rows, io);
}

int Make(const PlaylistArgs& a, CliIo& io) {
  const std::string folder = FullFolder(a.inputs[0]);
  if (!FolderExists(folder)) return Failure(io, folder + ": no such folder");
  const bool correct =
      OptionStore::ForCurrentUser().GetOption("CorrectPlaylistFiles", "Options", "1") == "1";
  std::vector<PlaylistRow> rows;
  for (const std::string& file : MediaFilesIn(folder, a.subfolders)) {
    rows.push_back(RowForFile(file, correct));
  }
  const int saved = Save(a, rows, io);
  if (saved == kExitOk) io.out << rows.size() << " titles\n";
  return saved;
}

// Copies or moves the files of the titles into DIR; the playlist stays as
// it is.
int CopyOrMove(const PlaylistArgs& a, CliIo& io) {
  const auto rows = Load(a.inputs[0], io);
  if (!rows) return kExitFailure;
  const std::string folder = FullFolder(a.inputs[1]);
  if (!FolderExists(folder)) return Failure(io, folder + ": no such folder");
  const bool copy = a.action == "copy";
  const std::string doing(Message(copy ? "playlist.copying" : "playlist.moving"));
  const CopyTitlesResult result = CopyPlaylistTitles(
      *rows, folder, copy ? CopyTitlesMode::kCopy : CopyTitlesMode::kMove,
      [&](std::size_t number, std::size_t total, const std::string& path, bool missing) {
        if (missing) {
          io.out << Message("playlist.file_does_not_exist") << ' ' << path << '\n';
        } else {
          io.out << doing << " [" << number << '/' << total << "] " << path << '\n';
        }
        return true;
      });
  for (const std::string& target : result.existing) {
    io.err << "not replaced: " << target << '\n';
  }
  for (const std::string& failure : result.failed) io.err << "failed: " << failure << '\n';
  if (result.missing > 0) {
    io.out << result.missing << ' '
           << Message(copy ? "playlist.files_not_copied" : "playlist.files_not_moved") << '\n';
  }
  if (result.missing > 0 || !result.existing.empty() || !result.failed.empty()) {
    return kExitFailure;
  }
  io.out << Message("playlist.action_successful") << '\n';
  return kExitOk;
}

struct Action {
  std::string_view name;
  std::size_t inputs;
  bool needs_out;
};

constexpr std::array<Action, 8> kActions = {{
    {"copy", 2, false},
    {"move", 2, false},
    {"show", 1, false},
    {"convert", 2, false},
    {"check", 1, false},
    {"correct", 1, true},
    {"find-lost", 1, true},
    {"make", 1, true},
}};

int RunPlaylist(std::span<const std::string> args, CliIo& io) {
  PlaylistArgs a;
  if (auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  const Action* action = nullptr;
  for (const Action& candidate : kActions) {
    if (candidate.name == a.action) action = &candidate;
  }
  if (action == nullptr) return UsageError(io, kCommand, "unknown action '" + a.action + "'");
  if (a.inputs.size() != action->inputs) {
    return UsageError(io, kCommand,
                      a.action + " takes " + std::to_string(action->inputs) + " argument(s)");
  }
  if (action->needs_out && a.out.empty())
    return UsageError(io, kCommand, a.action + " needs --out");
  if (a.remove_missing && a.out.empty()) {
    return UsageError(io, kCommand, "--remove-missing needs --out");
  }
  if (a.action == "find-lost" && a.search.empty()) {
    return UsageError(io, kCommand, "find-lost needs --search DIR");
  }
  if (a.action == "show") return Show(a, io);
  if (a.action == "convert") return Convert(a, io);
  if (a.action == "check") return Check(a, io);
  if (a.action == "correct") return Correct(a, io);
  if (a.action == "find-lost") return FindLost(a, io);
  if (a.action == "copy" || a.action == "move") return CopyOrMove(a, io);
  return Make(a, io);
}

constexpr std::array<CommandForm, 7> kForms = {{
    {"playlist show FILE [--json]",
     "list the titles: title, length, path and whether the file exists"},
    {"playlist convert IN OUT [--overwrite]", "write IN in the format of OUT's extension"},
    {"playlist check FILE [--remove-missing --out OUT] [--overwrite]",
     "report the titles whose files are missing, and drop them"},
    {"playlist correct FILE --out OUT [--overwrite]",
     "retitle every row \"Artist - Title\" from its ID3 tags"},
    {"playlist find-lost FILE --search DIR [--subfolders] --out OUT [--overwrite]",
     "look for the files of missing titles"},
    {"playlist make DIR --out OUT [--subfolders] [--overwrite]",
     "a playlist of the music files of a folder"},
    {"playlist copy|move FILE DIR", "copy or move the titles' files into DIR"},
}};

constexpr std::string_view kDetails =
    "Formats: M3U (.m3u, .m3u8) and PLS (.pls), told apart by their content\n"
    "(\"#EXTM3U\", \"[playlist]\" with NumberOfEntries) and else by the name. What\n"
    "is written takes its format from OUT's extension: .pls is PLS, anything else\n"
    "M3U. A .m3u8 file is UTF-8; a .m3u or .pls file is Windows-1252 when every\n"
    "character fits there, else UTF-8 behind a byte-order mark.\n"
    "Lengths are whole seconds in the files and \"mm:ss\" (\"h:mm:ss\" from an hour)\n"
    "in the rows; a load and a save keep them. -1 (unknown) reads as 00:00.\n"
    "Paths: relative entries and file:// URLs are read against the playlist's\n"
    "folder; other URLs and Windows paths (C:\\...) are kept as they stand and\n"
    "count as missing. Rows are written with full paths.\n"
    "  --json          show: one object with \"count\", \"time\" and \"rows\"\n"
    "                  (title, length, seconds, path, exists); without it one\n"
    "                  tab-separated line per row\n"
    "  --out OUT       the playlist to write; an empty list is not written\n"
    "  --overwrite     replace OUT when it exists (never done otherwise)\n"
    "  --remove-missing  check: write the list without the missing titles\n"
    "  --search DIR    find-lost: the folder to look in; a missing title matches a\n"
    "                  music file by \"artist - title\" of its tags, then by the old\n"
    "                  file name, then by the title against the file's name\n"
    "  --subfolders    find-lost, make: look in all subfolders too\n"
    "make titles the files as the editor does when it adds them: \"Artist - Title\"\n"
    "from the tags when the option CorrectPlaylistFiles is 1 (the default), else\n"
    "the file name.\n"
    "copy and move put each title's file into DIR under its own name, in list\n"
    "order; a file already in DIR is never replaced (it is named on standard\n"
    "error), and the playlist is not changed, not even after a move. Exit\n"
    "status: 0 done, 1 failed (for copy and move: a file was missing, already\n"
    "there or could not be written), 2 wrong arguments.\n";

}  // namespace

extern const Command kPlaylistCommand = {
    .name = kCommand,
    .summary = "show, convert, check, correct and build M3U and PLS playlists",
    .forms = kForms,
    .details = kDetails,
    .run = RunPlaylist,
};

}  // namespace tarnwick::cli

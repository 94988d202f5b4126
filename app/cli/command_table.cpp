// The commands of tarnwick-cli. A new command is a new file that defines its
// Command, plus one line here.
#include <array>

#include "cli_command.h"

namespace tarnwick::cli {

extern const Command kOptionsCommand;
extern const Command kExpandCommand;
extern const Command kCatalogueCommand;
extern const Command kListCommand;
extern const Command kRunCommand;
extern const Command kPreviewCommand;
extern const Command kUndoCommand;
extern const Command kSettingsCommand;
extern const Command kTagsCommand;
extern const Command kExifCommand;
extern const Command kWmaCommand;
extern const Command kReportCommand;
extern const Command kPlaylistCommand;
extern const Command kCopyCommand;
extern const Command kMoveCommand;
extern const Command kRenameFromTextCommand;
extern const Command kSplitCommand;
extern const Command kMergeCommand;
extern const Command kShredCommand;
extern const Command kChecksumCommand;
extern const Command kJpegCommand;
extern const Command kResizeCommand;
extern const Command kExportCommand;

std::span<const Command> AllCommands() {
  static const std::array kCommands = {
      kOptionsCommand,  kExpandCommand,  kCatalogueCommand, kListCommand,
      kRunCommand,      kPreviewCommand, kUndoCommand,      kSettingsCommand,
      kTagsCommand,     kExifCommand,    kWmaCommand,       kReportCommand,
      kPlaylistCommand, kCopyCommand,    kMoveCommand,      kRenameFromTextCommand,
      kSplitCommand,    kMergeCommand,   kShredCommand,     kChecksumCommand,
      kJpegCommand,     kResizeCommand,  kExportCommand,
  };
  return kCommands;
}

}  // namespace tarnwick::cli

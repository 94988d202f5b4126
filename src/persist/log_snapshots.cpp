#include <string>

#include "persist/log_append.h"
#include "persist/log_file.h"
#include "persist/snapshot_options.h"
#include "persist/snapshot_rename_settings.h"
#include "persist/snapshot_system.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

void RunLog::LogSystemInfoLine(const SystemFacts& facts) {
  if (!StartUpLineAllowed("LogSystemInfo")) return;
  // This line asks nothing when it fails; the next entry will.
  AppendToFile(LogFilePath(),
               SystemInfoLine(facts) + std::string(kLineEnd) + std::string(kLineEnd));
}

void RunLog::LogOptionSettingsSnapshot(const OptionSnapshotDefaults& defaults) {
  if (!StartUpLineAllowed("LogOptionSettings")) return;
  std::string out(kLineEnd);
  out += env_.messages.Text("log.current_options");
  out += NowText() + "]";
  out += kLineEnd;
  out += OptionSettingsSnapshotLines(env_.options, env_.state, defaults);
  Append(out);
}

void RunLog::LogRenameSettingsSnapshot(const RenameSettingsSnapshot& settings) {
  if (!StartUpLineAllowed("LogRenameSettings")) return;
  std::string out(env_.messages.Text("log.current_renaming_settings"));
  out += NowText() + "]";
  out += kLineEnd;
  out += RenameSettingsSnapshotLines(settings);
  Append(out);
}

}  // namespace tarnwick

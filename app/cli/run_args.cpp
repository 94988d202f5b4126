#include "run_args.h"

namespace tarnwick::cli {
namespace {

std::optional<int> ModeNumber(const std::string& word) {
  if (word == "rename") return 0;
  if (word == "copy") return 1;
  if (word == "test") return 2;
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ParseRunArgs(std::span<const std::string> args, bool preview,
                                        RunArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool has_value = i + 1 < args.size();
    if (arg == "--yes") {
      out.yes = true;
    } else if (arg == "--subfolders") {
      out.subfolders = true;
    } else if (arg == "--folder" || arg == "--select" || arg == "--set" || arg == "--mode") {
      if (!has_value) return arg + " needs a value";
      const std::string& value = args[++i];
      if (arg == "--folder") {
        out.folder = value;
      } else if (arg == "--select") {
        out.select = value;
      } else if (arg == "--set") {
        const std::size_t equals = value.find('=');
        if (equals == std::string::npos || equals == 0) {
          return "--set takes NAME=VALUE, not '" + value + "'";
        }
        out.sets.emplace_back(value.substr(0, equals), value.substr(equals + 1));
      } else {
        if (preview) return "preview is always a test; --mode does not apply";
        out.mode = ModeNumber(value);
        if (!out.mode) return "--mode takes rename, copy or test, not '" + value + "'";
      }
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else if (!out.settings_file.empty()) {
      return "only one SETTINGS file is expected";
    } else {
      out.settings_file = arg;
    }
  }
  if (preview) out.mode = 2;
  return std::nullopt;
}

}  // namespace tarnwick::cli

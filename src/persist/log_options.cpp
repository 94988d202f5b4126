#include "persist/log_options.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include "base/path_text.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSection = "Options";
constexpr std::string_view kLogFileName = "Tarnwick.log";

}  // namespace

std::string ReadOption(const OptionStore& options, std::string_view key,
                       std::string_view default_value) {
  return options.GetOption(key, kSection, default_value);
}

void SaveOptionValue(OptionStore& options, std::string_view key, std::string_view value) {
  options.SaveOption(key, kSection, value);
}

bool OptionIsOne(const OptionStore& options, std::string_view key, std::string_view default_value) {
  return ReadOption(options, key, default_value) == "1";
}

bool OptionIsZero(const OptionStore& options, std::string_view key,
                  std::string_view default_value) {
  return ReadOption(options, key, default_value) == "0";
}

std::string AbsolutePath(std::string_view path) {
  if (path.starts_with('/')) return AbsolutePathName(path, "/");
  std::error_code error;
  const std::filesystem::path working = std::filesystem::current_path(error);
  return AbsolutePathName(path, error ? std::string("/") : working.string());
}

std::string DefaultLogFilePath(const LogUndoState& state) {
  return AbsolutePath(JoinPath(state.DefaultLogFolder, kLogFileName));
}

namespace {

// A run asks for the log's and the undo batch's paths once per file; the
// answer is kept while the options and the default folder stay as they were
// and the path does not depend on the working folder.
struct PathMemo {
  std::uint64_t generation = 0;
  std::string default_folder;
  std::string path;

  template <typename Make>
  std::string Get(const OptionStore& options, const std::string& folder, Make make) {
    const std::uint64_t now = options.Generation();
    if (now != 0 && now == generation && folder == default_folder) return path;
    bool absolute = false;
    std::string made = make(absolute);
    if (absolute) {
      generation = now;
      default_folder = folder;
      path = made;
    } else {
      generation = 0;
    }
    return made;
  }
};

}  // namespace

std::string CurrentLogFilePath(const OptionStore& options, const LogUndoState& state) {
  thread_local PathMemo memo;
  return memo.Get(options, state.DefaultLogFolder, [&](bool& absolute) {
    const std::string fallback = DefaultLogFilePath(state);
    const std::string chosen = ReadOption(options, "LogFilePath", fallback);
    absolute = chosen.starts_with('/') && state.DefaultLogFolder.starts_with('/');
    return AbsolutePath(chosen);
  });
}

std::string UndoFolderPath(const OptionStore& options, const LogUndoState& state) {
  thread_local PathMemo memo;
  return memo.Get(options, state.DefaultUndoFolder, [&](bool& absolute) {
    const std::string chosen = ReadOption(options, "UndoFilePath", state.DefaultUndoFolder);
    absolute = chosen.starts_with('/');
    return AbsolutePath(chosen);
  });
}

std::string UndoBatchPath(const OptionStore& options, const LogUndoState& state) {
  return JoinPath(UndoFolderPath(options, state), state.UndoBatchName);
}

}  // namespace tarnwick

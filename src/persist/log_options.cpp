#include "persist/log_options.h"

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

std::string CurrentLogFilePath(const OptionStore& options, const LogUndoState& state) {
  return AbsolutePath(ReadOption(options, "LogFilePath", DefaultLogFilePath(state)));
}

std::string UndoFolderPath(const OptionStore& options, const LogUndoState& state) {
  return AbsolutePath(ReadOption(options, "UndoFilePath", state.DefaultUndoFolder));
}

std::string UndoBatchPath(const OptionStore& options, const LogUndoState& state) {
  return JoinPath(UndoFolderPath(options, state), state.UndoBatchName);
}

}  // namespace tarnwick

#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

class OptionStore;
struct LogUndoState;

// Reading and storing the options of the log and the undo batch, all in the
// section "Options". Values are read at each use, never kept. Switches are
// compared with the texts "0" and "1" as they stand ("01" is neither).
std::string ReadOption(const OptionStore& options, std::string_view key,
                       std::string_view default_value);
void SaveOptionValue(OptionStore& options, std::string_view key, std::string_view value);
bool OptionIsOne(const OptionStore& options, std::string_view key, std::string_view default_value);
bool OptionIsZero(const OptionStore& options, std::string_view key, std::string_view default_value);

// The absolute form of a path, relative ones taken from the working folder.
std::string AbsolutePath(std::string_view path);

// DefaultLogFolder + "/Tarnwick.log", absolute.
std::string DefaultLogFilePath(const LogUndoState& state);
// `LogFilePath` read with that default, made absolute.
std::string CurrentLogFilePath(const OptionStore& options, const LogUndoState& state);
// `UndoFilePath` read with DefaultUndoFolder as default, made absolute.
std::string UndoFolderPath(const OptionStore& options, const LogUndoState& state);
// The undo folder + "/" + UndoBatchName.
std::string UndoBatchPath(const OptionStore& options, const LogUndoState& state);

}  // namespace tarnwick

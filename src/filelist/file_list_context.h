#pragma once

#include <string_view>

namespace tarnwick {

class OptionStore;
struct AppState;
class Interaction;
class MessageTable;
class FileRowMediaSource;

// The log lines a fill writes (`WriteLogFileHeader`, `WriteLogFileTool`).
// The program's log implements it; a fill never writes the file itself.
class FileListLog {
 public:
  virtual ~FileListLog() = default;
  virtual void WriteLogFileHeader() = 0;
  virtual void WriteLogFileTool(std::string_view subject, std::string_view text) = 0;
};

// Everything a fill of the list works with, owned by the front end. Options
// are read from the store at the moment of use.
struct FileListContext {
  OptionStore& options;
  AppState& state;
  Interaction& interaction;
  FileListLog& log;
  FileRowMediaSource& media;
  const MessageTable& messages;
};

}  // namespace tarnwick

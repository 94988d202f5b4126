#pragma once

#include <filesystem>
#include <memory>

#include "platform/file_status.h"

namespace tarnwick {

// Watches a folder for new, removed and renamed entries and for changes of
// file contents (size and last-write time). Attribute and permission changes
// do not count, so that setting attributes does not trigger a refill. Made
// to be polled from a timer: nothing blocks and no thread is started.
class FolderWatch {
 public:
  FolderWatch();
  ~FolderWatch();
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  // Starts watching `folder`, and with `subtree` every folder below it
  // (folders made later included). A running watch is stopped first.
  FileStatus Start(const std::filesystem::path& folder, bool subtree = false);
  void Stop();
  bool IsRunning() const;

  // True when something changed since the last poll (or since Start). Also
  // true when the watched folder itself was removed or renamed, or when the
  // kernel dropped events. Never blocks; false when not running.
  bool Poll();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnwick

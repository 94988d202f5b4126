#include "platform/folder_watch.h"

#include <errno.h>
#include <limits.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <system_error>
#include <vector>

#include "platform/posix/errno_status.h"
#include "platform/posix/unique_fd.h"

namespace tarnwick {
namespace {

// Names coming and going, and contents written; attributes left out.
constexpr uint32_t kEvents = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_MODIFY |
                             IN_CLOSE_WRITE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr uint32_t kLost = IN_Q_OVERFLOW | IN_IGNORED | IN_DELETE_SELF | IN_MOVE_SELF;

}  // namespace

struct FolderWatch::State {
  posix::UniqueFd inotify;
  bool subtree = false;
  std::filesystem::path root;
  std::vector<std::pair<int, std::filesystem::path>> folders;  // watch descriptor, folder

  void AddFolder(const std::filesystem::path& folder) {
    const int watch = ::inotify_add_watch(inotify.get(), folder.c_str(), kEvents);
    if (watch >= 0) folders.emplace_back(watch, folder);
  }

  // Folders below are watched as well; one that cannot be read is left out.
  void AddBelow(const std::filesystem::path& folder) {
    std::error_code error;
    const auto options = std::filesystem::directory_options::skip_permission_denied;
    for (std::filesystem::recursive_directory_iterator it(folder, options, error), end;
         !error && it != end; it.increment(error)) {
      if (it->is_directory(error) && !it->is_symlink(error)) AddFolder(it->path());
    }
  }

  const std::filesystem::path* FolderOf(int watch) const {
    for (const auto& [descriptor, folder] : folders) {
      if (descriptor == watch) return &folder;
    }
    return nullptr;
  }

  void FollowNewFolder(const inotify_event& event) {
    if (!subtree || (event.mask & IN_ISDIR) == 0 || (event.mask & (IN_CREATE | IN_MOVED_TO)) == 0) {
      return;
    }
    const std::filesystem::path* parent = FolderOf(event.wd);
    if (parent == nullptr || event.len == 0) return;
    const std::filesystem::path folder = *parent / event.name;
    AddFolder(folder);
    AddBelow(folder);
  }
};

FolderWatch::FolderWatch() = default;
FolderWatch::~FolderWatch() = default;

FileStatus FolderWatch::Start(const std::filesystem::path& folder, bool subtree) {
  Stop();
  auto state = std::make_unique<State>();
  state->inotify = posix::UniqueFd(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  if (!state->inotify.valid()) return posix::StatusFromErrno(errno, folder);
  const int watch = ::inotify_add_watch(state->inotify.get(), folder.c_str(), kEvents);
  if (watch < 0) {
    if (errno == ENOENT || errno == ENOTDIR) return FileStatus::Error(vb_error::kPathNotFound);
    return posix::StatusFromErrno(errno, folder);
  }
  state->folders.emplace_back(watch, folder);
  state->subtree = subtree;
  state->root = folder;
  if (subtree) state->AddBelow(folder);
  state_ = std::move(state);
  return FileStatus::Success();
}

void FolderWatch::Stop() { state_.reset(); }

bool FolderWatch::IsRunning() const { return state_ != nullptr; }

bool FolderWatch::Poll() {
  if (!state_) return false;
  bool changed = false;
  alignas(inotify_event) char buffer[16 * (sizeof(inotify_event) + NAME_MAX + 1)];
  for (;;) {
    const ssize_t size = ::read(state_->inotify.get(), buffer, sizeof buffer);
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) break;
    for (ssize_t at = 0; at < size;) {
      const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
      if (event->mask & (kEvents | kLost)) changed = true;
      state_->FollowNewFolder(*event);
      at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
  }
  return changed;
}

}  // namespace tarnwick

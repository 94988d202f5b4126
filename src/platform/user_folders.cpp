#include "platform/user_folders.h"

#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

namespace tarnwick {
namespace {

// An XDG variable counts only when set to an absolute path.
std::filesystem::path XdgFolder(const char* variable, const char* fallback_below_home) {
  const char* value = getenv(variable);
  if (value != nullptr && value[0] == '/') return value;
  return HomeFolder() / fallback_below_home;
}

}  // namespace

std::filesystem::path HomeFolder() {
  const char* home = getenv("HOME");
  if (home != nullptr && home[0] == '/') return home;
  if (const passwd* entry = getpwuid(getuid()); entry != nullptr && entry->pw_dir != nullptr) {
    return entry->pw_dir;
  }
  return "/";
}

std::filesystem::path ConfigFolder() {
  return XdgFolder("XDG_CONFIG_HOME", ".config") / "Oakhollow";
}

std::filesystem::path DataFolder() {
  return XdgFolder("XDG_DATA_HOME", ".local/share") / "Oakhollow" / "Tarnwick";
}

std::filesystem::path ProgramFilesFolder() {
  std::error_code error;
  const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error || !executable.has_parent_path()) return {};
  const std::filesystem::path beside = executable.parent_path();
  if (std::filesystem::is_directory(beside / "Media", error)) return beside;
  return beside.parent_path() / "share" / "tarnwick";
}

}  // namespace tarnwick

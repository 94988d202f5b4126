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

}  // namespace tarnwick

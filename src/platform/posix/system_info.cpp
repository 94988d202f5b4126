#include "platform/system_info.h"

#include <limits.h>
#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>
#include <uuid/uuid.h>

#include <cctype>
#include <vector>

#include "platform/user_folders.h"

namespace tarnwick {
namespace {

std::string AccountName(uid_t uid) {
  std::vector<char> buffer(16384);
  passwd entry;
  passwd* found = nullptr;
  if (::getpwuid_r(uid, &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) {
    return {};
  }
  return found->pw_name != nullptr ? found->pw_name : "";
}

std::string Variable(const char* name) {
  const char* value = ::getenv(name);
  return value != nullptr ? value : "";
}

}  // namespace

std::string LoggedOnUserName() {
  if (std::string name = AccountName(::geteuid()); !name.empty()) return name;
  if (std::string name = Variable("USER"); !name.empty()) return name;
  return Variable("LOGNAME");
}

std::string ComputerName() {
  char name[HOST_NAME_MAX + 1] = {};
  if (::gethostname(name, sizeof name - 1) != 0) return {};
  return std::string(name);  // Cut at the first NUL.
}

std::string NewUniqueId() {
  uuid_t id;
  ::uuid_generate_random(id);
  char text[37];
  ::uuid_unparse_upper(id, text);
  std::string braced = "{";
  braced += text;
  braced += '}';
  return braced;
}

std::filesystem::path DefaultRootFolder() { return HomeFolder(); }

}  // namespace tarnwick

// The floor a rename run is measured against: reads a folder and gives each
// regular file the prefix "p_" with renameat2(RENAME_NOREPLACE), and nothing
// else. scripts/bench-run.sh times it beside tarnwick-cli.
//
//   bare_rename FOLDER
#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace {

constexpr unsigned kNoReplace = 1;  // RENAME_NOREPLACE

int RenameNoReplace(int folder, const char* from, const char* to) {
  return static_cast<int>(::syscall(SYS_renameat2, folder, from, folder, to, kNoReplace));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: bare_rename FOLDER\n");
    return 2;
  }
  DIR* dir = ::opendir(argv[1]);
  if (dir == nullptr) {
    perror(argv[1]);
    return 1;
  }
  std::vector<std::string> names;
  while (const dirent* entry = ::readdir(dir)) {
    if (entry->d_type == DT_REG) names.emplace_back(entry->d_name);
  }
  const int folder = ::dirfd(dir);
  int failed = 0;
  for (const std::string& name : names) {
    if (RenameNoReplace(folder, name.c_str(), ("p_" + name).c_str()) != 0) ++failed;
  }
  ::closedir(dir);
  printf("%zu renamed, %d failed\n", names.size() - failed, failed);
  return failed == 0 ? 0 : 1;
}

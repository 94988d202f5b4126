#include "support/temp_dir.h"

#include <stdlib.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace tarnwick::testing {

TempDir::TempDir() {
  std::string pattern = (std::filesystem::temp_directory_path() / "tarnwick-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern;
}

TempDir::~TempDir() {
  std::error_code ignored;
  // Tests may leave read-only folders behind; make them writable first.
  for (auto it = std::filesystem::recursive_directory_iterator(path_, ignored);
       it != std::filesystem::recursive_directory_iterator(); it.increment(ignored)) {
    std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
  }
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                               std::filesystem::perm_options::add, ignored);
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempDir::WriteFile(const std::string& relative,
                                         const std::string& content) const {
  const auto full = path_ / relative;
  std::filesystem::create_directories(full.parent_path());
  std::ofstream out(full, std::ios::binary | std::ios::trunc);
  out << content;
  return full;
}

std::string TempDir::ReadFile(const std::string& relative) const {
  return ReadWholeFile(path_ / relative);
}

std::string ReadWholeFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

}  // namespace tarnwick::testing

#include "platform/system_folder.h"

#include <array>
#include <string_view>
#include <system_error>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 11> kSystemFolders = {
    "bin", "boot", "dev", "etc", "lib", "lib64", "proc", "sbin", "sys", "usr", "var"};

std::filesystem::path Resolved(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::path absolute = std::filesystem::absolute(path, error);
  if (error) return {};
  std::filesystem::path resolved = std::filesystem::weakly_canonical(absolute, error);
  return error ? absolute.lexically_normal() : resolved;
}

}  // namespace

bool IsSystemFolder(const std::filesystem::path& path) {
  if (path.empty()) return false;
  const std::filesystem::path resolved = Resolved(path);
  auto part = resolved.begin();
  if (part == resolved.end() || *part != "/") return false;
  if (++part == resolved.end()) return false;
  const std::string first = part->string();
  for (std::string_view folder : kSystemFolders) {
    if (first == folder) return true;
  }
  return false;
}

}  // namespace tarnwick

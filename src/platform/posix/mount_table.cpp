#include "platform/posix/mount_table.h"

#include <sstream>

namespace tarnwick::posix {
namespace {

bool IsOctal(char c) { return c >= '0' && c <= '7'; }

std::string Unescape(const std::string& field) {
  std::string text;
  for (size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 3 < field.size() && IsOctal(field[i + 1]) &&
        IsOctal(field[i + 2]) && IsOctal(field[i + 3])) {
      text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                (field[i + 3] - '0'));
      i += 3;
      continue;
    }
    text += field[i];
  }
  return text;
}

std::optional<MountEntry> ParseLine(const std::string& line) {
  std::istringstream fields(line);
  std::vector<std::string> parts;
  for (std::string part; fields >> part;) parts.push_back(part);
  // id parent major:minor root mount-point options [optional...] - type source options
  size_t dash = 6;
  while (dash < parts.size() && parts[dash] != "-") ++dash;
  if (parts.size() < 5 || dash + 2 >= parts.size()) return std::nullopt;
  return MountEntry{Unescape(parts[4]), Unescape(parts[dash + 1]), Unescape(parts[dash + 2])};
}

bool Holds(const std::string& mount_point, const std::string& path) {
  if (mount_point == "/") return !path.empty() && path[0] == '/';
  if (path.compare(0, mount_point.size(), mount_point) != 0) return false;
  return path.size() == mount_point.size() || path[mount_point.size()] == '/';
}

}  // namespace

std::vector<MountEntry> ParseMountInfo(const std::string& text) {
  std::vector<MountEntry> mounts;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (std::optional<MountEntry> entry = ParseLine(line)) mounts.push_back(*entry);
  }
  return mounts;
}

std::optional<MountEntry> MountHolding(const std::vector<MountEntry>& mounts,
                                       const std::filesystem::path& path) {
  const std::string text = path.string();
  std::optional<MountEntry> best;
  for (const MountEntry& entry : mounts) {
    if (!Holds(entry.mount_point, text)) continue;
    if (!best || entry.mount_point.size() >= best->mount_point.size()) best = entry;
  }
  return best;
}

}  // namespace tarnwick::posix

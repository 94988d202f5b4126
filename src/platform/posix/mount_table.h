#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::posix {

// One line of /proc/self/mountinfo, with its octal escapes ("\040") undone.
struct MountEntry {
  std::string mount_point;
  std::string file_system;  // "ext4", "vfat" ...
  std::string source;       // "/dev/sda1", or a name such as "tmpfs"
};

// The entries of a mountinfo text; lines that do not have the form are left out.
std::vector<MountEntry> ParseMountInfo(const std::string& text);

// The entry that holds `path` (an absolute, resolved path): the longest mount
// point above it, the later one of equal mount points (it hides the earlier).
std::optional<MountEntry> MountHolding(const std::vector<MountEntry>& mounts,
                                       const std::filesystem::path& path);

}  // namespace tarnwick::posix

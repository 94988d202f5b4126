#pragma once

#include <filesystem>
#include <optional>

namespace tarnwick::posix {

// The attribute byte a FAT volume (vfat, msdos) keeps for each entry, through
// the driver's ioctl calls. Nothing on other file systems.
std::optional<int> ReadFatAttributes(const std::filesystem::path& path);
// The same for a path known to lie on a FAT volume: no question about the
// file system.
std::optional<int> ReadFatAttributesOnFat(const std::filesystem::path& path);
// Whether the open folder `dir_fd` lies on a FAT volume.
bool FolderIsOnFat(int dir_fd);

// Writes the R, H, S and A bits (D follows the kind of entry); false when
// this is no FAT volume or the driver refused.
bool WriteFatAttributes(const std::filesystem::path& path, int attributes);

}  // namespace tarnwick::posix

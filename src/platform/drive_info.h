#pragma once

#include <filesystem>
#include <string>

namespace tarnwick {

// What Windows tells of a drive, for the mount that holds a path. Each text
// is empty when it cannot be found.
struct DriveFacts {
  // The volume label (from /dev/disk/by-label).
  std::string name;
  // The serial as "XXXX-XXXX", upper-case. From the volume's id in
  // /dev/disk/by-uuid:
  //   - a FAT id "1B00-CADF" stands as it is;
  //   - an NTFS id of 16 hex digits gives its last 8 digits, which is the
  //     serial Windows shows for that volume;
  //   - any other id (a 128-bit UUID of ext4, btrfs, xfs ...) gives its first
  //     8 hex digits.
  //   Without such an entry: the low 32 bits of the file-system id statfs
  //   reports, when that is not zero.
  std::string serial;
  // The file system: "NTFS" (ntfs, ntfs3), "FAT32" (vfat), "exFAT", else
  // the kernel's own name ("ext4", "btrfs", "tmpfs" ...).
  std::string file_system;
};

// Where the facts are read from; tests point these at prepared copies.
struct DriveFactsSources {
  std::filesystem::path mount_info = "/proc/self/mountinfo";
  std::filesystem::path disk_links = "/dev/disk";  // holds by-label/ and by-uuid/
};

DriveFacts GetDriveFacts(const std::filesystem::path& path,
                         const DriveFactsSources& sources = DriveFactsSources());

}  // namespace tarnwick

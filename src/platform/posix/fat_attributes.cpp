#include "platform/posix/fat_attributes.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

#include <cstdint>

#include "platform/posix/unique_fd.h"

namespace tarnwick::posix {
namespace {

constexpr int kFatBits = 0x1 | 0x2 | 0x4 | 0x20;  // R, H, S, A
constexpr int kDirectory = 0x10;

// Only FAT volumes are asked, so other file systems cost one statfs.
UniqueFd OpenOnFat(const std::filesystem::path& path) {
  struct statfs info;
  if (::statfs(path.c_str(), &info) != 0 || info.f_type != MSDOS_SUPER_MAGIC) return UniqueFd();
  return UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

std::optional<int> ReadFromFd(const UniqueFd& fd) {
  if (!fd.valid()) return std::nullopt;
  std::uint32_t attributes = 0;
  if (::ioctl(fd.get(), FAT_IOCTL_GET_ATTRIBUTES, &attributes) != 0) return std::nullopt;
  return static_cast<int>(attributes & (kFatBits | kDirectory));
}

}  // namespace

std::optional<int> ReadFatAttributes(const std::filesystem::path& path) {
  return ReadFromFd(OpenOnFat(path));
}

std::optional<int> ReadFatAttributesOnFat(const std::filesystem::path& path) {
  return ReadFromFd(UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)));
}

bool FolderIsOnFat(int dir_fd) {
  struct statfs info;
  return ::fstatfs(dir_fd, &info) == 0 && info.f_type == MSDOS_SUPER_MAGIC;
}

bool WriteFatAttributes(const std::filesystem::path& path, int attributes) {
  const UniqueFd fd = OpenOnFat(path);
  if (!fd.valid()) return false;
  std::uint32_t current = 0;
  if (::ioctl(fd.get(), FAT_IOCTL_GET_ATTRIBUTES, &current) != 0) return false;
  std::uint32_t wanted = (current & ~static_cast<std::uint32_t>(kFatBits)) |
                         static_cast<std::uint32_t>(attributes & kFatBits);
  return ::ioctl(fd.get(), FAT_IOCTL_SET_ATTRIBUTES, &wanted) == 0;
}

}  // namespace tarnwick::posix

#include "platform/drive_info.h"

#include <sys/stat.h>
#include <sys/statfs.h>

#include <cctype>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <system_error>

#include "platform/posix/mount_table.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool IsHex(const std::string& text) {
  for (char c : text) {
    if (!std::isxdigit(static_cast<unsigned char>(c))) return false;
  }
  return !text.empty();
}

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

std::string Grouped(const std::string& eight) {
  return Upper(eight.substr(0, 4) + "-" + eight.substr(4, 4));
}

// udev writes unsafe bytes of a label as "\xHH".
std::string DecodeLinkName(const std::string& name) {
  std::string text;
  for (size_t i = 0; i < name.size(); ++i) {
    if (name.compare(i, 2, "\\x") == 0 && i + 3 < name.size() && IsHex(name.substr(i + 2, 2))) {
      text += static_cast<char>(std::stoi(name.substr(i + 2, 2), nullptr, 16));
      i += 3;
      continue;
    }
    text += name[i];
  }
  return text;
}

// Same device: the same resolved path, or block devices of the same number.
bool SameDevice(const fs::path& link, const fs::path& device) {
  std::error_code error;
  const fs::path a = fs::canonical(link, error);
  if (error) return false;
  const fs::path b = fs::canonical(device, error);
  if (!error && a == b) return true;
  struct stat first, second;
  return ::stat(a.c_str(), &first) == 0 && ::stat(device.c_str(), &second) == 0 &&
         S_ISBLK(first.st_mode) && S_ISBLK(second.st_mode) && first.st_rdev == second.st_rdev;
}

// The decoded name of the link in `folder` that points at `device`.
std::string LinkNameFor(const fs::path& folder, const std::string& device) {
  if (device.empty() || device[0] != '/') return {};
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    if (SameDevice(it->path(), device)) return DecodeLinkName(it->path().filename().string());
  }
  return {};
}

std::string SerialFromVolumeId(const std::string& id) {
  if (id.size() == 9 && id[4] == '-' && IsHex(id.substr(0, 4)) && IsHex(id.substr(5))) {
    return Upper(id);
  }
  if (id.size() == 16 && IsHex(id)) return Grouped(id.substr(8));
  std::string digits;
  for (char c : id) {
    if (std::isxdigit(static_cast<unsigned char>(c))) digits += c;
  }
  return digits.size() >= 8 ? Grouped(digits.substr(0, 8)) : std::string();
}

std::string SerialFromStatfs(const fs::path& path) {
  struct statfs info;
  if (::statfs(path.c_str(), &info) != 0) return {};
  const auto low = static_cast<unsigned>(info.f_fsid.__val[0]);
  if (low == 0) return {};
  char text[16];
  std::snprintf(text, sizeof text, "%04X-%04X", low >> 16, low & 0xFFFF);
  return text;
}

std::string WindowsFileSystemName(const std::string& name) {
  if (name == "ntfs" || name == "ntfs3") return "NTFS";
  if (name == "vfat" || name == "msdos") return "FAT32";
  if (name == "exfat") return "exFAT";
  return name;
}

fs::path Resolved(const fs::path& path) {
  std::error_code error;
  fs::path absolute = fs::absolute(path, error);
  fs::path resolved = fs::weakly_canonical(absolute, error);
  return error ? absolute.lexically_normal() : resolved;
}

}  // namespace

DriveFacts GetDriveFacts(const fs::path& path, const DriveFactsSources& sources) {
  DriveFacts facts;
  if (path.empty()) return facts;
  const fs::path resolved = Resolved(path);
  const auto mount =
      posix::MountHolding(posix::ParseMountInfo(ReadText(sources.mount_info)), resolved);
  if (mount) {
    facts.file_system = WindowsFileSystemName(mount->file_system);
    facts.name = LinkNameFor(sources.disk_links / "by-label", mount->source);
    facts.serial = SerialFromVolumeId(LinkNameFor(sources.disk_links / "by-uuid", mount->source));
  }
  if (facts.serial.empty()) facts.serial = SerialFromStatfs(resolved);
  return facts;
}

}  // namespace tarnwick

#include "persist/snapshot_system.h"

#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <time.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string_view>

#include "platform/system_info.h"

namespace tarnwick {
namespace {

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\"");
  if (first == std::string_view::npos) return "";
  const std::size_t last = text.find_last_not_of(" \t\"");
  return std::string(text.substr(first, last - first + 1));
}

// The value of "key<separator>value" lines of a text file, first match.
std::string FileValue(const char* file, std::string_view key, char separator) {
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    const std::size_t at = line.find(separator);
    if (at == std::string::npos) continue;
    if (Trimmed(std::string_view(line).substr(0, at)) == key) return Trimmed(line.substr(at + 1));
  }
  return "";
}

// "6.1.0-18-amd64" -> "6", "1", "0", "18-amd64".
void SplitRelease(std::string_view release, SystemFacts& facts) {
  std::string* parts[] = {&facts.os_major, &facts.os_minor, &facts.os_build};
  for (std::string* part : parts) {
    std::size_t digits = 0;
    while (digits < release.size() && release[digits] >= '0' && release[digits] <= '9') ++digits;
    *part = std::string(release.substr(0, digits));
    release.remove_prefix(digits);
    if (!release.empty() && release.front() == '.' && part != parts[2]) release.remove_prefix(1);
  }
  if (!release.empty() && (release.front() == '-' || release.front() == '.')) {
    release.remove_prefix(1);
  }
  facts.service_pack = std::string(release);
}

std::string TimeZoneName() {
  if (const char* tz = std::getenv("TZ"); tz != nullptr && tz[0] != '\0') {
    return tz[0] == ':' ? tz + 1 : tz;
  }
  std::ifstream in("/etc/timezone");
  std::string zone;
  if (std::getline(in, zone) && !zone.empty()) return Trimmed(zone);
  tzset();
  return tzname[0] != nullptr ? tzname[0] : "";
}

void ReadOperatingSystem(SystemFacts& facts) {
  facts.os_name = FileValue("/etc/os-release", "NAME", '=');
  facts.os_version = FileValue("/etc/os-release", "VERSION_ID", '=');
  utsname names{};
  if (uname(&names) != 0) return;
  if (facts.os_name.empty()) facts.os_name = names.sysname;
  SplitRelease(names.release, facts);
}

void ReadMemory(SystemFacts& facts) {
  struct sysinfo info {};
  if (sysinfo(&info) != 0) return;
  facts.free_memory = static_cast<std::uint64_t>(info.freeram) * info.mem_unit;
  facts.total_memory = static_cast<std::uint64_t>(info.totalram) * info.mem_unit;
}

std::string Field(std::string_view name, const std::string& value) {
  return std::string(name) + " [" + value + "]";
}

}  // namespace

SystemFacts GatherSystemFacts() {
  SystemFacts facts;
  facts.computer = ComputerName();
  facts.user = LoggedOnUserName();
  facts.cpu = FileValue("/proc/cpuinfo", "model name", ':');
  ReadOperatingSystem(facts);
  facts.administrator = geteuid() == 0;
  facts.time_zone = TimeZoneName();
  ReadMemory(facts);
  return facts;
}

std::string SystemInfoLine(const SystemFacts& f) {
  const std::string os = f.os_name + " " + f.os_version + " " + f.os_major + "." + f.os_minor +
                         "." + f.os_build + "-" + f.service_pack;
  const std::string memory =
      std::to_string(f.free_memory) + " from " + std::to_string(f.total_memory) + " bytes";
  const std::string screen = std::to_string(f.screen_width) + "x" +
                             std::to_string(f.screen_height) + " (" +
                             std::to_string(f.colour_depth) + "bit)";
  return "Systeminfo: " + Field("Computer", f.computer) + " | " + Field("User", f.user) + " | " +
         Field("CPU", f.cpu) + " | " + Field("OS", os) + " | " +
         Field("Administrative rights", f.administrator ? "True" : "False") + " | " +
         Field("TZ", f.time_zone) + " | " + Field("Memory", memory) + " | " +
         Field("Screen Resolution", screen) + " | " + Field("OS Path", f.system_folder);
}

}  // namespace tarnwick

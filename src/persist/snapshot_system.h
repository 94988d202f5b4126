#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

// The facts of the log's system line. GatherSystemFacts fills what the
// operating system tells; the screen is the front end's to fill in (a
// headless run leaves it at 0).
struct SystemFacts {
  std::string computer;
  std::string user;
  std::string cpu;             // model name of the processor
  std::string os_name;         // "Debian GNU/Linux"
  std::string os_version;      // "12"
  std::string os_major;        // kernel release "6.1.0-18-amd64": "6"
  std::string os_minor;        //   "1"
  std::string os_build;        //   "0"
  std::string service_pack;    //   "18-amd64"
  bool administrator = false;  // running as root
  std::string time_zone;
  std::uint64_t free_memory = 0;   // bytes
  std::uint64_t total_memory = 0;  // bytes
  int screen_width = 0;
  int screen_height = 0;
  int colour_depth = 0;
  std::string system_folder = "/";
};

SystemFacts GatherSystemFacts();

// The system line without its line end:
// "Systeminfo: Computer [..] | User [..] | CPU [..] | OS [name version
// major.minor.build-sp] | Administrative rights [True|False] | TZ [..] |
// Memory [free from total bytes] | Screen Resolution [WxH (Dbit)] |
// OS Path [..]".
std::string SystemInfoLine(const SystemFacts& facts);

}  // namespace tarnwick

// Arbitrary arguments (split at zero bytes) for the desktop program's
// command line: parsing must not crash, "-d" is a switch only as an
// argument of its own, and the names it gives are absolute.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "startup/command_line.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> arguments;
  std::size_t start = 0;
  while (start <= bytes.size() && arguments.size() < 64) {
    const std::size_t end = bytes.find('\0', start);
    arguments.emplace_back(bytes.substr(start, end == std::string_view::npos ? end : end - start));
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  bool switch_seen = false;
  for (const std::string& argument : arguments) switch_seen |= EqualsText(argument, "-d");
  if (HasBatchSwitch(arguments) != switch_seen) std::abort();
  const CommandLine line = ParseCommandLine(arguments, "/home/user");
  if (!line.settings_file.empty() && line.settings_file.front() != '/') std::abort();
  if (!line.folder.empty() && line.folder.front() != '/') std::abort();
  return 0;
}

#include "playlist/playlist_path.h"

#include <algorithm>

#include "base/path_text.h"
#include "base/text.h"

namespace tarnwick {
namespace {

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::string PercentDecoded(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 2 < text.size() && HexValue(text[i + 1]) >= 0 &&
        HexValue(text[i + 2]) >= 0) {
      decoded.push_back(static_cast<char>(HexValue(text[i + 1]) * 16 + HexValue(text[i + 2])));
      i += 2;
      continue;
    }
    decoded.push_back(text[i]);
  }
  return decoded;
}

// "scheme:" at the start, as in "http://": letters, then letters, digits,
// "+", "-" or "."; two letters at least so that "C:" stays a drive.
bool HasUrlScheme(std::string_view entry) {
  const std::size_t colon = entry.find(':');
  if (colon == std::string_view::npos || colon < 2 || !IsAsciiLetter(entry[0])) return false;
  for (std::size_t i = 1; i < colon; ++i) {
    const char c = entry[i];
    if (!IsAsciiLetter(c) && !(c >= '0' && c <= '9') && c != '+' && c != '-' && c != '.') {
      return false;
    }
  }
  return entry.substr(colon + 1).starts_with("/");
}

bool IsWindowsPath(std::string_view entry) {
  if (entry.starts_with("\\\\")) return true;
  return entry.size() >= 2 && IsAsciiLetter(entry[0]) && entry[1] == ':';
}

// The local path of a "file:" URL, or empty when it names another host.
std::string FileUrlPath(std::string_view url) {
  std::string_view rest = url.substr(5);  // behind "file:"
  if (rest.starts_with("//")) {
    rest.remove_prefix(2);
    const std::size_t slash = rest.find('/');
    const std::string_view host = rest.substr(0, slash);
    if (slash == std::string_view::npos) return {};
    if (!host.empty() && !EqualsText(host, "localhost")) return {};
    rest.remove_prefix(slash);
  }
  if (!rest.starts_with("/")) return {};
  return PercentDecoded(rest);
}

}  // namespace

std::string ResolvePlaylistEntry(std::string_view entry, std::string_view folder) {
  if (entry.starts_with("/")) return std::string(entry);
  if (StartsWithText(entry, "file:")) {
    std::string path = FileUrlPath(entry);
    return path.empty() ? std::string(entry) : path;
  }
  if (HasUrlScheme(entry) || IsWindowsPath(entry)) return std::string(entry);
  std::string relative(entry);
  std::replace(relative.begin(), relative.end(), '\\', '/');
  return AbsolutePathName(relative, folder);
}

std::string TitleFromPath(std::string_view path) {
  std::string_view name = path;
  const std::size_t cut = name.find_last_of(IsWindowsPath(path) ? "\\/" : "/");
  if (cut != std::string_view::npos) name.remove_prefix(cut + 1);
  const std::string without = WithoutExtension(name);
  return without.empty() ? std::string(name) : without;
}

}  // namespace tarnwick

#include "playlist/media_types.h"

#include "base/path_text.h"
#include "base/text.h"

namespace tarnwick {

std::string GetFileExt(std::string_view name) { return vb::LCase(ExtensionName(name)); }

bool FilterMedia(std::string_view name) {
  const std::string extension = GetFileExt(name);
  if (extension.empty()) return false;
  std::string_view types = kPlaylistMediaTypes;
  while (!types.empty()) {
    const std::size_t blank = types.find(' ');
    if (types.substr(0, blank) == extension) return true;
    if (blank == std::string_view::npos) break;
    types.remove_prefix(blank + 1);
  }
  return false;
}

}  // namespace tarnwick

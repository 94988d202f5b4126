#pragma once

#include <string>
#include <string_view>

#include "base/path_text.h"

namespace tarnwick {

// A name taken apart as the actions see it: the extension is the text behind
// the last dot, without the dot; the base is the name without the dot and the
// extension. A name without extension (no dot, or nothing behind the last
// one) has the whole name as its base.
struct NameParts {
  std::string base;
  std::string extension;

  bool has_extension() const { return !extension.empty(); }
};

inline NameParts SplitName(std::string_view name) {
  std::string extension = ExtensionName(name);
  // The extension is a tail of the name, so bytes can be cut directly. A name
  // whose extension is not at its very end (a separator behind it) counts as
  // one without.
  if (extension.empty() || name.size() <= extension.size() || !name.ends_with(extension) ||
      name[name.size() - extension.size() - 1] != '.') {
    return {std::string(name), {}};
  }
  return {std::string(name.substr(0, name.size() - extension.size() - 1)), std::move(extension)};
}

}  // namespace tarnwick

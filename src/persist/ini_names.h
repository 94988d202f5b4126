#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarnwick {

// Section and key names of the options file compare without regard to case,
// as the names of registry keys and values do: code point by code point after
// simple Unicode case folding. A byte that is not valid UTF-8 compares as
// itself. Nothing here allocates.
bool IniNamesEqual(std::string_view a, std::string_view b);
std::size_t IniNameHashOf(std::string_view name);

struct IniNameHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view name) const { return IniNameHashOf(name); }
};

struct IniNameEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return IniNamesEqual(a, b); }
};

// A map by name that is looked up with a std::string_view, without a copy.
template <typename T>
using IniNameMap = std::unordered_map<std::string, T, IniNameHash, IniNameEqual>;

}  // namespace tarnwick

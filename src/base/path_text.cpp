#include "base/path_text.h"

namespace tarnwick {
namespace {

// The path without the separators at its end; the root keeps its one.
std::string_view WithoutTrailingSeparators(std::string_view path) {
  const std::size_t last = path.find_last_not_of(kPathSeparator);
  if (last == std::string_view::npos) return path.substr(0, path.empty() ? 0 : 1);
  return path.substr(0, last + 1);
}

bool IsAbsolute(std::string_view path) { return !path.empty() && path[0] == kPathSeparator; }

}  // namespace

std::string JoinPath(std::string_view folder, std::string_view name) {
  if (folder.empty()) return std::string(name);
  const std::size_t first = name.find_first_not_of(kPathSeparator);
  name = first == std::string_view::npos ? std::string_view() : name.substr(first);
  std::string path(folder);
  if (path.back() != kPathSeparator) path += kPathSeparator;
  return path.append(name);
}

std::string ParentFolder(std::string_view path) {
  const std::string_view trimmed = WithoutTrailingSeparators(path);
  const std::size_t slash = trimmed.rfind(kPathSeparator);
  if (slash == std::string_view::npos || trimmed == "/") return {};
  const std::size_t end = trimmed.find_last_not_of(kPathSeparator, slash);
  if (end == std::string_view::npos) return "/";
  return std::string(trimmed.substr(0, end + 1));
}

std::string LastPathElement(std::string_view path) {
  const std::string_view trimmed = WithoutTrailingSeparators(path);
  if (trimmed == "/") return {};
  const std::size_t slash = trimmed.rfind(kPathSeparator);
  return std::string(slash == std::string_view::npos ? trimmed : trimmed.substr(slash + 1));
}

std::string ExtensionName(std::string_view path) {
  const std::string element = LastPathElement(path);
  const std::size_t point = element.rfind('.');
  if (point == std::string::npos) return {};
  return element.substr(point + 1);
}

std::string WithoutExtension(std::string_view path) {
  const std::size_t slash = path.rfind(kPathSeparator);
  const std::size_t element = slash == std::string_view::npos ? 0 : slash + 1;
  const std::size_t point = path.rfind('.');
  if (point == std::string_view::npos || point < element) return std::string(path);
  return std::string(path.substr(0, point));
}

std::vector<std::string> PathElements(std::string_view path) {
  std::vector<std::string> elements;
  std::size_t from = 0;
  for (std::size_t slash; (slash = path.find(kPathSeparator, from)) != std::string_view::npos;
       from = slash + 1) {
    elements.emplace_back(path.substr(from, slash - from));
  }
  elements.emplace_back(path.substr(from));
  return elements;
}

std::string AbsolutePathName(std::string_view path, std::string_view base_folder) {
  const std::string full = IsAbsolute(path) ? std::string(path) : JoinPath(base_folder, path);
  const bool absolute = IsAbsolute(full);
  std::vector<std::string> kept;
  for (std::string& element : PathElements(full)) {
    if (element.empty() || element == ".") continue;
    if (element != "..") {
      kept.push_back(std::move(element));
    } else if (!kept.empty() && kept.back() != "..") {
      kept.pop_back();
    } else if (!absolute) {
      kept.push_back("..");  // a relative base keeps what it cannot resolve
    }
  }
  std::string out = absolute ? "/" : "";
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (i > 0) out += kPathSeparator;
    out += kept[i];
  }
  return out.empty() ? "." : out;
}

std::string EnsureTrailingSeparator(std::string_view folder) {
  std::string out(folder);
  if (out.empty() || out.back() != kPathSeparator) out += kPathSeparator;
  return out;
}

}  // namespace tarnwick

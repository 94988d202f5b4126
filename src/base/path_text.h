#pragma once

#include <string>
#include <string_view>
#include <vector>

// The one place where paths are joined and split. Paths are texts with "/"
// as the separator; nothing here touches the file system. Where a path ends
// in separators, they are ignored when its last element is asked for, like
// the file system object of the old runtime did.
namespace tarnwick {

inline constexpr char kPathSeparator = '/';

// folder + "/" + name with exactly one separator between them; the name alone
// when the folder is empty.
std::string JoinPath(std::string_view folder, std::string_view name);

// The path without its last element and the separator before it: "/a/b" ->
// "/a", "/a" -> "/", "a" -> "". Trailing separators are ignored.
std::string ParentFolder(std::string_view path);

// The last element: "/a/b.txt" -> "b.txt", "/a/b/" -> "b", "/" -> "".
std::string LastPathElement(std::string_view path);

// The text after the last "." of the last element, empty when it has none:
// "a/b.tar.gz" -> "gz", ".profile" -> "profile", "a.b/c" -> "".
std::string ExtensionName(std::string_view path);

// The path with the last "." of its last element and what follows removed:
// "/a/b.txt" -> "/a/b", "c" -> "c".
std::string WithoutExtension(std::string_view path);

// The elements between the separators, empty ones included: "/a/b" ->
// "", "a", "b".
std::vector<std::string> PathElements(std::string_view path);

// The absolute form of a path, worked out on the text alone: a relative path
// is taken from `base_folder`, "." and empty elements go, ".." takes away the
// element before it (never the root), and there is no trailing separator
// unless the result is the root. An empty path gives the base folder's form.
std::string AbsolutePathName(std::string_view path, std::string_view base_folder);

// The folder with one "/" behind it, unless it already ends in one.
std::string EnsureTrailingSeparator(std::string_view folder);

}  // namespace tarnwick

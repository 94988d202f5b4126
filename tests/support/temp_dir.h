#pragma once

#include <filesystem>
#include <string>

namespace tarnwick::testing {

// A fresh folder under the system's temporary folder, removed with everything
// in it when the object goes out of scope.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string str() const { return path_.string(); }

  // Writes `content` to `relative` below the folder (parents created) and
  // returns the full path.
  std::filesystem::path WriteFile(const std::string& relative, const std::string& content = "") const;
  std::string ReadFile(const std::string& relative) const;

 private:
  std::filesystem::path path_;
};

// Reads a whole file as bytes; empty when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& path);

}  // namespace tarnwick::testing

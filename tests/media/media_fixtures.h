#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tarnwick::testing {

// The folder of the committed media fixtures.
inline std::filesystem::path FixtureFolder(const std::string& kind) {
  const char* source = std::getenv("TW_SOURCE_DIR");
  return std::filesystem::path(source ? source : ".") / "tests" / "fixtures" / kind;
}

// The rows of a fixture manifest: tab-separated fields, "#" lines skipped.
inline std::vector<std::vector<std::string>> ReadManifest(const std::filesystem::path& file) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields;
    std::stringstream split(line);
    std::string field;
    while (std::getline(split, field, '\t')) fields.push_back(field);
    if (line.back() == '\t') fields.emplace_back();
    rows.push_back(std::move(fields));
  }
  return rows;
}

}  // namespace tarnwick::testing

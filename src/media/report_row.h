#pragma once

#include <string>

namespace tarnwick {

// One selected row of the list as the metadata reports show it: the file's
// name, its size text and its folder.
struct ReportRow {
  std::string name;
  std::string size;
  std::string folder;
};

}  // namespace tarnwick

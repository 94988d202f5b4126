#include <iostream>
#include <string>
#include <vector>

#include "desktop_start.h"
#include "startup/command_line.h"
#include "unattended_start.h"

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (!args.empty() && args.front() == "--screenshot") {
    return tarnwick::gui::RunScreenshot(argc, argv, args, std::cerr);
  }
  // The unattended start needs no display and never creates a window. Only
  // "-d" as an argument of its own is the switch: "~/my-docs" is a folder.
  if (tarnwick::HasBatchSwitch(args)) return tarnwick::gui::RunTarnwick(args, std::cerr);
  return tarnwick::gui::RunDesktop(argc, argv, args, std::cerr);
}

#include <iostream>
#include <string>
#include <vector>

#include "base/text.h"
#include "desktop_start.h"
#include "unattended_start.h"

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (!args.empty() && args.front() == "--screenshot") {
    return tarnwick::gui::RunScreenshot(argc, argv, args, std::cerr);
  }
  // The unattended start needs no display and never creates a window.
  for (const std::string& arg : args) {
    if (tarnwick::ContainsText(arg, "-d")) return tarnwick::gui::RunTarnwick(args, std::cerr);
  }
  return tarnwick::gui::RunDesktop(argc, argv, args, std::cerr);
}

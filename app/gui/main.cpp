#include <iostream>
#include <string>
#include <vector>

#include "unattended_start.h"

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  return tarnwick::gui::RunTarnwick(args, std::cerr);
}

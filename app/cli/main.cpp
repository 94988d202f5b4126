#include <iostream>
#include <string>
#include <vector>

#include "cli_main.h"

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  tarnwick::cli::CliIo io{std::cout, std::cerr};
  return tarnwick::cli::RunCli(args, io);
}

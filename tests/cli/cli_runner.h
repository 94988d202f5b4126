#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/temp_dir.h"

namespace tarnwick::testing {

// What a finished program left behind.
struct CliResult {
  int exit_code = -1;  // the exit status; 128 + N when killed by signal N; -1 when it
                       // could not start or ran past the time limit
  std::string out;
  std::string err;
};

// How to run one program.
struct ProcessSpec {
  std::filesystem::path program;
  std::vector<std::string> args;  // without the program name
  // Variables set (a value) or removed (nullopt) on top of this process's environment.
  std::map<std::string, std::optional<std::string>> environment;
  std::optional<std::string> input;         // stdin; /dev/null when not given
  std::filesystem::path working_directory;  // this process's when empty
  std::chrono::seconds time_limit{60};
};

// Runs a program to its end and captures stdout, stderr and the exit code.
CliResult RunProcess(const ProcessSpec& spec);

// Runs the tarnwick-cli binary of this build with a private configuration:
// XDG_CONFIG_HOME and XDG_DATA_HOME point into a temporary folder that lives
// as long as the runner, so each runner starts with no options at all.
//
//   CliRunner cli;
//   CliResult result = cli.Run({"options", "get", "Options", "Top", "200"});
//   EXPECT_EQ(result.out, "200\n");
class CliRunner {
 public:
  CliRunner();

  CliResult Run(std::vector<std::string> args) const;
  CliResult RunWithInput(std::vector<std::string> args, std::string input) const;

  void SetEnv(const std::string& name, std::string value) { environment_[name] = std::move(value); }
  void UnsetEnv(const std::string& name) { environment_[name] = std::nullopt; }
  void SetWorkingDirectory(std::filesystem::path folder) { working_directory_ = std::move(folder); }

  // The private folders, and the options file the program uses.
  const TempDir& dir() const { return dir_; }
  std::filesystem::path config_home() const { return dir_.path() / "config"; }
  std::filesystem::path data_home() const { return dir_.path() / "data"; }
  std::filesystem::path options_file() const;

 private:
  ProcessSpec Spec(std::vector<std::string> args) const;

  TempDir dir_;
  std::map<std::string, std::optional<std::string>> environment_;
  std::filesystem::path working_directory_;
};

}  // namespace tarnwick::testing

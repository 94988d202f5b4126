// Runs of 5,000 files killed with SIGKILL at random moments: each file is
// afterwards under exactly one name (old, new or a temporary one), and
// "undo" brings every file back to its old name. TW_CRASH_ROUNDS sets the
// number of kills (default 3).
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <thread>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliRunner;

constexpr int kFiles = 5000;

std::string Numbered(int i) {
  char name[32];
  std::snprintf(name, sizeof name, "f%05d.dat", i);
  return name;
}

int Rounds() {
  const char* text = std::getenv("TW_CRASH_ROUNDS");
  const int rounds = text != nullptr ? std::atoi(text) : 0;
  return rounds > 0 ? rounds : 3;
}

// Starts the program with the runner's private folders and kills it after
// `delay`; returns whether it was still running then.
bool RunAndKill(const CliRunner& cli, const std::vector<std::string>& args,
                std::chrono::milliseconds delay) {
  std::vector<std::string> all = {TW_CLI_PATH};
  all.insert(all.end(), args.begin(), args.end());
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    ::setenv("XDG_CONFIG_HOME", cli.config_home().c_str(), 1);
    ::setenv("XDG_DATA_HOME", cli.data_home().c_str(), 1);
    std::freopen("/dev/null", "w", stdout);
    std::freopen("/dev/null", "w", stderr);
    std::vector<char*> argv;
    for (std::string& a : all) argv.push_back(a.data());
    argv.push_back(nullptr);
    ::execv(argv[0], argv.data());
    ::_exit(127);
  }
  std::this_thread::sleep_for(delay);
  const bool killed = ::kill(child, SIGKILL) == 0;
  int status = 0;
  ::waitpid(child, &status, 0);
  return killed && WIFSIGNALED(status);
}

TEST(CliCrashTest, AKilledRunLeavesEachFileOnceAndUndoBringsAllBack) {
  std::mt19937 random(std::random_device{}());
  const int rounds = Rounds();
  for (int round = 0; round < rounds; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    CliRunner cli;
    const std::filesystem::path folder = cli.dir().path() / "files";
    std::filesystem::create_directories(folder);
    for (int i = 0; i < kFiles; ++i) std::ofstream(folder / Numbered(i)) << i;
    ASSERT_EQ(cli.Run({"options", "set", "Options", "ReadySound", "0"}).exit_code, 0);
    // An earlier run whose lines the killed run's batch must keep behind its own.
    const std::filesystem::path earlier = cli.dir().path() / "earlier";
    std::filesystem::create_directories(earlier);
    for (const char* name : {"one.txt", "two.txt"}) std::ofstream(earlier / name) << name;
    ASSERT_EQ(cli.Run({"run", "--folder", earlier.string(), "--set", "chkPrefix=1", "--set",
                       "txtPrefix=E_"})
                  .exit_code,
              0);
    // Every other round changes the case only, which goes through temporary names.
    std::vector<std::string> args = {"run",         "--folder", folder.string(), "--set",
                                     "chkPrefix=1", "--set",    "txtPrefix=IMG_"};
    if (round % 2 == 1) {
      args = {"run",
              "--folder",
              folder.string(),
              "--set",
              "chkReplace=1",
              "--set",
              "txtSearchString=f",
              "--set",
              "txtReplaceString=F"};
    }
    const auto delay = std::chrono::milliseconds(std::uniform_int_distribution(20, 2500)(random));
    const bool killed = RunAndKill(cli, args, delay);
    RecordProperty("killed_round_" + std::to_string(round), killed ? 1 : 0);

    std::map<int, int> seen;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string name = entry.path().filename().string();
      const bool known = name.starts_with("f") || name.starts_with("IMG_f") ||
                         name.starts_with("F") || name.starts_with("~VB");
      EXPECT_TRUE(known) << name;
      std::ifstream in(entry.path());
      int number = -1;
      in >> number;
      ++seen[number];
    }
    ASSERT_EQ(static_cast<int>(seen.size()), kFiles);
    for (const auto& [number, count] : seen) ASSERT_EQ(count, 1) << number;

    const std::string batch =
        (cli.data_home() / "Oakhollow" / "Tarnwick" / "Undo Files" / "UndoBatch.bat").string();
    {
      const auto undo = cli.Run({"undo", batch});
      EXPECT_EQ(undo.exit_code, 0) << undo.err.substr(0, 2000);
    }
    for (int i = 0; i < kFiles; ++i) {
      ASSERT_TRUE(std::filesystem::exists(folder / Numbered(i))) << Numbered(i);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), kFiles);
    EXPECT_TRUE(std::filesystem::exists(earlier / "one.txt"));
    EXPECT_TRUE(std::filesystem::exists(earlier / "two.txt"));
  }
}

}  // namespace
}  // namespace tarnwick

#include "cli/cli_runner.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

extern char** environ;

namespace tarnwick::testing {
namespace {

// A pipe whose ends close on exec and at the end of the scope.
struct Pipe {
  int read = -1;
  int write = -1;
  Pipe() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) == 0) {
      read = ends[0];
      write = ends[1];
    }
  }
  ~Pipe() {
    CloseRead();
    CloseWrite();
  }
  void CloseRead() {
    if (read >= 0) ::close(read);
    read = -1;
  }
  void CloseWrite() {
    if (write >= 0) ::close(write);
    write = -1;
  }
};

std::vector<std::string> EnvironmentFor(const ProcessSpec& spec) {
  std::map<std::string, std::string> merged;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string text = *entry;
    const size_t equals = text.find('=');
    if (equals != std::string::npos) merged[text.substr(0, equals)] = text.substr(equals + 1);
  }
  for (const auto& [name, value] : spec.environment) {
    if (value) {
      merged[name] = *value;
    } else {
      merged.erase(name);
    }
  }
  std::vector<std::string> result;
  for (const auto& [name, value] : merged) result.push_back(name + "=" + value);
  return result;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

// Reads both pipes until both are closed or the time is up; false on timeout.
bool Drain(Pipe& out, Pipe& err, CliResult& result, std::chrono::seconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  std::array<pollfd, 2> fds = {{{out.read, POLLIN, 0}, {err.read, POLLIN, 0}}};
  std::array<std::string*, 2> sinks = {&result.out, &result.err};
  char buffer[8192];
  while (fds[0].fd >= 0 || fds[1].fd >= 0) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return false;
    if (::poll(fds.data(), fds.size(), static_cast<int>(left.count())) < 0 && errno != EINTR) {
      return false;
    }
    for (size_t i = 0; i < fds.size(); ++i) {
      if (fds[i].fd < 0 || fds[i].revents == 0) continue;
      const ssize_t got = ::read(fds[i].fd, buffer, sizeof buffer);
      if (got > 0) {
        sinks[i]->append(buffer, static_cast<size_t>(got));
      } else if (got == 0 || errno != EINTR) {
        fds[i].fd = -1;  // closed; the Pipe closes the descriptor
      }
    }
  }
  return true;
}

int ExitCodeOf(int status) {
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
  return -1;
}

}  // namespace

CliResult RunProcess(const ProcessSpec& spec) {
  CliResult result;
  // The input goes through a file: no pipe to fill, no SIGPIPE when the
  // program does not read it.
  std::optional<TempDir> input_dir;
  std::filesystem::path input_file = "/dev/null";
  if (spec.input) {
    input_dir.emplace();
    input_file = input_dir->WriteFile("stdin", *spec.input);
  }
  Pipe out;
  Pipe err;
  if (out.read < 0 || err.read < 0) return result;

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, input_file.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, out.write, 1);
  posix_spawn_file_actions_adddup2(&actions, err.write, 2);
  if (!spec.working_directory.empty()) {
    posix_spawn_file_actions_addchdir_np(&actions, spec.working_directory.c_str());
  }
  std::vector<std::string> argv_texts = {spec.program.string()};
  argv_texts.insert(argv_texts.end(), spec.args.begin(), spec.args.end());
  std::vector<std::string> env_texts = EnvironmentFor(spec);
  std::vector<char*> argv = Pointers(argv_texts);
  std::vector<char*> envp = Pointers(env_texts);

  pid_t child = -1;
  const int spawned =
      ::posix_spawn(&child, spec.program.c_str(), &actions, nullptr, argv.data(), envp.data());
  posix_spawn_file_actions_destroy(&actions);
  out.CloseWrite();
  err.CloseWrite();
  if (spawned != 0) {
    result.err = "could not start " + spec.program.string();
    return result;
  }
  const bool finished = Drain(out, err, result, spec.time_limit);
  if (!finished) ::kill(child, SIGKILL);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  result.exit_code = finished ? ExitCodeOf(status) : -1;
  return result;
}

CliRunner::CliRunner() {
  std::filesystem::create_directories(config_home());
  std::filesystem::create_directories(data_home());
  SetEnv("XDG_CONFIG_HOME", config_home().string());
  SetEnv("XDG_DATA_HOME", data_home().string());
  SetEnv("LANG", "C.UTF-8");
  SetEnv("LC_ALL", "C.UTF-8");
}

std::filesystem::path CliRunner::options_file() const {
  return config_home() / "Oakhollow" / "Tarnwick.ini";
}

ProcessSpec CliRunner::Spec(std::vector<std::string> args) const {
  ProcessSpec spec;
  spec.program = TW_CLI_PATH;
  spec.args = std::move(args);
  spec.environment = environment_;
  spec.working_directory = working_directory_;
  return spec;
}

CliResult CliRunner::Run(std::vector<std::string> args) const {
  return RunProcess(Spec(std::move(args)));
}

CliResult CliRunner::RunWithInput(std::vector<std::string> args, std::string input) const {
  ProcessSpec spec = Spec(std::move(args));
  spec.input = std::move(input);
  return RunProcess(spec);
}

}  // namespace tarnwick::testing

// Two processes that save at the same moment keep each other's keys.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "persist/option_store.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

constexpr int kKeysPerProcess = 1000;

// Saves the process's keys, each through a fresh store half the time so that
// both cached and uncached writers take part. Never returns.
[[noreturn]] void SaveKeysAndExit(const std::filesystem::path& file, int writer, int start_fd) {
  char go = 0;
  if (::read(start_fd, &go, 1) != 1) ::_exit(3);
  OptionStore store(file);
  for (int i = 0; i < kKeysPerProcess; ++i) {
    const std::string key = "Writer" + std::to_string(writer) + "Key" + std::to_string(i);
    const bool saved = i % 2 == 0 ? store.SaveOption(key, "Options", std::to_string(i))
                                  : OptionStore(file).SaveOption(key, "Options", std::to_string(i));
    if (!saved) ::_exit(4);
  }
  ::_exit(0);
}

TEST(OptionStoreConcurrencyTest, TwoProcessesSavingDifferentKeysKeepAll) {
  testing::TempDir dir;
  const auto file = dir.path() / "Oakhollow" / "Tarnwick.ini";
  int start[2];
  ASSERT_EQ(::pipe(start), 0);
  pid_t children[2];
  for (int writer = 0; writer < 2; ++writer) {
    children[writer] = ::fork();
    ASSERT_GE(children[writer], 0);
    if (children[writer] == 0) {
      ::close(start[1]);
      SaveKeysAndExit(file, writer, start[0]);
    }
  }
  ::close(start[0]);
  ASSERT_EQ(::write(start[1], "gg", 2), 2);  // both start at once
  ::close(start[1]);
  for (const pid_t child : children) {
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
  }

  const OptionStore store(file);
  EXPECT_EQ(store.ListSection("Options").size(), 2u * kKeysPerProcess);
  for (int writer = 0; writer < 2; ++writer) {
    for (int i = 0; i < kKeysPerProcess; ++i) {
      const std::string key = "Writer" + std::to_string(writer) + "Key" + std::to_string(i);
      ASSERT_EQ(store.GetOption(key, "Options", "lost"), std::to_string(i)) << key;
    }
  }
}

}  // namespace
}  // namespace tarnwick

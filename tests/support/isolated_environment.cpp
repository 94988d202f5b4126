// Linked into every test binary: before any test runs, the configuration and
// data folders point into a private temporary folder, and the language is
// English, so tests never read or change the user's options.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

namespace {

class IsolatedEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "tarnwick-home-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) return;
    root_ = pattern;
    setenv("XDG_CONFIG_HOME", (root_ / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (root_ / "data").c_str(), 1);
    setenv("LANG", "C.UTF-8", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    unsetenv("LC_MESSAGES");
    unsetenv("LANGUAGE");
  }
  void TearDown() override {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }

 private:
  std::filesystem::path root_;
};

[[maybe_unused]] ::testing::Environment* const kIsolated =
    ::testing::AddGlobalTestEnvironment(new IsolatedEnvironment);

}  // namespace

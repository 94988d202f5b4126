#include "platform/system_info.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <regex>
#include <set>

#include "platform/files.h"
#include "platform/system_folder.h"
#include "platform/temp_files.h"
#include "platform/user_folders.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

TEST(SystemInfoTest, UniqueIdsHaveTheGuidFormAndDiffer) {
  const std::regex form(
      "\\{[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\\}");
  std::set<std::string> seen;
  for (int i = 0; i < 1000; ++i) {
    const std::string id = NewUniqueId();
    ASSERT_EQ(id.size(), 38u);
    ASSERT_TRUE(std::regex_match(id, form)) << id;
    seen.insert(id);
  }
  EXPECT_EQ(seen.size(), 1000u);
}

TEST(SystemInfoTest, UserAndComputerNames) {
  const std::string user = LoggedOnUserName();
  EXPECT_FALSE(user.empty());
  EXPECT_EQ(user.find('\0'), std::string::npos);
  char host[256] = {};
  ASSERT_EQ(::gethostname(host, sizeof host - 1), 0);
  EXPECT_EQ(ComputerName(), std::string(host));
  EXPECT_EQ(DefaultRootFolder(), HomeFolder());
}

TEST(SystemFolderTest, GuardsSystemFoldersAndBelow) {
  for (const char* path : {"/bin", "/boot", "/dev", "/etc", "/etc/", "/lib", "/lib64", "/proc",
                           "/sbin", "/sys", "/usr", "/usr/share/doc", "/var", "/var/tmp",
                           "/etc/does/not/exist", "/home/../etc", "/./usr/./lib"}) {
    EXPECT_TRUE(IsSystemFolder(path)) << path;
  }
  for (const char* path : {"/", "/home", "/tmp", "/binary", "/usr2", "/etcetera", "/work", ""}) {
    EXPECT_FALSE(IsSystemFolder(path)) << path;
  }
}

TEST(SystemFolderTest, LinksAreResolved) {
  TempDir dir;
  std::filesystem::create_symlink("/etc", dir.path() / "config");
  EXPECT_TRUE(IsSystemFolder(dir.path() / "config"));
  EXPECT_TRUE(IsSystemFolder(dir.path() / "config" / "ssl"));
  EXPECT_FALSE(IsSystemFolder(dir.path()));
  std::filesystem::create_directory(dir.path() / "bin");
  EXPECT_FALSE(IsSystemFolder(dir.path() / "bin"));
}

TEST(TempFilesTest, TempFolderFollowsTmpdir) {
  TempDir dir;
  const char* old = ::getenv("TMPDIR");
  const std::string saved = old != nullptr ? old : "";
  ::setenv("TMPDIR", dir.str().c_str(), 1);
  EXPECT_EQ(TempFolder(), dir.path());
  ::setenv("TMPDIR", (dir.str() + "/missing").c_str(), 1);
  EXPECT_EQ(TempFolder(), std::filesystem::path("/tmp"));
  ::setenv("TMPDIR", "relative", 1);
  EXPECT_EQ(TempFolder(), std::filesystem::path("/tmp"));
  if (old != nullptr) {
    ::setenv("TMPDIR", saved.c_str(), 1);
  } else {
    ::unsetenv("TMPDIR");
  }
}

TEST(TempFilesTest, UniqueTempFilesAreCreatedAndDistinct) {
  TempDir dir;
  std::set<std::filesystem::path> seen;
  for (int i = 0; i < 50; ++i) {
    const FileResult<std::filesystem::path> file = CreateUniqueTempFile(dir.path(), "~VB");
    ASSERT_TRUE(file.ok());
    EXPECT_TRUE(FileExists(file.value()));
    EXPECT_EQ(file.value().parent_path(), dir.path());
    EXPECT_EQ(file.value().filename().string().rfind("~VB", 0), 0u);
    EXPECT_EQ(file.value().filename().string().size(), 9u);
    seen.insert(file.value());
  }
  EXPECT_EQ(seen.size(), 50u);
  EXPECT_EQ(CreateUniqueTempFile(dir.path() / "missing", "x").status().number, 76);
  EXPECT_EQ(CreateUniqueTempFile(dir.path(), "a/b").status().number, 52);
}

TEST(TempFilesTest, FreeTempNameCreatesNothing) {
  TempDir dir;
  const FileResult<std::filesystem::path> name = FreeTempName(dir.path(), "~VB");
  ASSERT_TRUE(name.ok());
  EXPECT_EQ(name.value().parent_path(), dir.path());
  EXPECT_EQ(name.value().filename().string().rfind("~VB", 0), 0u);
  EXPECT_FALSE(std::filesystem::exists(name.value()));
  EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
  EXPECT_EQ(FreeTempName(dir.path(), "a/b").status().number, 52);
}

}  // namespace
}  // namespace tarnwick

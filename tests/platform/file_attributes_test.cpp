#include "platform/file_attributes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;
namespace fa = file_attribute;

int Attributes(const std::filesystem::path& path) { return GetFileAttributes(path).value_or(-1); }

bool XattrsWork(const std::filesystem::path& file) {
  const char probe[] = "0x20";
  if (::setxattr(file.c_str(), "user.DOSATTRIB", probe, sizeof probe, 0) != 0) return false;
  ::removexattr(file.c_str(), "user.DOSATTRIB");
  return true;
}

std::string Record(const std::filesystem::path& path) {
  char value[256];
  const ssize_t size = ::getxattr(path.c_str(), "user.DOSATTRIB", value, sizeof value);
  return size > 0 ? std::string(value, static_cast<size_t>(size)) : std::string();
}

void Put32(std::string& data, size_t at, uint32_t value) {
  for (int i = 0; i < 4; ++i) data[at + i] = static_cast<char>(value >> (8 * i));
}

uint32_t Get32(const std::string& data, size_t at) {
  uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = (value << 8) | static_cast<uint8_t>(data[at + i]);
  return value;
}

// Samba's record of version 5: empty text, version and level 5, then valid
// flags, the attribute word and the creation time.
std::string SambaVersion5(uint32_t flags, uint32_t attributes, uint64_t created) {
  std::string record(24, '\0');
  record[2] = 5;
  record[4] = 5;
  Put32(record, 8, flags);
  Put32(record, 12, attributes);
  Put32(record, 16, static_cast<uint32_t>(created));
  Put32(record, 20, static_cast<uint32_t>(created >> 32));
  return record;
}

TEST(FileAttributesTest, ReadFromModeAndName) {
  TempDir dir;
  const auto file = dir.WriteFile("plain.txt", "x");
  EXPECT_EQ(Attributes(file), fa::kArchive);
  ::chmod(file.c_str(), 0444);
  EXPECT_EQ(Attributes(file), fa::kArchive | fa::kReadOnly);
  const auto hidden = dir.WriteFile(".hidden", "x");
  EXPECT_EQ(Attributes(hidden), fa::kArchive | fa::kHidden);  // 34
  std::filesystem::create_directory(dir.path() / "folder");
  EXPECT_EQ(Attributes(dir.path() / "folder"), fa::kDirectory);
  std::filesystem::create_directory(dir.path() / ".config");
  EXPECT_EQ(Attributes(dir.path() / ".config"), fa::kDirectory | fa::kHidden);
  EXPECT_EQ(GetFileAttributes(dir.path() / "missing").status().number, 53);
}

TEST(FileAttributesTest, ReadOnlyRoundTripThroughPermissions) {
  TempDir dir;
  const auto file = dir.WriteFile("file.txt", "x");
  ::chmod(file.c_str(), 0664);
  ASSERT_TRUE(SetFileAttributes(file, fa::kReadOnly | fa::kArchive).ok());
  struct stat info {};
  ::stat(file.c_str(), &info);
  EXPECT_EQ(info.st_mode & 0777, 0444u);
  EXPECT_EQ(Attributes(file), fa::kReadOnly | fa::kArchive);
  ASSERT_TRUE(SetFileAttributes(file, fa::kArchive).ok());
  ::stat(file.c_str(), &info);
  EXPECT_EQ(info.st_mode & 0777, 0644u);
  EXPECT_EQ(Attributes(file), fa::kArchive);
  // Plain words need no record.
  EXPECT_EQ(Record(file), "");
  EXPECT_EQ(SetFileAttributes(dir.path() / "missing", 0).number, 53);
}

TEST(FileAttributesTest, HiddenSystemAndNormalKeptInRecord) {
  TempDir dir;
  const auto file = dir.WriteFile("file.txt", "x");
  if (!XattrsWork(file)) GTEST_SKIP() << "no user extended attributes here";
  for (int word : {fa::kHidden | fa::kArchive, fa::kSystem | fa::kHidden | fa::kArchive,
                   fa::kReadOnly | fa::kHidden | fa::kSystem | fa::kArchive, fa::kTemporary,
                   fa::kCompressed | fa::kArchive}) {
    ASSERT_TRUE(SetFileAttributes(file, word).ok());
    EXPECT_EQ(Attributes(file), word);
  }
  // "Normal" (0) reads back as 128, as on Windows.
  ASSERT_TRUE(SetFileAttributes(file, 0).ok());
  EXPECT_EQ(Attributes(file), fa::kNormal);
  EXPECT_EQ(Record(file), std::string("0x0") + '\0');
  // A folder stays a folder.
  std::filesystem::create_directory(dir.path() / "folder");
  ASSERT_TRUE(SetFileAttributes(dir.path() / "folder", fa::kHidden).ok());
  EXPECT_EQ(Attributes(dir.path() / "folder"), fa::kDirectory | fa::kHidden);
  // A dot name stays hidden whatever the record says.
  const auto dot = dir.WriteFile(".dot", "x");
  ASSERT_TRUE(SetFileAttributes(dot, fa::kArchive).ok());
  EXPECT_EQ(Attributes(dot), fa::kArchive | fa::kHidden);
}

TEST(FileAttributesTest, SambaRecordIsReadAndUpdatedInPlace) {
  TempDir dir;
  const auto file = dir.WriteFile("share.doc", "x");
  if (!XattrsWork(file)) GTEST_SKIP() << "no user extended attributes here";
  const uint64_t created = 0x01D9ABCDEF012345ull;
  const std::string record = SambaVersion5(0x11, fa::kSystem | fa::kArchive, created);
  ASSERT_EQ(::setxattr(file.c_str(), "user.DOSATTRIB", record.data(), record.size(), 0), 0);
  EXPECT_EQ(Attributes(file), fa::kSystem | fa::kArchive);

  ASSERT_TRUE(SetFileAttributes(file, fa::kHidden).ok());
  EXPECT_EQ(Attributes(file), fa::kHidden);
  // Version, flags and the stored creation time survive; the text in front
  // now tells the new word.
  const std::string updated = Record(file);
  ASSERT_EQ(updated.size(), 24u);
  EXPECT_EQ(updated.substr(0, 4), std::string("0x2") + '\0');
  EXPECT_EQ(updated[4], 5);
  EXPECT_EQ(updated[6], 5);
  EXPECT_EQ(Get32(updated, 8), 0x11u);
  EXPECT_EQ(Get32(updated, 12), static_cast<uint32_t>(fa::kHidden));
  EXPECT_EQ(Get32(updated, 16) | static_cast<uint64_t>(Get32(updated, 20)) << 32, created);
}

TEST(FileAttributesTest, SambaRecordVersionsAndOddRecords) {
  TempDir dir;
  const auto file = dir.WriteFile("file", "x");
  if (!XattrsWork(file)) GTEST_SKIP() << "no user extended attributes here";
  auto put = [&](const std::string& record) {
    ::setxattr(file.c_str(), "user.DOSATTRIB", record.data(), record.size(), 0);
  };
  // Version 1: the word is the first field.
  std::string v1 = std::string("0x1") + '\0' + std::string(36, '\0');
  v1[4] = 1;
  v1[6] = 1;
  Put32(v1, 8, fa::kReadOnly | fa::kArchive);
  put(v1);
  EXPECT_EQ(Attributes(file), fa::kReadOnly | fa::kArchive);
  // Version 5 whose flags say the word is not valid: mode and name count.
  put(SambaVersion5(0x10, fa::kSystem, 0));
  EXPECT_EQ(Attributes(file), fa::kArchive);
  // Text only, and text that is not a number.
  put(std::string("0x24") + '\0');
  EXPECT_EQ(Attributes(file), fa::kSystem | fa::kArchive);
  put("garbage");
  EXPECT_EQ(Attributes(file), fa::kArchive);
  // Writing over a record that is not understood replaces it by the text form.
  ASSERT_TRUE(SetFileAttributes(file, fa::kSystem).ok());
  EXPECT_EQ(Record(file), std::string("0x4") + '\0');
  EXPECT_EQ(Attributes(file), fa::kSystem);
}

// The reader of a whole folder, fed with the mode of the caller's own stat,
// gives every entry the word GetFileAttributes gives it.
TEST(FileAttributesTest, TheFolderReaderAgreesWithTheSingleFileRead) {
  TempDir dir;
  const auto plain = dir.WriteFile("plain.txt", "x");
  const auto locked = dir.WriteFile("locked.txt", "x");
  ASSERT_TRUE(SetFileAttributes(locked, fa::kReadOnly | fa::kArchive).ok());
  dir.WriteFile(".hidden", "x");
  std::filesystem::create_directory(dir.path() / "folder");
  std::filesystem::create_directory(dir.path() / ".dotfolder");
  std::vector<std::string> names = {"plain.txt", "locked.txt", ".hidden", "folder", ".dotfolder"};
  if (XattrsWork(plain)) {
    const auto system = dir.WriteFile("system.sys", "x");
    ASSERT_TRUE(SetFileAttributes(system, fa::kSystem | fa::kHidden | fa::kArchive).ok());
    const auto normal = dir.WriteFile("normal.dat", "x");
    ASSERT_TRUE(SetFileAttributes(normal, 0).ok());
    const auto samba = dir.WriteFile("share.doc", "x");
    const std::string record = SambaVersion5(0x11, fa::kTemporary, 0);
    ASSERT_EQ(::setxattr(samba.c_str(), "user.DOSATTRIB", record.data(), record.size(), 0), 0);
    names.insert(names.end(), {"system.sys", "normal.dat", "share.doc"});
  }
  const int fd = ::open(dir.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_GE(fd, 0);
  const FolderAttributeReader reader(dir.path(), fd);
  ::close(fd);
  for (const std::string& name : names) {
    struct stat info;
    ASSERT_EQ(::stat((dir.path() / name).c_str(), &info), 0) << name;
    EXPECT_EQ(reader.Read(name, info.st_mode), Attributes(dir.path() / name)) << name;
  }
}

}  // namespace
}  // namespace tarnwick

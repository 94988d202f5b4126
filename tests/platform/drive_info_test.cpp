#include "platform/drive_info.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

// A prepared mount table and /dev/disk: three "devices" (plain files) mounted
// at folders of the temporary folder.
class DriveInfoTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* device : {"sdb1", "sdc1", "sdd1", "sde1"})
      dir_.WriteFile(std::string("dev/") + device);
    for (const char* mount : {"fat", "fat/inner", "ntfs", "ext", "mount point"}) {
      std::filesystem::create_directories(dir_.path() / "mnt" / mount);
    }
    const std::string mnt = dir_.str() + "/mnt";
    const std::string dev = dir_.str() + "/dev";
    std::ofstream(dir_.path() / "mountinfo")
        << "1 0 8:1 / / rw - ext4 /dev/vda1 rw\n"
        << "30 1 8:17 / " << mnt << "/fat rw,relatime shared:5 - vfat " << dev << "/sdb1 rw\n"
        << "31 1 8:33 / " << mnt << "/ntfs rw - ntfs3 " << dev << "/sdc1 rw\n"
        << "32 1 8:49 / " << mnt << "/ext rw - ext4 " << dev << "/sdd1 rw\n"
        << "33 30 0:50 / " << mnt << "/fat/inner rw - tmpfs tmpfs rw\n"
        << "34 1 8:65 / " << mnt << "/mount\\040point rw - btrfs " << dev << "/sde1 rw\n"
        << "a broken line\n";
    Link("by-label", "USB\\x20STICK", "sdb1");
    Link("by-uuid", "1b00-cadf", "sdb1");
    Link("by-label", "Windows", "sdc1");
    Link("by-uuid", "2A3C4D5E6F708192", "sdc1");
    Link("by-uuid", "3f1c2e4d-aaaa-bbbb-cccc-0123456789ab", "sdd1");
    Link("by-label", "data", "sde1");
    sources_.mount_info = dir_.path() / "mountinfo";
    sources_.disk_links = dir_.path() / "disk";
  }

  void Link(const std::string& kind, const std::string& name, const std::string& device) {
    std::filesystem::create_directories(dir_.path() / "disk" / kind);
    std::filesystem::create_symlink("../../dev/" + device, dir_.path() / "disk" / kind / name);
  }

  DriveFacts Facts(const std::string& below_mnt) {
    return GetDriveFacts(dir_.path() / "mnt" / below_mnt, sources_);
  }

  TempDir dir_;
  DriveFactsSources sources_;
};

TEST_F(DriveInfoTest, FatVolume) {
  const DriveFacts facts = Facts("fat/some/file.txt");
  EXPECT_EQ(facts.name, "USB STICK");
  EXPECT_EQ(facts.serial, "1B00-CADF");
  EXPECT_EQ(facts.file_system, "FAT32");
}

TEST_F(DriveInfoTest, NtfsAndUuidVolumes) {
  const DriveFacts ntfs = Facts("ntfs");
  EXPECT_EQ(ntfs.name, "Windows");
  EXPECT_EQ(ntfs.serial, "6F70-8192");
  EXPECT_EQ(ntfs.file_system, "NTFS");
  const DriveFacts ext = Facts("ext/x");
  EXPECT_EQ(ext.name, "");
  EXPECT_EQ(ext.serial, "3F1C-2E4D");
  EXPECT_EQ(ext.file_system, "ext4");
}

TEST_F(DriveInfoTest, InnerMountsAndEscapedMountPoints) {
  // The inner mount hides the outer one; a tmpfs has no label.
  const DriveFacts inner = Facts("fat/inner/file");
  EXPECT_EQ(inner.file_system, "tmpfs");
  EXPECT_EQ(inner.name, "");
  const DriveFacts spaced = Facts("mount point/file");
  EXPECT_EQ(spaced.name, "data");
  EXPECT_EQ(spaced.file_system, "btrfs");
  // No volume id: the serial falls back to the file-system id of statfs.
  EXPECT_TRUE(spaced.serial.empty() ||
              std::regex_match(spaced.serial, std::regex("[0-9A-F]{4}-[0-9A-F]{4}")));
  // "/fatter" is not below "/fat".
  std::filesystem::create_directories(dir_.path() / "mnt" / "fatter");
  EXPECT_EQ(Facts("fatter").file_system, "ext4");
}

TEST(DriveInfoSystemTest, ThisMachine) {
  TempDir dir;
  const DriveFacts facts = GetDriveFacts(dir.path());
  EXPECT_FALSE(facts.file_system.empty());
  EXPECT_TRUE(facts.serial.empty() ||
              std::regex_match(facts.serial, std::regex("[0-9A-F]{4}-[0-9A-F]{4}")));
  EXPECT_EQ(GetDriveFacts("").file_system, "");
}

}  // namespace
}  // namespace tarnwick

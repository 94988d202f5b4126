// Compressing pictures to JPEG as a job: names, the overwrite question and
// order, turns and flips, EXIF, failures, and what a killed job leaves.
#include "picture/compress_job.h"

#include <png.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "core/run_test_fixture.h"
#include "picture/exif_orientation.h"
#include "picture/picture_file.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

std::string PngBytes(const RgbPicture& picture) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGB;
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&image, nullptr, &size, 0, picture.rgb.data(), 0, nullptr);
  std::string bytes(size, '\0');
  png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.rgb.data(), 0, nullptr);
  bytes.resize(size);
  return bytes;
}

// Red at the top left, green top right, blue bottom left, white bottom right.
RgbPicture Corners(int width, int height) {
  RgbPicture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::uint8_t* p = picture.Pixel(x, y);
      const bool right = x >= width / 2, bottom = y >= height / 2;
      p[0] = (!bottom || right) && !(right && !bottom) ? 255 : (right && bottom ? 255 : 0);
      p[1] = (right && !bottom) || (right && bottom) ? 255 : 0;
      p[2] = bottom ? 255 : 0;
    }
  }
  return picture;
}

std::string Fixture(const std::string& name) {
  std::ifstream in(std::string(TW_FIXTURE_DIR) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class CompressJobTest : public RunTest {
 protected:
  CompressJobTest() { SetOption("LogOnlyRename", "0"); }
  RenameRunEnv Env() {
    return {app, settings, list, options, interaction, messages, clock, log_undo};
  }
  ToolJobResult Compress(const CompressChoices& choices) {
    Fill();
    return CompressToJpeg(Env(), choices);
  }
  LoadedPicture Load(const std::string& name) { return LoadPicture(FilePath(name)); }
};

TEST_F(CompressJobTest, NewFilesStandBesideTheOriginalsAndATakenNameGetsACopyNumber) {
  AddFile("a.jpg", Fixture("exif/full_intel.jpg"));
  AddFile("a.png", PngBytes(Corners(16, 16)));
  AddFile("notes.txt", "not a picture");
  const ToolJobResult result = Compress({});
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(result.failed, 1);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a (Copy_1).jpg", "a (Copy_2).jpg", "a.jpg", "a.png",
                                               "notes.txt"}));
  // The photograph's EXIF block came along; the PNG had none.
  EXPECT_EQ(Load("a (Copy_1).jpg").exif, Load("a.jpg").exif);
  EXPECT_FALSE(Load("a (Copy_1).jpg").exif.empty());
  EXPECT_TRUE(Load("a (Copy_2).jpg").ok());
  // The failure is told with its count, and named in the log.
  EXPECT_TRUE(WasAsked("Compress picture files to JPEG"));
  EXPECT_NE(interaction.asked().back().text.find(
                "1 files couldn't be processed in case of invalid file format."),
            std::string::npos);
  EXPECT_NE(Log().find("notes.txt"), std::string::npos) << Log();

  CompressChoices bare;
  bare.keep_exif = false;
  bare.destination = (dir.path() / "out").string();
  fs::create_directories(bare.destination);
  Compress(bare);
  EXPECT_TRUE(LoadPicture(bare.destination + "/a.jpg").exif.empty());
}

TEST_F(CompressJobTest, OverwriteAsksFirstThenPutsTheNewFileInTheOriginalsPlace) {
  AddFile("b.png", PngBytes(Corners(8, 8)));
  AddFile("c.jpg", Fixture("exif/full_intel.jpg"));
  CompressChoices choices;
  choices.overwrite = true;
  interaction.Then(Answer::kNo);
  EXPECT_TRUE(Compress(choices).refused);
  EXPECT_TRUE(WasAsked("Overwrite files"));
  EXPECT_EQ(Names(), (std::vector<std::string>{"b.png", "c.jpg"}));

  interaction.Then(Answer::kYes);
  const ToolJobResult result = Compress(choices);
  EXPECT_EQ(result.done, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"b.jpg", "c.jpg"}));
  EXPECT_TRUE(Load("b.jpg").ok());
  EXPECT_NE(Fixture("exif/full_intel.jpg"), ReadWholeFile(files() / "c.jpg"));  // written anew
  EXPECT_FALSE(Load("c.jpg").exif.empty());
}

TEST_F(CompressJobTest, TurnsAndFlipsComeBeforeTheEncoderAndResetTheCamerasOrientation) {
  AddFile("p.png", PngBytes(Corners(32, 16)));
  CompressChoices choices;
  choices.quality = 100;
  choices.h = choices.v = 1;
  choices.rotation = 1;  // 90° clockwise: the top left corner goes to the top right
  Compress(choices);
  const LoadedPicture turned = Load("p.jpg");
  ASSERT_TRUE(turned.ok()) << turned.error;
  EXPECT_EQ(turned.picture.width, 16);
  EXPECT_EQ(turned.picture.height, 32);
  const std::uint8_t* top_right = turned.picture.Pixel(15, 0);
  EXPECT_GT(top_right[0], 200);  // red
  EXPECT_LT(top_right[1], 60);
  EXPECT_LT(top_right[2], 60);

  // A camera's "turn 90°" tag goes to "as stored" when the job turns.
  std::vector<std::uint8_t> exif =
      LoadPicture(std::string(TW_FIXTURE_DIR) + "/exif/full_intel.jpg").exif;
  ASSERT_TRUE(ResetExifOrientation(exif));
  AddFile("q.jpg", Fixture("exif/full_intel.jpg"));
  fs::remove(files() / "p.png");
  fs::remove(files() / "p.jpg");
  choices.rotation = 0;
  choices.mirror = 1;
  Compress(choices);
  EXPECT_EQ(Load("q (Copy_1).jpg").exif, exif);
}

// With overwrite on, a job killed at any moment leaves each picture under
// its old name or as its finished JPEG, never under neither.
TEST_F(CompressJobTest, AKilledJobLeavesEveryPictureOldOrNew) {
  constexpr int kFiles = 24;
  const std::string png = PngBytes(Corners(160, 120));
  bool saw_partial = false;  // some kill came in the middle of the job
  for (int delay_ms : {5, 30, 60, 100, 150, 250}) {
    fs::remove_all(files());
    fs::create_directories(files());
    for (int i = 0; i < kFiles; ++i) AddFile("pic" + std::to_string(i) + ".png", png);
    Fill();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      interaction.Then(Answer::kYes);
      CompressChoices choices;
      choices.overwrite = true;
      CompressToJpeg(Env(), choices);
      ::_exit(0);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(delay_ms));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    int converted = 0;
    for (int i = 0; i < kFiles; ++i) {
      const std::string base = files() / ("pic" + std::to_string(i));
      const bool old_one = fs::exists(base + ".png");
      const bool new_one = fs::exists(base + ".jpg");
      ASSERT_TRUE(old_one || new_one) << "pic" << i << " is gone after " << delay_ms << " ms";
      if (new_one) {
        EXPECT_TRUE(LoadPicture(base + ".jpg").ok()) << "pic" << i;
        ++converted;
      }
      if (old_one) {
        EXPECT_EQ(ReadWholeFile(base + ".png"), png) << "pic" << i;
      }
    }
    if (converted > 0 && converted < kFiles) saw_partial = true;
  }
  EXPECT_TRUE(saw_partial);
}

TEST(ExifOrientationTest, BothByteOrdersAndBlocksWithoutTheTag) {
  for (const char* fixture : {"exif/full_intel.jpg", "exif/full_motorola.jpg"}) {
    std::vector<std::uint8_t> exif = LoadPicture(std::string(TW_FIXTURE_DIR) + "/" + fixture).exif;
    ASSERT_FALSE(exif.empty()) << fixture;
    const std::vector<std::uint8_t> before = exif;
    ASSERT_TRUE(ResetExifOrientation(exif)) << fixture;
    // Exactly the two bytes of the value changed, to 1.
    int changed = 0;
    for (std::size_t i = 0; i < exif.size(); ++i) changed += exif[i] != before[i];
    EXPECT_EQ(changed, 1) << fixture;
    EXPECT_TRUE(ResetExifOrientation(exif)) << fixture;  // again: still found, no change
  }
  std::vector<std::uint8_t> junk = {'E', 'x', 'i', 'f', 0, 0, 'X', 'X'};
  EXPECT_FALSE(ResetExifOrientation(junk));
  std::vector<std::uint8_t> empty;
  EXPECT_FALSE(ResetExifOrientation(empty));
}

TEST(CompressChoicesTest, SubsamplingItemsAndUniqueCopyNames) {
  const MessageTable& english = MessageTable::Get(Language::kEnglish);
  const std::vector<std::string> items = SubsamplingItems(english);
  ASSERT_EQ(items.size(), 16u);
  EXPECT_EQ(items[0], "1:1   [Max Quality]");
  EXPECT_EQ(items[kDefaultSubsamplingItem], "2:2   [Default]");
  EXPECT_EQ(items[15], "4:4  ");
  EXPECT_EQ(SubsamplingFactors(items[7]), std::make_pair(3, 2));
  EXPECT_EQ(SubsamplingFactors("x"), std::make_pair(2, 2));
  EXPECT_EQ(SubsamplingItems(MessageTable::Get(Language::kGerman))[3], "2:2   [Standard]");

  TempDir dir;
  int counter = 1;
  const std::string folder = dir.path().string();
  EXPECT_EQ(UniqueCopyName(folder, "photo", ".jpg", counter, english),
            folder + "/photo (Copy_1).jpg");
  dir.WriteFile("photo (Copy_1).jpg", "x");
  dir.WriteFile("photo (Copy_2).jpg", "x");
  EXPECT_EQ(UniqueCopyName(folder, "photo", ".jpg", counter, english),
            folder + "/photo (Copy_3).jpg");
  EXPECT_EQ(counter, 3);
  EXPECT_EQ(UniqueCopyName(folder, "photo", ".jpg", counter, MessageTable::Get(Language::kGerman)),
            folder + "/photo (Kopie_3).jpg");
}

}  // namespace
}  // namespace tarnwick::testing

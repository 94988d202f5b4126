#include "media/mpeg_info.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/vb_error.h"
#include "media/audio_length.h"
#include "media_test_support.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using namespace tarnwick::testing;
using namespace std::string_literals;

TEST(MpegInfo, AgreesWithMutagenAndFfprobeOnEveryStream) {
  int compared = 0;
  for (const auto& [file, m] : Mp3Manifest()) {
    if (!file.ends_with(".mp3")) continue;
    SCOPED_TRACE(file);
    MPEGInfo info;
    ASSERT_TRUE(ReadMPEGInfo(Mp3Fixture(file), info));
    EXPECT_EQ(info.frequency, std::stoi(m.at("ffprobe.sample_rate")));
    EXPECT_EQ(info.channelMode == "Mono", m.at("ffprobe.channels") == "1");
    EXPECT_EQ(info.mpegVersion,
              "version " + m.at("mutagen.version") + " layer " + m.at("mutagen.layer"));
    // An Info header with frame and byte counts counts as variable too.
    if (m.at("mutagen.vbr") == "1") EXPECT_TRUE(info.hasVBR);
    if (!info.hasVBR) EXPECT_NEAR(info.bitrate * 1000, std::stoi(m.at("mutagen.bitrate")), 100);
    // Headers give the length without the encoder's delay that mutagen takes off.
    const double seconds = std::stod(m.at("ffprobe.duration"));
    EXPECT_NEAR(info.lengthFrames, seconds * 75, 10);
    EXPECT_EQ(info.length, 0);
    EXPECT_EQ(info.ID3v2Version, m.count("v2.version") && m.at("v2.version") != "1"
                                     ? std::stoi(m.at("v2.version"))
                                     : -1);
    EXPECT_EQ(info.ID3v1Version, file == "v1_track.mp3" ? 1 : file == "v1_plain.mp3" ? 0 : -1);
    EXPECT_EQ(info.fileSize,
              static_cast<std::int32_t>(std::filesystem::file_size(Mp3Fixture(file))));
    ++compared;
  }
  EXPECT_GE(compared, 15);
}

TEST(MpegInfo, ConstantBitRateSumsAndHeaderBits) {
  TempDir dir;
  // One second at 128 kbit/s: 16000 bytes from the frame on.
  auto path = dir.WriteFile("one.mp3", "junk" + MpegFrame(16000));
  MPEGInfo info;
  ASSERT_TRUE(ReadMPEGInfo(path, info));
  EXPECT_EQ(info.mpegVersion, "version 1 layer 3");
  EXPECT_EQ(info.bitrate, 128);
  EXPECT_EQ(info.frequency, 44100);
  EXPECT_EQ(info.channelMode, "Joint stereo");
  EXPECT_FALSE(info.hasCRC);  // protection bit set: no checksum
  EXPECT_TRUE(info.isOriginal);
  EXPECT_FALSE(info.isCopyrighted);
  EXPECT_EQ(info.length, 1);
  EXPECT_EQ(info.lengthFrames, 75);
  EXPECT_EQ(info.fileSize, 16004);
  // MPEG 2.5 layer 1, mono, CRC absent, copyrighted, emphasis, 8000 Hz.
  path = dir.WriteFile("v25.mp3", "\xFF\xE7\x18\xCD"s + std::string(100, '\0'));
  info = {};
  ASSERT_TRUE(ReadMPEGInfo(path, info));
  EXPECT_EQ(info.mpegVersion, "version 2.5 layer 1");
  EXPECT_EQ(info.frequency, 8000);
  EXPECT_EQ(info.bitrate, 32);
  EXPECT_EQ(info.channelMode, "Mono");
  EXPECT_FALSE(info.hasCRC);
  EXPECT_TRUE(info.isCopyrighted);
  EXPECT_TRUE(info.hasEmphasis);
}

std::string XingFrame(const std::string& magic, char flags, std::uint32_t frames,
                      std::uint32_t bytes) {
  std::string frame = MpegFrame();
  std::string header = magic + "\0\0\0"s + flags + Plain(frames) + Plain(bytes);
  frame.replace(4 + 32, header.size(), header);
  return frame;
}

TEST(MpegInfo, VariableBitRateHeaders) {
  TempDir dir;
  MPEGInfo info;
  // 383 frames of 1152 samples at 44100 Hz = 10.005 s; 160000 bytes.
  ASSERT_TRUE(ReadMPEGInfo(dir.WriteFile("x.mp3", XingFrame("Xing", 3, 383, 160000)), info));
  EXPECT_TRUE(info.hasVBR);
  EXPECT_EQ(info.length, 10);
  EXPECT_EQ(info.lengthFrames, 750);
  EXPECT_EQ(info.bitrate, 128);  // 160000 / 383 / 1152 / 125 * 44100 = 127.9
  // Only the frames flag: constant bit rate sums.
  info = {};
  ASSERT_TRUE(ReadMPEGInfo(dir.WriteFile("i.mp3", XingFrame("Info", 1, 383, 160000)), info));
  EXPECT_FALSE(info.hasVBR);
  EXPECT_EQ(info.bitrate, 128);
  // VBRI at offset 36 overrides.
  std::string vbri = MpegFrame();
  vbri.replace(36, 18, "VBRI\0\0\0\0\0\0"s + Plain(320000) + Plain(766));
  info = {};
  ASSERT_TRUE(ReadMPEGInfo(dir.WriteFile("v.mp3", vbri), info));
  EXPECT_TRUE(info.hasVBR);
  EXPECT_EQ(info.length, 20);
  // The reserved sampling rate with a VBR header fails in the division.
  std::string reserved = XingFrame("Xing", 3, 10, 100);
  reserved[2] = '\x9C';
  EXPECT_THROW(ReadMPEGInfo(dir.WriteFile("r.mp3", reserved), info), VbError);
}

TEST(MpegInfo, FilesWithoutAFrame) {
  TempDir dir;
  MPEGInfo info{.bitrate = 7, .fileSize = 3};
  EXPECT_FALSE(ReadMPEGInfo(dir.WriteFile("tiny.mp3", "\xFF\xFB\x90"s), info));
  EXPECT_EQ(info.bitrate, 7);
  EXPECT_EQ(info.fileSize, 3);
  std::string v1(128, '\0');
  v1.replace(0, 3, "TAG");
  v1[126] = 4;
  EXPECT_FALSE(ReadMPEGInfo(dir.WriteFile("tag.mp3", v1), info));
  EXPECT_EQ(info.ID3v1Version, 1);
  EXPECT_EQ(info.fileSize, 128);
  EXPECT_EQ(info.bitrate, 7);
  // The first false sync decides: a reserved version is no frame.
  EXPECT_FALSE(ReadMPEGInfo(dir.WriteFile("res.mp3", "\xFF\xEB\x90\x44"s + MpegFrame()), info));
  EXPECT_FALSE(ReadMPEGInfo(dir.path() / "missing.mp3", info));
  // A FIFO is no file: nothing waits for a writer.
  const auto fifo = dir.path() / "pipe.mp3";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_FALSE(ReadMPEGInfo(fifo, info));
  EXPECT_EQ(MediaInfoText(fifo), "00:00 min.");
}

TEST(AudioLength, FormatsAndMediaColumnText) {
  EXPECT_EQ(FormatSeconds(193), "03:13");
  EXPECT_EQ(FormatSeconds(6000), "100:00");
  EXPECT_EQ(FormatSeconds(0), "00:00");
  TempDir dir;
  // 125 s of MPEG 2 layer 3 at 8 kbit/s: 125,000 bytes.
  const auto mp3 = dir.WriteFile("long.mp3", "\xFF\xF3\x18\xC4"s + std::string(124996, '\0'));
  EXPECT_EQ(MCILengthMP3(mp3), 125000);
  EXPECT_EQ(MediaInfoText(mp3), "02:05 min.");
  EXPECT_EQ(MediaInfoText(dir.WriteFile("bad.MP3", "nothing")), "00:00 min.");
  EXPECT_NEAR(MCILengthWAV(Mp3Fixture("tone.wav")), 2.6, 0.001);
  EXPECT_EQ(MediaInfoText(Mp3Fixture("tone.wav")), "00:03 min.");
  EXPECT_EQ(MCILengthWAV(dir.WriteFile("bad.wav", "RIFF")), -1);
  EXPECT_EQ(MediaInfoText(dir.WriteFile("note.txt", "text")), "");
}

}  // namespace
}  // namespace tarnwick

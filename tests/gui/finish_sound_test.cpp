// The finish sound: it starts only for a readable file and an audio output.
#include "finish_sound.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <cstdint>
#include <string>

#include "gui/gui_test_support.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

// A short mono 8 kHz 8-bit WAV file.
std::string TinyWave() {
  const std::uint32_t samples = 800;
  std::string data = "RIFF";
  const auto u32 = [&](std::uint32_t v) {
    for (int i = 0; i < 4; ++i) data += static_cast<char>((v >> (8 * i)) & 0xFF);
  };
  const auto u16 = [&](std::uint16_t v) {
    data += static_cast<char>(v & 0xFF);
    data += static_cast<char>(v >> 8);
  };
  u32(36 + samples);
  data += "WAVEfmt ";
  u32(16);
  u16(1);
  u16(1);
  u32(8000);
  u32(8000);
  u16(1);
  u16(8);
  data += "data";
  u32(samples);
  data += std::string(samples, static_cast<char>(0x80));
  return data;
}

class FinishSoundTest : public GuiTest {};

TEST_F(FinishSoundTest, PlaysOnlyAReadableFileOnADeviceAndNeverFails) {
  TempDir dir;
  gui::FinishSound sound;
  EXPECT_FALSE(sound.Play(QString::fromStdString((dir.path() / "missing.wav").string())));
  EXPECT_FALSE(sound.Play(QString::fromStdString(dir.str())));  // a folder
  EXPECT_FALSE(sound.Play(QString()));

  const QString wave = QString::fromStdString(dir.WriteFile("ready.wav", TinyWave()).string());
  const bool device = !QMediaDevices::audioOutputs().isEmpty();
  EXPECT_EQ(sound.Play(wave), device);
  EXPECT_EQ(sound.Play(wave), device);  // again, over the one still playing
  // A file that is no sound at all is handed on and fails quietly.
  const QString noise = QString::fromStdString(dir.WriteFile("noise.wav", "not a wave").string());
  EXPECT_EQ(sound.Play(noise), device);
  WaitFor([] { return false; }, 200);  // the player's errors arrive without harm
}

}  // namespace
}  // namespace tarnwick::testing

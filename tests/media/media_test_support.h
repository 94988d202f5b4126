#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace tarnwick::testing {

inline std::filesystem::path Mp3Fixture(const std::string& name) {
  return std::filesystem::path(TW_FIXTURE_DIR) / "mp3" / name;
}

// manifest.tsv: what the real tools reported, by file and key.
using Manifest = std::map<std::string, std::map<std::string, std::string>>;

inline const Manifest& Mp3Manifest() {
  static const Manifest manifest = [] {
    Manifest m;
    std::ifstream in(Mp3Fixture("manifest.tsv"));
    std::string line;
    while (std::getline(in, line)) {
      if (line.empty() || line[0] == '#') continue;
      const auto a = line.find('\t');
      const auto b = line.find('\t', a + 1);
      m[line.substr(0, a)][line.substr(a + 1, b - a - 1)] = line.substr(b + 1);
    }
    return m;
  }();
  return manifest;
}

// Builders of tag bytes for hand-made edge cases.
inline std::string Syncsafe(std::uint32_t n) {
  return {static_cast<char>((n >> 21) & 0x7F), static_cast<char>((n >> 14) & 0x7F),
          static_cast<char>((n >> 7) & 0x7F), static_cast<char>(n & 0x7F)};
}
inline std::string Plain(std::uint32_t n) {
  return {static_cast<char>(n >> 24), static_cast<char>(n >> 16), static_cast<char>(n >> 8),
          static_cast<char>(n)};
}
inline std::string Frame3(const std::string& id, const std::string& data, char flags = 0) {
  return id + Plain(static_cast<std::uint32_t>(data.size())) + std::string(1, '\0') +
         std::string(1, flags) + data;
}
inline std::string Frame4(const std::string& id, const std::string& data, char flags = 0) {
  return id + Syncsafe(static_cast<std::uint32_t>(data.size())) + std::string(1, '\0') +
         std::string(1, flags) + data;
}
// A Latin-1 text frame's data.
inline std::string Text(const std::string& value) { return std::string(1, '\0') + value; }
inline std::string Tag(int version, const std::string& body, char flags = 0) {
  return std::string("ID3") + static_cast<char>(version) + '\0' + flags +
         Syncsafe(static_cast<std::uint32_t>(body.size())) + body;
}

// An MPEG-1 layer 3 frame header (128 kbit/s, 44.1 kHz, joint stereo,
// original) followed by zeros up to `size` bytes.
inline std::string MpegFrame(std::size_t size = 417) {
  std::string frame = "\xFF\xFB\x90\x44";
  frame.resize(size, '\0');
  return frame;
}

}  // namespace tarnwick::testing

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tarnwick {

// The playing length of an MP3 file in milliseconds, from its frame headers;
// 0 when it cannot be measured.
std::int64_t MCILengthMP3(const std::filesystem::path& path);

// The playing length of a WAV file in seconds, from its RIFF header (format
// and data chunks); -1 when the file cannot be read as one.
double MCILengthWAV(const std::filesystem::path& path);

// The text of the list's media column: "mm:ss min." for MP3 and WAV files,
// "W x H Pixel" for pictures, empty for anything else.
std::string MediaInfoText(const std::filesystem::path& path);

}  // namespace tarnwick

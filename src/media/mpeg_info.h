#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "media/media_file.h"

namespace tarnwick {

// The technical facts of an MP3 file, from its first frame header and any
// Xing, Info or VBRI header.
struct MPEGInfo {
  std::string mpegVersion;  // "version 1 layer 3"
  bool hasCRC = false;
  std::int32_t bitrate = 0;    // kbit/s
  std::int32_t frequency = 0;  // Hz
  bool hasVBR = false;
  std::string channelMode;
  bool isCopyrighted = false;
  bool isOriginal = false;
  bool hasEmphasis = false;
  std::int32_t length = 0;        // whole seconds
  std::int32_t lengthFrames = 0;  // units of 1/75 second
  std::int32_t ID3v1Version = -1;
  std::int32_t ID3v2Version = -1;
  std::int32_t fileSize = 0;
};

// True when a first frame header was found. The tag facts and `fileSize` are
// set even without one, unless the file cannot be opened or has under 4
// bytes; numeric fields no frame sets stay as they were. A variable bit rate
// header with the reserved sampling rate raises VbError 11.
bool ReadMPEGInfo(const std::filesystem::path& path, MPEGInfo& info);
// The same from a file already open, for readers that take several things
// from one file.
bool ReadMPEGInfo(const MediaFile& file, MPEGInfo& info);

// The playing time of the stream in milliseconds as the same headers give it;
// 0 when no frame is found or the file cannot be read.
std::int64_t MpegLengthMilliseconds(const std::filesystem::path& path);

// "mm:ss": minutes (not limited to two digits) and seconds, each at least two
// digits.
std::string FormatSeconds(std::int64_t seconds);

}  // namespace tarnwick

#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "media/id3_tags.h"
#include "media/media_file.h"

namespace tarnwick {

// True when a version 2 tag was found: the chain from the file's start
// (following `SEEK` frames), or else a tag at the end found through "3DI".
bool ReadID3v2(const std::filesystem::path& path, ID3v2Tag& tag);
// The same from a file already open.
bool ReadID3v2(const MediaFile& file, ID3v2Tag& tag);

// Parses the tag at `position` into `tag`. With `raw_frames` the frames are
// collected as bytes there instead of decoded. Returns the next tag's
// position (from a `SEEK` frame) or -1.
std::int64_t ParseID3v2Tag(const MediaFile& file, std::int64_t position, ID3v2Tag& tag,
                           std::vector<RawFrame>* raw_frames);

// Parses the chain of tags from the file's start; true when one was there.
bool ParseID3v2Chain(const MediaFile& file, ID3v2Tag& tag, std::vector<RawFrame>* raw_frames);

}  // namespace tarnwick

#pragma once

#include <filesystem>

#include "media/id3_tags.h"
#include "media/media_file.h"

namespace tarnwick {

// True when the last 128 bytes hold a version 1 tag; `tag` is then blanked
// and filled, else left as it was.
bool ReadID3v1(const std::filesystem::path& path, ID3v1Tag& tag);
// The same from a file already open.
bool ReadID3v1(const MediaFile& file, ID3v1Tag& tag);
// Overwrites the tag at the end, or appends one; always the layout with a
// track byte. True when the file could be opened. A character above 255
// raises VbError 6 before the file is touched.
bool WriteID3v1(const std::filesystem::path& path, const ID3v1Tag& tag, bool clear_read_only);
// Cuts a tag from the end. True when the file could be opened and has at
// least 128 bytes, tag or no tag.
bool RemoveID3v1(const std::filesystem::path& path, bool clear_read_only);

// The 128 bytes WriteID3v1 writes for `tag`.
std::vector<std::uint8_t> ID3v1Block(const ID3v1Tag& tag);

}  // namespace tarnwick

#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "media/id3_tags.h"

namespace tarnwick {

// `targetVersion` of WriteID3v2: 0 writes version 2.3, 1 version 2.4.
inline constexpr int kID3v23 = 0;
inline constexpr int kID3v24 = 1;

// The size of one frame as the writer declares it; 0 for a value that is
// empty after trimming; 10 more `with_header`.
std::uint32_t FrameSize(std::string_view id, std::string_view value, bool unicode,
                        bool with_header);

// The total size of a tag that must hold `needed` bytes where `old_total`
// bytes stand: the old size when it fits, else room to spare in steps of 2048.
std::int64_t NewTagTotal(std::int64_t needed, std::int64_t old_total);

// Builds the tag WriteID3v2 would write: frames of the record in the order of
// the frame list, then the collected frames of the old tag no record value
// replaces, then zero padding up to the returned size. `old_total` is the
// size of the tag being replaced. Raises VbError 6 for a character above 255
// where one byte must hold it.
std::vector<std::uint8_t> BuildID3v2Tag(const ID3v2Tag& tag, int target_version,
                                        const std::vector<RawFrame>& other_frames,
                                        std::int64_t old_total, bool unicode);

// Writes `tag` as the file's version 2 tag. Unless `discard_other_frames`,
// frames of the old tag that the record does not hold are kept. A tag that
// fits where the old one stood is written in place; a larger one goes into a
// new file beside the old, which then takes its place. False when the file
// cannot be opened or replaced.
bool WriteID3v2(const std::filesystem::path& path, const ID3v2Tag& tag, int target_version,
                bool discard_other_frames, bool unicode, bool clear_read_only);

// Removes the version 2 tag at the file's start, writing the rest into a new
// file that then replaces the old one. True once the file could be opened and,
// when it had a tag, the new file took its place.
bool RemoveID3v2(const std::filesystem::path& path, bool clear_read_only);

}  // namespace tarnwick

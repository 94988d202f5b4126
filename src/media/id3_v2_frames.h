#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "media/id3_tags.h"

namespace tarnwick {

// A 3-letter id of version 2.2 as its 4-letter twin; other ids stand.
std::string MapFrameId(std::string_view id);

// The text a frame's data gives for the record, by its (mapped) id; empty for
// frames that carry no text the record keeps.
std::string DecodeFrameValue(std::span<const std::uint8_t> data, std::string_view id);

// Adapts a frame just collected for a rewrite (picture format to MIME type,
// link ids to 4 letters, `TDOR` cut to 4 bytes), then maps its id.
void ConvertRawFrame(RawFrame& frame);

}  // namespace tarnwick

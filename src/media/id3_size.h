#pragma once

#include <cstdint>
#include <span>

#include "media/media_file.h"

namespace tarnwick {

// A 32-bit size of 4 bytes. Syncsafe (four 7-bit groups) is honoured only
// when no byte has bit 7 set; otherwise, and when not asked, the bytes are a
// plain big-endian number, which is 0 when its first byte is above 0x7F.
std::uint32_t ReadSize(std::span<const std::uint8_t> bytes, bool syncsafe);
// The inverse: 4 bytes, syncsafe or plain.
void WriteSize(std::uint32_t value, bool syncsafe, std::uint8_t* out);

// The size of the version 2 tag at `position`: 0 without "ID3"; the body alone
// with `body_only`, else with the 10 header bytes and a version 4 footer. A
// size beyond the file gives the file's size for the body, or else the offset
// of the first four zero bytes behind the header.
std::int64_t ID3v2TagSize(const MediaFile& file, std::int64_t position, bool body_only);

}  // namespace tarnwick

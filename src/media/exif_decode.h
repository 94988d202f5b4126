#pragma once

#include <cstdint>

#include "media/exif_bytes.h"
#include "media/exif_entry.h"

namespace tarnwick {

// Decodes the 12-byte directory entry at `position` (tag, format, count,
// value or offset) of the TIFF block that starts at `base`: fills every field
// of `entry` but the name's translation. Raises VbError for what the parse
// treats as a failure (a number outside the bytes, an unknown format, a
// division by zero, an overflow).
void DecodeExifEntry(const ExifBytes& bytes, std::int64_t base, std::int64_t position,
                     ExifEntry& entry);

}  // namespace tarnwick

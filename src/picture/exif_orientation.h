#pragma once

#include <cstdint>
#include <vector>

namespace tarnwick {

// Sets the Orientation tag (0x0112) of IFD0 in an EXIF block (the APP1
// payload from "Exif\0\0" on) to 1, "top left": for a picture whose pixels
// were turned or flipped already, so viewers do not turn it once more.
// A block without the tag, or one that does not parse, is left as it is.
// True when the tag was set.
bool ResetExifOrientation(std::vector<std::uint8_t>& exif);

}  // namespace tarnwick

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tarnwick {

// The size in pixels that a picture's header states, for {{pic_pixelwidth}},
// {{pic_pixelheight}} and the picture branch of {{mediainfo}}.
struct PictureSize {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
};

// Reads JPEG (the first frame header), PNG (IHDR), GIF (logical screen),
// BMP (core and info headers; a negative height counts as its absolute value)
// and TIFF (width and length of the first directory, either byte order). The
// kind is told by the file's first bytes, not by its name. Nothing for any
// other file, a missing or unreadable one, or a damaged header; never fails.
std::optional<PictureSize> ReadPictureSize(const std::filesystem::path& path);

// The same for a file held in memory (used by the fuzz target).
std::optional<PictureSize> ParsePictureSize(std::string_view bytes);

}  // namespace tarnwick

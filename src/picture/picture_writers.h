#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "picture/image_buffer.h"

namespace tarnwick {

// The compressions the resize job offers for TIFF (`cboCompressionTIF`), by
// their codes: 2 LZW, 3 CCITT group 3, 4 CCITT group 4, 5 run-length
// (PackBits), 6 none. The CCITT codes and run-length write a one-bit
// picture (each pixel black or white by its grey at half brightness);
// LZW and none keep the colours.
enum class TiffCompression { kLzw = 2, kCcitt3 = 3, kCcitt4 = 4, kRle = 5, kNone = 6 };

// `cboCompressionTIF`'s text to its code, without regard to case: "LZW",
// "CCITT3", "CCITT4", "RLE", or the words for none of the language; any
// other text is LZW.
TiffCompression TiffCompressionOf(const std::string& text, const std::string& none_words);

// The picture as a file of each format, in memory. An empty result means
// the library refused; `error` then says why.
std::vector<std::uint8_t> EncodeJpegTurbo(const cImage& image, int quality, std::string& error);
std::vector<std::uint8_t> EncodePng(const cImage& image, std::string& error);
std::vector<std::uint8_t> EncodeTiff(const cImage& image, TiffCompression compression,
                                     std::string& error);

}  // namespace tarnwick

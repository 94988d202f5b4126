#pragma once

#include <tiffio.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tarnwick {

// A TIFF file in memory for libtiff: read from `bytes`, or (with `grows`)
// written into them. libtiff's complaints go to `complaint` instead of
// standard error.
struct TiffMemory {
  std::vector<std::uint8_t> bytes;
  std::span<const std::uint8_t> input;  // what a reading file reads
  toff_t at = 0;
  std::string complaint;
};

struct TiffCloser {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffHandle = std::unique_ptr<TIFF, TiffCloser>;

// Opens `memory` with `mode` ("rm" to read `input`, "w" to write `bytes`);
// null when libtiff refuses, with `memory.complaint` saying why.
TiffHandle OpenTiffMemory(TiffMemory& memory, const char* mode);

}  // namespace tarnwick

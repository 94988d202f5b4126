// GIF through giflib: the first frame on the logical screen, transparent
// pixels and the rest of the screen white.
#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "picture/picture_file.h"

namespace tarnwick {
namespace {

struct MemoryReader {
  std::span<const std::uint8_t> bytes;
  std::size_t at = 0;
};

int ReadFromMemory(GifFileType* gif, GifByteType* buffer, int length) {
  auto* reader = static_cast<MemoryReader*>(gif->UserData);
  const std::size_t count =
      std::min<std::size_t>(static_cast<std::size_t>(length), reader->bytes.size() - reader->at);
  std::memcpy(buffer, reader->bytes.data() + reader->at, count);
  reader->at += count;
  return static_cast<int>(count);
}

// giflib's words for an error; it has none for some numbers.
std::string ErrorWords(int error) {
  const char* words = GifErrorString(error);
  return words != nullptr ? words : "error " + std::to_string(error);
}

struct GifCloser {
  void operator()(GifFileType* gif) const {
    int error = 0;
    DGifCloseFile(gif, &error);
  }
};

int TransparentIndex(const SavedImage& frame) {
  GraphicsControlBlock control;
  for (int i = 0; i < frame.ExtensionBlockCount; ++i) {
    const ExtensionBlock& block = frame.ExtensionBlocks[i];
    if (block.Function == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block.ByteCount, block.Bytes, &control) == GIF_OK) {
      return control.TransparentColor;
    }
  }
  return NO_TRANSPARENT_COLOR;
}

}  // namespace

LoadedPicture DecodeGif(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  LoadedPicture result;
  MemoryReader reader{bytes};
  int error = 0;
  std::unique_ptr<GifFileType, GifCloser> gif(DGifOpen(&reader, ReadFromMemory, &error));
  if (!gif) {
    result.error = std::string("the GIF data cannot be read (") + ErrorWords(error) + ")";
    return result;
  }
  result.error = CheckPictureSize(gif->SWidth, gif->SHeight, max_pixels);
  if (!result.ok()) return result;
  if (DGifSlurp(gif.get()) != GIF_OK && gif->ImageCount == 0) {
    result.error = std::string("the GIF data are damaged (") + ErrorWords(gif->Error) + ")";
    return result;
  }
  if (gif->ImageCount < 1) {
    result.error = "the GIF holds no picture";
    return result;
  }
  const SavedImage& frame = gif->SavedImages[0];
  const ColorMapObject* colours =
      frame.ImageDesc.ColorMap != nullptr ? frame.ImageDesc.ColorMap : gif->SColorMap;
  if (colours == nullptr || frame.RasterBits == nullptr) {
    result.error = "the GIF has no colours for its picture";
    return result;
  }
  const int transparent = TransparentIndex(frame);
  result.picture = RgbPicture(gif->SWidth, gif->SHeight);
  std::fill(result.picture.rgb.begin(), result.picture.rgb.end(), 255);
  const GifImageDesc& place = frame.ImageDesc;
  for (int y = 0; y < place.Height; ++y) {
    const int screen_y = place.Top + y;
    if (screen_y < 0 || screen_y >= gif->SHeight) continue;
    for (int x = 0; x < place.Width; ++x) {
      const int screen_x = place.Left + x;
      if (screen_x < 0 || screen_x >= gif->SWidth) continue;
      const int index = frame.RasterBits[static_cast<std::size_t>(y) * place.Width + x];
      if (index == transparent || index >= colours->ColorCount) continue;
      const GifColorType& c = colours->Colors[index];
      std::uint8_t* p = result.picture.Pixel(screen_x, screen_y);
      p[0] = c.Red;
      p[1] = c.Green;
      p[2] = c.Blue;
    }
  }
  return result;
}

}  // namespace tarnwick

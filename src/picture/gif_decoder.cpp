// GIF through giflib: the first frame on the logical screen, transparent
// pixels and the rest of the screen white.
#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

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

// The first frame as giflib reads it: where it stands, its colours and its
// pixels (one index each, rows in picture order), and its transparent index.
struct FirstFrame {
  int left = 0, top = 0, width = 0, height = 0;
  const ColorMapObject* colours = nullptr;
  std::vector<GifPixelType> pixels;
  int transparent = NO_TRANSPARENT_COLOR;
};

// Reads records up to and through the first image; an error text, or empty.
std::string ReadFirstFrame(GifFileType* gif, std::int64_t max_pixels, FirstFrame& frame) {
  for (;;) {
    GifRecordType record;
    if (DGifGetRecordType(gif, &record) != GIF_OK)
      return "data are damaged (" + ErrorWords(gif->Error) + ")";
    if (record == TERMINATE_RECORD_TYPE) return "holds no picture";
    if (record == EXTENSION_RECORD_TYPE) {
      int code = 0;
      GifByteType* block = nullptr;
      if (DGifGetExtension(gif, &code, &block) != GIF_OK)
        return "data are damaged (" + ErrorWords(gif->Error) + ")";
      GraphicsControlBlock control;
      if (code == GRAPHICS_EXT_FUNC_CODE && block != nullptr &&
          DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
        frame.transparent = control.TransparentColor;
      }
      while (block != nullptr) {
        if (DGifGetExtensionNext(gif, &block) != GIF_OK)
          return "data are damaged (" + ErrorWords(gif->Error) + ")";
      }
      continue;
    }
    if (record != IMAGE_DESC_RECORD_TYPE) continue;
    if (DGifGetImageDesc(gif) != GIF_OK) return "data are damaged (" + ErrorWords(gif->Error) + ")";
    const GifImageDesc& place = gif->Image;
    if (const std::string size = CheckPictureSize(place.Width, place.Height, max_pixels);
        !size.empty()) {
      return size.substr(std::string("the picture ").size());
    }
    frame = {place.Left,
             place.Top,
             place.Width,
             place.Height,
             place.ColorMap != nullptr ? place.ColorMap : gif->SColorMap,
             {},
             frame.transparent};
    frame.pixels.assign(static_cast<std::size_t>(place.Width) * place.Height, 0);
    // Interlaced pictures come in four passes of rows.
    static constexpr int kStart[] = {0, 4, 2, 1};
    static constexpr int kStep[] = {8, 8, 4, 2};
    const int passes = place.Interlace ? 4 : 1;
    for (int pass = 0; pass < passes; ++pass) {
      for (int y = place.Interlace ? kStart[pass] : 0; y < place.Height;
           y += place.Interlace ? kStep[pass] : 1) {
        if (DGifGetLine(gif, frame.pixels.data() + static_cast<std::size_t>(y) * place.Width,
                        place.Width) != GIF_OK) {
          return "data are damaged (" + ErrorWords(gif->Error) + ")";
        }
      }
    }
    return {};
  }
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
  FirstFrame frame;
  if (const std::string why = ReadFirstFrame(gif.get(), max_pixels, frame); !why.empty()) {
    result.error = "the GIF " + why;
    return result;
  }
  if (frame.colours == nullptr) {
    result.error = "the GIF has no colours for its picture";
    return result;
  }
  result.picture = RgbPicture(gif->SWidth, gif->SHeight);
  std::fill(result.picture.rgb.begin(), result.picture.rgb.end(), 255);
  for (int y = 0; y < frame.height; ++y) {
    const int screen_y = frame.top + y;
    if (screen_y < 0 || screen_y >= gif->SHeight) continue;
    for (int x = 0; x < frame.width; ++x) {
      const int screen_x = frame.left + x;
      if (screen_x < 0 || screen_x >= gif->SWidth) continue;
      const int index = frame.pixels[static_cast<std::size_t>(y) * frame.width + x];
      if (index == frame.transparent || index >= frame.colours->ColorCount) continue;
      const GifColorType& c = frame.colours->Colors[index];
      std::uint8_t* p = result.picture.Pixel(screen_x, screen_y);
      p[0] = c.Red;
      p[1] = c.Green;
      p[2] = c.Blue;
    }
  }
  return result;
}

}  // namespace tarnwick

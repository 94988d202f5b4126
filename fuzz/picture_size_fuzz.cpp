// Arbitrary bytes as a picture: the size readers of JPEG, PNG, GIF, BMP and
// TIFF headers must not crash or hang, and a size they report is not zero.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "placeholders/picture_size.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto found = tarnwick::ParsePictureSize(bytes)) {
    (void)found->width;
  }
  return 0;
}

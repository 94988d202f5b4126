// Random pictures and settings through the JPEG encoder: whatever it takes it
// must write a file that libjpeg-turbo decodes without complaint, at the
// size it was given.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/vb_error.h"
#include "picture/jpeg_decode.h"
#include "picture/jpeg_encoder.h"

namespace {

// Whether libjpeg can upsample these factors (it needs whole ratios).
bool WholeRatios(const int (&f)[6], bool grey) {
  if (grey) return true;
  int h_max = 0, v_max = 0;
  for (int c = 0; c < 3; ++c) {
    h_max = std::max(h_max, f[c * 2]);
    v_max = std::max(v_max, f[c * 2 + 1]);
  }
  for (int c = 0; c < 3; ++c) {
    if (h_max % f[c * 2] != 0 || v_max % f[c * 2 + 1] != 0) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 10) return 0;
  const int width = 1 + data[0] % 80;
  const int height = 1 + data[1] % 80;
  const int quality = data[2];  // 0 and over 100 are ignored
  const bool grey = (data[3] & 0x80) != 0;
  int factors[6];
  for (int i = 0; i < 6; ++i) factors[i] = 1 + (data[4 + i] % 4);
  data += 10;
  size -= 10;

  tarnwick::RgbPicture picture(width, height);
  for (std::size_t i = 0; i < picture.rgb.size(); ++i) {
    picture.rgb[i] = size == 0 ? 0 : data[i % size];
  }
  tarnwick::cJPEG encoder;
  encoder.SetQuality(quality);
  if (grey) {
    encoder.SetSamplingFrequencies(factors[0], factors[1], 0, 0, 0, 0);
  } else {
    encoder.SetSamplingFrequencies(factors[0], factors[1], factors[2], factors[3], factors[4],
                                   factors[5]);
  }
  encoder.SetComment(std::string(reinterpret_cast<const char*>(data), size < 300 ? size : 300));
  if (encoder.SampleHDC(picture) != 0) std::abort();
  const std::vector<std::uint8_t> bytes = encoder.Encode();
  if (!WholeRatios(factors, grey)) return 0;
  const auto decoded = tarnwick::testing::DecodeJpeg(bytes);
  if (!decoded || !decoded->warning.empty()) std::abort();
  if (decoded->picture.width != width || decoded->picture.height != height) std::abort();
  if (decoded->components != (grey ? 1 : 3)) std::abort();
  return 0;
}

// cJPEG: settings, quantisation tables, and the transform of SampleHDC.
#include "picture/jpeg_encoder.h"

#include <algorithm>
#include <cmath>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "picture/jpeg_tables.h"

namespace tarnwick {
namespace {

[[noreturn]] void Raise(const char* text) { throw VbError(1, text); }

bool ValidFactor(int factor) { return factor >= 1 && factor <= 4; }

int CeilDiv(std::int64_t a, std::int64_t b) { return static_cast<int>((a + b - 1) / b); }

// The colour matrix row of a component; Y is moved to be centred on 0.
float ColourOf(int component, const std::uint8_t* rgb) {
  const double r = rgb[0], g = rgb[1], b = rgb[2];
  switch (component) {
    case 0:
      return static_cast<float>(0.299 * r + 0.587 * g + 0.114 * b - 128);
    case 1:
      return static_cast<float>(-0.16874 * r - 0.33126 * g + 0.5 * b);
    default:
      return static_cast<float>(0.5 * r - 0.41869 * g - 0.08131 * b);
  }
}

// The scaled eight-point DCT of Arai, Agui and Nakajima on eight values
// `stride` apart, in place. Its outputs are scaled by the factors that the
// quantisation multipliers take out again.
void ScaledDct8(float* d, int stride) {
  const float t0 = d[0] + d[7 * stride];
  const float t7 = d[0] - d[7 * stride];
  const float t1 = d[stride] + d[6 * stride];
  const float t6 = d[stride] - d[6 * stride];
  const float t2 = d[2 * stride] + d[5 * stride];
  const float t5 = d[2 * stride] - d[5 * stride];
  const float t3 = d[3 * stride] + d[4 * stride];
  const float t4 = d[3 * stride] - d[4 * stride];

  // Even part.
  const float e10 = t0 + t3;
  const float e13 = t0 - t3;
  const float e11 = t1 + t2;
  const float e12 = t1 - t2;
  d[0] = e10 + e11;
  d[4 * stride] = e10 - e11;
  const float z1 = (e12 + e13) * 0.707106781F;
  d[2 * stride] = e13 + z1;
  d[6 * stride] = e13 - z1;

  // Odd part.
  const float o10 = t4 + t5;
  const float o11 = t5 + t6;
  const float o12 = t6 + t7;
  const float z5 = (o10 - o12) * 0.382683433F;
  const float z2 = 0.541196100F * o10 + z5;
  const float z4 = 1.306562965F * o12 + z5;
  const float z3 = o11 * 0.707106781F;
  const float z11 = t7 + z3;
  const float z13 = t7 - z3;
  d[5 * stride] = z13 + z2;
  d[3 * stride] = z13 - z2;
  d[stride] = z11 + z4;
  d[7 * stride] = z11 - z4;
}

}  // namespace

cJPEG::cJPEG() {
  SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
  SetQuality(75);
}

void cJPEG::SetQuality(int quality) {
  if (quality < 1 || quality > 100) return;
  quality_ = quality;
  BuildQuantTables();
}

void cJPEG::BuildQuantTables() {
  const double scale =
      quality_ >= 50 ? 200.0 - 2.0 * quality_ : vb::RoundHalfEven(5000.0 / quality_);
  for (int slot = 0; slot < 2; ++slot) {
    const std::array<std::uint8_t, 64>& base =
        slot == 0 ? jpeg::kLuminanceBase : jpeg::kChrominanceBase;
    QuantTable& table = tables_[slot];
    for (int z = 0; z < 64; ++z) {
      const double q = vb::RoundHalfEven((base[z] * scale + 50.0) / 100.0);
      table.quantisers[z] = static_cast<std::uint16_t>(std::clamp(q, 1.0, 255.0));
    }
    for (int i = 0; i < 8; ++i) {
      for (int j = 0; j < 8; ++j) {
        const int z = jpeg::kZigZag[i * 8 + j];
        const std::uint16_t q = table.quantisers[z];
        if (q < 1 || q > 255) Raise("Bad Quantization Table");
        table.multipliers[z] = static_cast<float>(jpeg::kDctScale[i] * jpeg::kDctScale[j] / q);
      }
    }
  }
}

void cJPEG::SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3) {
  if (!ValidFactor(h1) || !ValidFactor(v1)) Raise("Invalid Sampling Value");
  if (h2 == 0 && v2 == 0 && h3 == 0 && v3 == 0) {
    component_count_ = 1;
    sampling_ = {1, 1, 0, 0, 0, 0};
  } else {
    for (int factor : {h2, v2, h3, v3}) {
      if (!ValidFactor(factor)) Raise("Invalid Sampling Value");
    }
    component_count_ = 3;
    sampling_ = {h1, v1, h2, v2, h3, v3};
  }
  h_max_ = 0;
  v_max_ = 0;
  for (int c = 0; c < component_count_; ++c) {
    h_max_ = std::max(h_max_, sampling_[c * 2]);
    v_max_ = std::max(v_max_, sampling_[c * 2 + 1]);
  }
}

void cJPEG::SetComment(std::string comment) {
  if (comment.size() > 65533) Raise("Illegal Comment Length");
  comment_ = std::move(comment);
}

void cJPEG::SetExifBlock(std::vector<std::uint8_t> block) {
  if (block.size() > 65533)
    throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
  exif_ = std::move(block);
}

int cJPEG::SampleHDC(const RgbPicture& source) {
  return SampleHDC(source, source.width, source.height, {0, 0, source.width, source.height});
}

int cJPEG::SampleHDC(const RgbPicture& source, int width, int height, const PictureRegion& region) {
  const bool inside = region.x >= 0 && region.y >= 0 && region.width > 0 && region.height > 0 &&
                      region.x + region.width <= source.width &&
                      region.y + region.height <= source.height;
  if (!inside || width <= 0 || height <= 0 || width > 65535 || height > 65535) return 1;
  if (static_cast<std::int64_t>(width) * height > kMaxPixels) return 1;
  width_ = width;
  height_ = height;
  sampled_tables_ = {tables_[0], tables_[1]};
  components_.assign(static_cast<std::size_t>(component_count_), Component());
  // The picture at the size of the last component that needed scaling; the
  // next component of that size takes it again (Cb and Cr usually).
  RgbPicture scaled;
  for (int c = 0; c < component_count_; ++c) {
    Component& component = components_[static_cast<std::size_t>(c)];
    component.id = c + 1;
    component.h = sampling_[c * 2];
    component.v = sampling_[c * 2 + 1];
    component.table = c == 0 ? 0 : 1;
    component.width = CeilDiv(static_cast<std::int64_t>(width) * component.h, h_max_);
    component.height = CeilDiv(static_cast<std::int64_t>(height) * component.v, v_max_);
    component.blocks_x = CeilDiv(component.width, 8);
    component.blocks_y = CeilDiv(component.height, 8);
    if (region.width == component.width && region.height == component.height) {
      SampleComponent(component, source, region.x, region.y);
      continue;
    }
    if (scaled.width != component.width || scaled.height != component.height) {
      scaled = ScaleByAreaAveraging(source, region, component.width, component.height);
    }
    SampleComponent(component, scaled, 0, 0);
  }
  return 0;
}

void cJPEG::SampleComponent(Component& component, const RgbPicture& plane, int left,
                            int top) const {
  const QuantTable& table = sampled_tables_[static_cast<std::size_t>(component.table)];
  const int matrix_row = component.id - 1;
  component.data.assign(static_cast<std::size_t>(component.blocks_x) * component.blocks_y * 64, 0);
  float block[64];
  std::int16_t* out = component.data.data();
  for (int by = 0; by < component.blocks_y; ++by) {
    for (int bx = 0; bx < component.blocks_x; ++bx, out += 64) {
      // Past the picture's edge, its last column and row repeat.
      for (int y = 0; y < 8; ++y) {
        const int py = top + std::min(by * 8 + y, component.height - 1);
        for (int x = 0; x < 8; ++x) {
          const int px = left + std::min(bx * 8 + x, component.width - 1);
          block[y * 8 + x] = ColourOf(matrix_row, plane.Pixel(px, py));
        }
      }
      for (int column = 0; column < 8; ++column) ScaledDct8(block + column, 8);
      for (int row = 0; row < 8; ++row) ScaledDct8(block + row * 8, 1);
      for (int i = 0; i < 64; ++i) {
        const int z = jpeg::kZigZag[i];
        const float value = std::nearbyint(block[i] * table.multipliers[z]);
        out[z] = static_cast<std::int16_t>(std::clamp(value, -32768.0F, 32767.0F));
      }
    }
  }
}

}  // namespace tarnwick

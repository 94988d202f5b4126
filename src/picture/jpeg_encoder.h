#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "picture/rgb_picture.h"

namespace tarnwick {

// `cJPEG`: Tarnwick's own baseline JPEG encoder. It takes a picture, turns it
// at once into quantised coefficients (colour matrix, floating-point scaled
// DCT of Arai, Agui and Nakajima, quantisers rounded ties-to-even), and
// writes a JFIF file with Huffman tables made for that picture.
//
// Order of use: settings (quality, sampling, comment), SampleHDC, SaveFile.
// Settings changed after SampleHDC do not reach the coefficients it made.
// Errors are raised as VbError 1 with the texts "Invalid Sampling Value",
// "Illegal Comment Length", "Bad Quantization Table", "Bad Huffman Table" and
// "Illegal precission in Quantization Table".
class cJPEG {
 public:
  // Sampling 2:2, 1:1, 1:1 and quality 75.
  cJPEG();

  int Quality() const { return quality_; }
  // A value outside 1 to 100 is ignored; otherwise both quantisation tables
  // are made anew.
  void SetQuality(int quality);

  // Horizontal and vertical sampling factors of the three components, each
  // 1 to 4. H2, V2, H3 and V3 all 0 make a greyscale picture of one
  // component with the factors 1 and 1, whatever H1 and V1 say.
  void SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3);

  const std::string& Comment() const { return comment_; }
  // UTF-8 text for a COM segment. A segment holds at most 65533 bytes; a
  // longer text is refused ("Illegal Comment Length") rather than written
  // into a segment whose length would wrap.
  void SetComment(std::string comment);

  // An EXIF block (the APP1 payload from "Exif\0\0" on, without marker and
  // length), written right after APP0 so a photo keeps its metadata; empty
  // for none. A block over 65533 bytes does not fit a segment: VbError 5.
  void SetExifBlock(std::vector<std::uint8_t> block);

  // `SampleHDC`: `region` of `source` scaled to `width` by `height` becomes
  // the picture: each component is scaled to its own size by area averaging
  // and its edge repeated out to whole blocks. Result 0; 1 when the region
  // does not lie inside the source, a size is not positive, or the picture
  // is larger than a JPEG can be (65535 pixels a side) or than kMaxPixels.
  int SampleHDC(const RgbPicture& source, int width, int height, const PictureRegion& region);
  // The whole picture at its own size.
  int SampleHDC(const RgbPicture& source);

  // The JPEG file of the picture sampled last, in memory.
  std::vector<std::uint8_t> Encode() const;

  // `SaveFile`: 0 written, 1 empty path, 2 a file of that name exists (it is
  // never overwritten; the file is created exclusively). Other failures of
  // the disk raise VbError with the system's reason (61 disk full, 70
  // permission denied, 76 path not found, 75 otherwise); a file left half
  // written is removed.
  int SaveFile(const std::string& path) const;

  // The largest picture SampleHDC takes: 100 million pixels (about 1.2 GB of
  // coefficients and planes at the worst).
  static constexpr std::int64_t kMaxPixels = 100'000'000;

  // For tests: the quantisers of slot 0 or 1, in zig-zag order.
  const std::array<std::uint16_t, 64>& Quantisers(int slot) const {
    return tables_[slot].quantisers;
  }

 private:
  struct QuantTable {
    std::array<std::uint16_t, 64> quantisers{};
    std::array<float, 64> multipliers{};
  };
  struct Component {
    int id = 0;  // Ci: index + 1
    int h = 1;
    int v = 1;
    int table = 0;  // Tqi
    int width = 0;  // in pixels, before alignment
    int height = 0;
    int blocks_x = 0;
    int blocks_y = 0;
    std::vector<std::int16_t> data;  // 64 a block, zig-zag order, raster order of blocks
  };

  void BuildQuantTables();
  // Transforms and quantises one component into its `data`, from `plane`
  // (already at the component's size) starting at `left`, `top`.
  void SampleComponent(Component& component, const RgbPicture& plane, int left, int top) const;

  int quality_ = 75;
  std::string comment_;
  std::vector<std::uint8_t> exif_;
  std::array<QuantTable, 4> tables_{};
  // The tables the coefficients held were quantised with, for SaveFile's
  // DQT: a quality set after SampleHDC must not mislabel them.
  std::array<QuantTable, 2> sampled_tables_{};
  int component_count_ = 3;
  std::array<int, 6> sampling_{2, 2, 1, 1, 1, 1};
  int h_max_ = 2;
  int v_max_ = 2;
  int width_ = 0;
  int height_ = 0;
  std::vector<Component> components_;
};

}  // namespace tarnwick

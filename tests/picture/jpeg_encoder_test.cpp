// The JPEG encoder: its tables, its file layout and, through libjpeg-turbo,
// whether what it writes is the picture it was given.
#include "picture/jpeg_encoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>

#include "base/vb_error.h"
#include "picture/jpeg_decode.h"
#include "picture/jpeg_huffman.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::DecodeJpeg;
using ::testing::HasSubstr;
using testing::TempDir;

// A picture with gradients, a hard edge and pure colours, so every part of
// the transform and every table is exercised.
RgbPicture TestPicture(int width, int height) {
  RgbPicture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::uint8_t* p = picture.Pixel(x, y);
      p[0] = static_cast<std::uint8_t>(255 * x / std::max(1, width - 1));
      p[1] = static_cast<std::uint8_t>(255 * y / std::max(1, height - 1));
      p[2] = x < width / 2 ? 40 : 220;
    }
  }
  return picture;
}

// Peak signal-to-noise ratio in dB over all channels.
double Psnr(const RgbPicture& a, const RgbPicture& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.rgb.size(); ++i) {
    const double d = static_cast<double>(a.rgb[i]) - b.rgb[i];
    sum += d * d;
  }
  const double mse = sum / static_cast<double>(a.rgb.size());
  return mse == 0 ? 99.0 : 10 * std::log10(255.0 * 255.0 / mse);
}

// The markers of a file up to the first scan's data, then every SOS.
std::vector<int> Markers(const std::vector<std::uint8_t>& bytes) {
  std::vector<int> markers;
  for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
    if (bytes[i] == 0xFF && bytes[i + 1] != 0x00 && bytes[i + 1] != 0xFF)
      markers.push_back(bytes[i + 1]);
  }
  return markers;
}

int Count(const std::vector<int>& markers, int marker) {
  return static_cast<int>(std::count(markers.begin(), markers.end(), marker));
}

TEST(JpegEncoderTest, QuantisersFollowQualityRoundedTiesToEvenAndLimited) {
  cJPEG encoder;
  EXPECT_EQ(encoder.Quality(), 75);
  // 10 * 50 + 50 = 550 / 100 = 5.5: ties to even gives 6 (truncation would say 5).
  EXPECT_EQ(encoder.Quantisers(0)[5], 6);
  EXPECT_EQ(encoder.Quantisers(0)[0], 8);    // 16 -> 8.5 -> 8
  EXPECT_EQ(encoder.Quantisers(1)[63], 50);  // 99 -> 50.0
  encoder.SetQuality(100);
  for (std::uint16_t q : encoder.Quantisers(0)) EXPECT_EQ(q, 1);
  encoder.SetQuality(1);
  EXPECT_EQ(encoder.Quantisers(0)[0], 255);
  EXPECT_EQ(encoder.Quantisers(1)[0], 255);
  // Out of range is ignored and the tables stay.
  encoder.SetQuality(0);
  encoder.SetQuality(101);
  EXPECT_EQ(encoder.Quality(), 1);
  EXPECT_EQ(encoder.Quantisers(0)[0], 255);
  encoder.SetQuality(30);                   // 5000 / 30 = 166.67 -> 167
  EXPECT_EQ(encoder.Quantisers(0)[0], 27);  // (16 * 167 + 50) / 100 = 27.22
}

TEST(JpegEncoderTest, BadSettingsRaiseTheirErrors) {
  cJPEG encoder;
  const auto raises = [](auto call, const std::string& text) {
    try {
      call();
      ADD_FAILURE() << "no error for " << text;
    } catch (const VbError& error) {
      EXPECT_EQ(error.number(), 1);
      EXPECT_EQ(error.description(), text);
    }
  };
  raises([&] { encoder.SetSamplingFrequencies(0, 1, 1, 1, 1, 1); }, "Invalid Sampling Value");
  raises([&] { encoder.SetSamplingFrequencies(2, 2, 5, 1, 1, 1); }, "Invalid Sampling Value");
  raises([&] { encoder.SetSamplingFrequencies(2, 2, 1, 1, 0, 1); }, "Invalid Sampling Value");
  raises([&] { encoder.SetComment(std::string(65534, 'x')); }, "Illegal Comment Length");
  EXPECT_NO_THROW(encoder.SetComment(std::string(65533, 'x')));
  // Encoding before a picture was sampled is refused, not a broken file.
  EXPECT_THROW(cJPEG().Encode(), VbError);
}

TEST(JpegEncoderTest, DecodesToThePictureAtEverySamplingAndScanLayout) {
  const RgbPicture picture = TestPicture(37, 23);  // not whole MCUs: dummy blocks at the edges
  struct Case {
    std::array<int, 6> sampling;
    int scans;
    double min_psnr;  // colour at a quarter of the size blurs the hard edge
  };
  for (const Case& c : {Case{{2, 2, 1, 1, 1, 1}, 1, 28}, Case{{1, 1, 1, 1, 1, 1}, 1, 35},
                        Case{{2, 1, 1, 1, 1, 1}, 1, 28}, Case{{4, 2, 2, 1, 1, 1}, 2, 24},
                        Case{{2, 2, 2, 2, 2, 2}, 2, 35}, Case{{4, 4, 4, 4, 4, 4}, 3, 35},
                        Case{{4, 4, 1, 1, 1, 1}, 2, 20}}) {
    SCOPED_TRACE(::testing::PrintToString(c.sampling));
    cJPEG encoder;
    encoder.SetQuality(95);
    const auto& s = c.sampling;
    encoder.SetSamplingFrequencies(s[0], s[1], s[2], s[3], s[4], s[5]);
    ASSERT_EQ(encoder.SampleHDC(picture), 0);
    const std::vector<std::uint8_t> bytes = encoder.Encode();
    EXPECT_EQ(Count(Markers(bytes), 0xDA), c.scans);
    const auto decoded = DecodeJpeg(bytes);
    ASSERT_TRUE(decoded.has_value());
    EXPECT_EQ(decoded->warning, "");
    EXPECT_EQ(decoded->components, 3);
    ASSERT_EQ(decoded->picture.width, 37);
    ASSERT_EQ(decoded->picture.height, 23);
    EXPECT_GT(Psnr(picture, decoded->picture), c.min_psnr);
  }
}

// Every choice the compress dialogue offers, at awkward sizes and at the
// ends of the quality scale, decodes without a warning at its size.
TEST(JpegEncoderTest, EverySamplingOfTheListDecodesAtEverySizeAndQuality) {
  std::vector<std::pair<int, int>> factors = {{0, 0}};  // greyscale
  for (const char* item : {"1:1", "1:2", "2:1", "2:2", "1:3", "3:1", "2:3", "3:2", "3:3", "1:4",
                           "4:1", "2:4", "4:2", "3:4", "4:3", "4:4"}) {
    factors.emplace_back(item[0] - '0', item[2] - '0');
  }
  for (const auto& [h, v] : factors) {
    for (const auto& [width, height] : {std::pair{1, 1}, std::pair{7, 9}, std::pair{17, 33}}) {
      for (int quality : {1, 75, 100}) {
        SCOPED_TRACE(::testing::Message()
                     << h << ":" << v << " " << width << "x" << height << " q" << quality);
        cJPEG encoder;
        encoder.SetQuality(quality);
        if (h == 0) {
          encoder.SetSamplingFrequencies(1, 1, 0, 0, 0, 0);
        } else {
          encoder.SetSamplingFrequencies(h, v, 1, 1, 1, 1);
        }
        ASSERT_EQ(encoder.SampleHDC(TestPicture(width, height)), 0);
        const auto decoded = DecodeJpeg(encoder.Encode());
        ASSERT_TRUE(decoded.has_value());
        EXPECT_EQ(decoded->warning, "");
        EXPECT_EQ(decoded->picture.width, width);
        EXPECT_EQ(decoded->picture.height, height);
      }
    }
  }
}

TEST(JpegEncoderTest, QualityTradesSizeForFidelity) {
  const RgbPicture picture = TestPicture(64, 48);
  double last_psnr = 0;
  std::size_t last_size = 0;
  for (int quality : {10, 50, 90, 100}) {
    cJPEG encoder;
    encoder.SetQuality(quality);
    encoder.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    ASSERT_EQ(encoder.SampleHDC(picture), 0);
    const std::vector<std::uint8_t> bytes = encoder.Encode();
    const auto decoded = DecodeJpeg(bytes);
    ASSERT_TRUE(decoded.has_value()) << quality;
    const double psnr = Psnr(picture, decoded->picture);
    EXPECT_GT(psnr, last_psnr) << quality;
    EXPECT_GT(bytes.size(), last_size) << quality;
    last_psnr = psnr;
    last_size = bytes.size();
  }
  EXPECT_GT(last_psnr, 40.0);  // quality 100: quantisers of 1
}

TEST(JpegEncoderTest, GreyscaleIgnoresItsFactorsAndWritesOneOfEachTable) {
  cJPEG encoder;
  encoder.SetSamplingFrequencies(3, 4, 0, 0, 0, 0);
  ASSERT_EQ(encoder.SampleHDC(TestPicture(20, 9)), 0);
  const std::vector<std::uint8_t> bytes = encoder.Encode();
  const std::vector<int> markers = Markers(bytes);
  EXPECT_EQ(Count(markers, 0xDB), 1);
  EXPECT_EQ(Count(markers, 0xC4), 2);
  EXPECT_EQ(Count(markers, 0xDA), 1);
  // SOF0: one component, identifier 1, factors 1 and 1, table 0.
  const std::array<std::uint8_t, 2> sof_marker = {0xFF, 0xC0};
  const auto sof = std::search(bytes.begin(), bytes.end(), sof_marker.begin(), sof_marker.end());
  ASSERT_NE(sof, bytes.end());
  EXPECT_EQ(std::vector<int>(sof + 2, sof + 13),
            (std::vector<int>{0, 11, 8, 0, 9, 0, 20, 1, 1, 0x11, 0}));
  const auto decoded = DecodeJpeg(bytes);
  ASSERT_TRUE(decoded.has_value());
  EXPECT_EQ(decoded->components, 1);
}

TEST(JpegEncoderTest, SegmentsComeInTheirOrderWithCommentsAndExif) {
  cJPEG encoder;
  encoder.SetComment("Sommer am Meer – 2026");
  encoder.SetExifBlock({'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42, 0, 0, 0, 8, 0, 0});
  ASSERT_EQ(encoder.SampleHDC(TestPicture(1, 1)), 0);  // one block per component, edge repeated
  const std::vector<std::uint8_t> bytes = encoder.Encode();
  const std::vector<int> markers = Markers(bytes);
  ASSERT_GE(markers.size(), 11u);
  EXPECT_EQ(std::vector<int>(markers.begin(), markers.begin() + 11),
            (std::vector<int>{0xD8, 0xE0, 0xE1, 0xFE, 0xFE, 0xDB, 0xDB, 0xC0, 0xC4, 0xC4, 0xC4}));
  EXPECT_EQ(markers.back(), 0xD9);
  const std::string text(bytes.begin(), bytes.end());
  EXPECT_THAT(text, HasSubstr("JFIF"));
  EXPECT_THAT(text, HasSubstr("Sommer am Meer – 2026"));
  EXPECT_THAT(text, HasSubstr("JPEG Encoder Class\r\n"));
  ASSERT_TRUE(DecodeJpeg(bytes).has_value());
  // Without a comment only the encoder's own COM is written.
  cJPEG plain;
  ASSERT_EQ(plain.SampleHDC(TestPicture(1, 1)), 0);
  EXPECT_EQ(Count(Markers(plain.Encode()), 0xFE), 1);
}

TEST(JpegEncoderTest, SampleHdcScalesARegionAndRefusesWhatItCannotTake) {
  const RgbPicture picture = TestPicture(40, 30);
  cJPEG encoder;
  EXPECT_EQ(encoder.SampleHDC(picture, 20, 15, {10, 10, 20, 15}), 0);
  const auto half = DecodeJpeg(encoder.Encode());
  ASSERT_TRUE(half.has_value());
  EXPECT_EQ(half->picture.width, 20);
  EXPECT_EQ(half->picture.height, 15);
  EXPECT_EQ(encoder.SampleHDC(picture, 10, 10, {35, 0, 10, 10}), 1);  // past the right edge
  EXPECT_EQ(encoder.SampleHDC(picture, 0, 10, {0, 0, 10, 10}), 1);
  EXPECT_EQ(encoder.SampleHDC(picture, 70000, 1, {0, 0, 10, 10}), 1);
  EXPECT_EQ(encoder.SampleHDC(RgbPicture()), 1);
  // Enlarged twice: still the same picture, only bigger.
  EXPECT_EQ(encoder.SampleHDC(picture, 80, 60, {0, 0, 40, 30}), 0);
  const auto twice = DecodeJpeg(encoder.Encode());
  ASSERT_TRUE(twice.has_value());
  EXPECT_EQ(twice->picture.width, 80);
}

TEST(JpegEncoderTest, SaveFileNeverOverwrites) {
  TempDir dir;
  cJPEG encoder;
  ASSERT_EQ(encoder.SampleHDC(TestPicture(16, 16)), 0);
  EXPECT_EQ(encoder.SaveFile(""), 1);
  const std::filesystem::path taken = dir.WriteFile("taken.jpg", "keep me");
  EXPECT_EQ(encoder.SaveFile(taken.string()), 2);
  std::ifstream kept(taken);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), "keep me");
  const std::filesystem::path fresh = dir.path() / "fresh.jpg";
  EXPECT_EQ(encoder.SaveFile(fresh.string()), 0);
  std::ifstream written(fresh, std::ios::binary);
  const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(written), {});
  EXPECT_EQ(bytes, encoder.Encode());
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}),
            2);  // no temporary left
  try {
    encoder.SaveFile((dir.path() / "no such folder" / "x.jpg").string());
    ADD_FAILURE() << "no error for a missing folder";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 76);
  }
}

TEST(JpegHuffmanTest, LengthsStayWithinSixteenAndCodesArePrefixFree) {
  // Frequencies like the Fibonacci numbers give the deepest trees.
  std::array<std::uint64_t, 256> frequencies{};
  std::uint64_t a = 1, b = 1;
  for (int s = 0; s < 40; ++s) {
    frequencies[static_cast<std::size_t>(s)] = a;
    const std::uint64_t next = a + b;
    a = b;
    b = next;
  }
  const HuffmanTable table = OptimalHuffmanTable(frequencies);
  EXPECT_EQ(table.symbols.size(), 40u);
  double kraft = 0;
  for (int s = 0; s < 40; ++s) {
    ASSERT_GE(table.lengths[s], 1);
    ASSERT_LE(table.lengths[s], 16);
    kraft += std::ldexp(1.0, -table.lengths[s]);
  }
  EXPECT_LT(kraft, 1.0);  // the all-ones code stays unused
  for (int x = 0; x < 40; ++x) {
    for (int y = 0; y < 40; ++y) {
      if (x == y || table.lengths[x] > table.lengths[y]) continue;
      const int shift = table.lengths[y] - table.lengths[x];
      EXPECT_NE(table.codes[y] >> shift, table.codes[x]) << x << " is a prefix of " << y;
    }
  }
  // The commonest symbol has the shortest code; one symbol alone gets one bit.
  EXPECT_LE(table.lengths[39], table.lengths[0]);
  std::array<std::uint64_t, 256> single{};
  single[0xF0] = 7;
  const HuffmanTable one = OptimalHuffmanTable(single);
  EXPECT_EQ(one.lengths[0xF0], 1);
  EXPECT_EQ(one.codes[0xF0], 0);
}

}  // namespace
}  // namespace tarnwick

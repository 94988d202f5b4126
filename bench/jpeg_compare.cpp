// Our JPEG encoder beside cjpeg (libjpeg-turbo) on photograph-like pictures:
//
//   jpeg_compare [N] [FOLDER]       (default 5 pictures of 12 megapixels)
//
// Each picture is written as a BMP, then encoded by our encoder (read,
// transform, tables, file) and by
//   cjpeg -optimize -dct float -sample 2x2 -qtables Q -qslots 0,1,1 -quality 50
// with Q our own quantisation tables at quality 75, so that only the
// transform, the sub-sampling and the entropy coding differ; and by plain
// `cjpeg -quality 75`. Prints the time, the size without COM segments and
// the PSNR against the source (decoded by libjpeg-turbo) of each, summed.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "picture/bmp_codec.h"
#include "picture/jpeg_encoder.h"
#include "picture/jpeg_tables.h"
#include "picture/picture_file.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// Smooth shading, fine grain and hard edges, like a photograph.
tarnwick::RgbPicture Photo(int seed) {
  tarnwick::RgbPicture p(4000, 3000);
  std::mt19937 rng(static_cast<unsigned>(seed));
  std::normal_distribution<double> grain(0, 6);
  const double phase = seed * 0.7;
  for (int y = 0; y < p.height; ++y) {
    for (int x = 0; x < p.width; ++x) {
      const double shade = 128 + 90 * std::sin(x / 350.0 + phase) * std::cos(y / 260.0 - phase);
      const bool building = ((x / 400) % 3 == 1) && y > 1200 + 300 * ((x / 400) % 2);
      const double n = grain(rng);
      std::uint8_t* px = p.Pixel(x, y);
      const auto clamp = [](double v) {
        return static_cast<std::uint8_t>(std::clamp(v, 0.0, 255.0));
      };
      px[0] = clamp((building ? 180 : shade) + n);
      px[1] = clamp((building ? 90 : shade * 0.85 + 20) + n);
      px[2] = clamp((building ? 60 : 255 - shade * 0.6) + n);
    }
  }
  return p;
}

double Seconds(Clock::time_point from) {
  return std::chrono::duration<double>(Clock::now() - from).count();
}

std::vector<std::uint8_t> ReadAll(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The file's size without its COM segments.
std::size_t SizeWithoutComments(const std::vector<std::uint8_t>& jpeg) {
  std::size_t size = jpeg.size();
  for (std::size_t i = 2; i + 3 < jpeg.size();) {
    if (jpeg[i] != 0xFF) break;
    const int marker = jpeg[i + 1];
    const std::size_t length = (jpeg[i + 2] << 8) | jpeg[i + 3];
    if (marker == 0xFE) size -= length + 2;
    if (marker == 0xDA) break;
    i += length + 2;
  }
  return size;
}

double Psnr(const tarnwick::RgbPicture& a, const tarnwick::RgbPicture& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.rgb.size(); ++i) {
    const double d = static_cast<double>(a.rgb[i]) - b.rgb[i];
    sum += d * d;
  }
  return 10 * std::log10(255.0 * 255.0 / (sum / static_cast<double>(a.rgb.size())));
}

struct Totals {
  double seconds = 0;
  double bytes = 0;
  double psnr = 0;
};

void Add(Totals& totals, double seconds, const fs::path& file, const tarnwick::RgbPicture& source) {
  const std::vector<std::uint8_t> bytes = ReadAll(file);
  totals.seconds += seconds;
  totals.bytes += static_cast<double>(SizeWithoutComments(bytes));
  totals.psnr += Psnr(source, tarnwick::DecodePicture(bytes).picture);
}

bool Run(const std::string& command) { return std::system(command.c_str()) == 0; }

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
  const fs::path folder =
      argc > 2 ? fs::path(argv[2]) : fs::temp_directory_path() / "tarnwick-jpeg-compare";
  fs::create_directories(folder);
  if (!Run("command -v cjpeg >/dev/null")) {
    std::fprintf(stderr, "jpeg_compare: cjpeg is not installed (Debian: libjpeg-turbo-progs)\n");
    return 1;
  }
  // Our tables at quality 75, row by row, for cjpeg -qtables.
  tarnwick::cJPEG tables;
  {
    std::ofstream q(folder / "qtables.txt");
    for (int slot = 0; slot < 2; ++slot) {
      for (int i = 0; i < 64; ++i)
        q << tables.Quantisers(slot)[tarnwick::jpeg::kZigZag[i]] << (i % 8 == 7 ? "\n" : " ");
    }
  }
  Totals ours, peer, plain;
  for (int n = 0; n < count; ++n) {
    const tarnwick::RgbPicture photo = Photo(n);
    tarnwick::cImage image;
    image.CopyPicture(photo, 24);
    const fs::path bmp = folder / ("photo" + std::to_string(n) + ".bmp");
    {
      const std::vector<std::uint8_t> bytes = tarnwick::EncodeBmp(image);
      std::ofstream(bmp, std::ios::binary)
          .write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    }
    const fs::path ours_file = folder / ("ours" + std::to_string(n) + ".jpg");
    fs::remove(ours_file);
    auto start = Clock::now();
    {
      const tarnwick::LoadedPicture loaded = tarnwick::LoadPicture(bmp.string());
      tarnwick::cJPEG encoder;
      encoder.SampleHDC(loaded.picture);
      encoder.SaveFile(ours_file.string());
    }
    Add(ours, Seconds(start), ours_file, photo);
    const fs::path peer_file = folder / ("cjpeg" + std::to_string(n) + ".jpg");
    start = Clock::now();
    Run("cjpeg -optimize -dct float -sample 2x2 -qtables '" + (folder / "qtables.txt").string() +
        "' -qslots 0,1,1 -quality 50 -outfile '" + peer_file.string() + "' '" + bmp.string() + "'");
    Add(peer, Seconds(start), peer_file, photo);
    const fs::path plain_file = folder / ("plain" + std::to_string(n) + ".jpg");
    start = Clock::now();
    Run("cjpeg -quality 75 -outfile '" + plain_file.string() + "' '" + bmp.string() + "'");
    Add(plain, Seconds(start), plain_file, photo);
    std::fprintf(stderr, "picture %d of %d done\n", n + 1, count);
  }
  const auto row = [count](const char* name, const Totals& t, const Totals& base) {
    std::printf("%-44s %8.2f s %10.0f KB %7.2f dB   time %.2fx  size %+.1f %%  PSNR %+.2f dB\n",
                name, t.seconds, t.bytes / 1024, t.psnr / count, t.seconds / base.seconds,
                100 * (t.bytes / base.bytes - 1), (t.psnr - base.psnr) / count);
  };
  std::printf("%d pictures of 4000 x 3000, quality 75, 2:2 sampling (sums; PSNR the mean)\n",
              count);
  row("cjpeg -optimize -dct float, our tables", peer, peer);
  row("Tarnwick's encoder", ours, peer);
  row("cjpeg -quality 75", plain, peer);
  return 0;
}

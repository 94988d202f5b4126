#include <algorithm>
#include <cmath>

#include "picture/rgb_picture.h"

namespace tarnwick {
namespace {

// One new pixel's share of the source along one axis: the source pixels
// from `first`, each with its weight; the weights add up to 1.
struct Span {
  int first = 0;
  std::vector<double> weights;
};

std::vector<Span> Spans(int source_start, int source_size, int size) {
  std::vector<Span> spans(static_cast<std::size_t>(size));
  const double step = static_cast<double>(source_size) / size;
  for (int i = 0; i < size; ++i) {
    const double from = i * step;
    const double to = std::min<double>(source_size, (i + 1) * step);
    const int first = static_cast<int>(std::floor(from));
    const int last = std::min(source_size - 1, static_cast<int>(std::ceil(to)) - 1);
    Span& span = spans[static_cast<std::size_t>(i)];
    span.first = source_start + first;
    for (int p = first; p <= last; ++p) {
      const double overlap = std::min<double>(p + 1, to) - std::max<double>(p, from);
      span.weights.push_back(std::max(0.0, overlap) / (to - from));
    }
  }
  return spans;
}

}  // namespace

RgbPicture ScaleByAreaAveraging(const RgbPicture& source, const PictureRegion& region, int width,
                                int height) {
  RgbPicture result(width, height);
  if (region.width == width && region.height == height) {
    for (int y = 0; y < height; ++y) {
      std::copy_n(source.Pixel(region.x, region.y + y), static_cast<std::size_t>(width) * 3,
                  result.Pixel(0, y));
    }
    return result;
  }
  const std::vector<Span> columns = Spans(region.x, region.width, width);
  const std::vector<Span> rows = Spans(region.y, region.height, height);
  // Each new row: the source rows under it, each averaged across first.
  std::vector<double> sums(static_cast<std::size_t>(width) * 3);
  for (int y = 0; y < height; ++y) {
    std::fill(sums.begin(), sums.end(), 0.0);
    const Span& row = rows[static_cast<std::size_t>(y)];
    for (std::size_t r = 0; r < row.weights.size(); ++r) {
      const int source_y = row.first + static_cast<int>(r);
      for (int x = 0; x < width; ++x) {
        const Span& column = columns[static_cast<std::size_t>(x)];
        double red = 0, green = 0, blue = 0;
        for (std::size_t c = 0; c < column.weights.size(); ++c) {
          const std::uint8_t* p = source.Pixel(column.first + static_cast<int>(c), source_y);
          red += p[0] * column.weights[c];
          green += p[1] * column.weights[c];
          blue += p[2] * column.weights[c];
        }
        double* sum = &sums[static_cast<std::size_t>(x) * 3];
        sum[0] += red * row.weights[r];
        sum[1] += green * row.weights[r];
        sum[2] += blue * row.weights[r];
      }
    }
    std::uint8_t* out = result.Pixel(0, y);
    for (std::size_t i = 0; i < sums.size(); ++i) {
      // Sums of weights that add up to 1 over bytes: never below 0.
      out[i] = static_cast<std::uint8_t>(std::min(255.0, sums[i] + 0.5));
    }
  }
  return result;
}

}  // namespace tarnwick

// The JPEG encoder on a 12-megapixel photo-like picture (4000 x 3000): the
// transform of SampleHDC and the two passes of Encode, in megapixels per
// second, at the default 2:2 sampling and at 1:1.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "picture/jpeg_encoder.h"

namespace {

// Smooth shading with fine texture, like a photograph rather than a chart.
const tarnwick::RgbPicture& Photo() {
  static const tarnwick::RgbPicture picture = [] {
    tarnwick::RgbPicture p(4000, 3000);
    for (int y = 0; y < p.height; ++y) {
      for (int x = 0; x < p.width; ++x) {
        std::uint8_t* px = p.Pixel(x, y);
        const double shade = 128 + 100 * std::sin(x / 300.0) * std::cos(y / 200.0);
        const int grain = static_cast<int>((x * 7919 + y * 104729) % 23) - 11;
        px[0] = static_cast<std::uint8_t>(std::clamp(shade + grain, 0.0, 255.0));
        px[1] = static_cast<std::uint8_t>(std::clamp(shade * 0.8 + grain, 0.0, 255.0));
        px[2] = static_cast<std::uint8_t>(std::clamp(255 - shade + grain, 0.0, 255.0));
      }
    }
    return p;
  }();
  return picture;
}

void Sample(benchmark::State& state, int factor) {
  tarnwick::cJPEG encoder;
  encoder.SetSamplingFrequencies(factor, factor, 1, 1, 1, 1);
  const tarnwick::RgbPicture& photo = Photo();
  for (auto _ : state) benchmark::DoNotOptimize(encoder.SampleHDC(photo));
  state.counters["MP/s"] = benchmark::Counter(12.0 * static_cast<double>(state.iterations()),
                                              benchmark::Counter::kIsRate);
}

void Encode(benchmark::State& state, int factor) {
  tarnwick::cJPEG encoder;
  encoder.SetSamplingFrequencies(factor, factor, 1, 1, 1, 1);
  encoder.SampleHDC(Photo());
  std::size_t bytes = 0;
  for (auto _ : state) bytes = encoder.Encode().size();
  state.counters["MP/s"] = benchmark::Counter(12.0 * static_cast<double>(state.iterations()),
                                              benchmark::Counter::kIsRate);
  state.counters["KB"] = static_cast<double>(bytes) / 1024.0;
}

void BM_SampleHdc_2x2(benchmark::State& state) { Sample(state, 2); }
void BM_SampleHdc_1x1(benchmark::State& state) { Sample(state, 1); }
void BM_Encode_2x2(benchmark::State& state) { Encode(state, 2); }
void BM_Encode_1x1(benchmark::State& state) { Encode(state, 1); }
BENCHMARK(BM_SampleHdc_2x2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SampleHdc_1x1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Encode_2x2)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Encode_1x1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

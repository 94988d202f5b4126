// The name cipher on a typical file name, beside the bare block cipher over
// the same number of blocks, so the cost of the packing shows.
#include <benchmark/benchmark.h>

#include <string>

#include "placeholders/name_cipher.h"
#include "placeholders/skipjack.h"

namespace {

const std::string kName = "Holiday 2004 - Beach at Grömitz (12).jpg";
const std::string kKey = "00998877665544332211";

void BM_EncryptName(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tarnwick::EncryptName(kName, kKey));
}
BENCHMARK(BM_EncryptName);

void BM_DecryptName(benchmark::State& state) {
  const std::string hex = tarnwick::EncryptName(kName, kKey);
  for (auto _ : state) benchmark::DoNotOptimize(tarnwick::DecryptName(hex, kKey));
}
BENCHMARK(BM_DecryptName);

void BM_BareSkipjackBlocks(benchmark::State& state) {
  const tarnwick::Skipjack cipher(tarnwick::NameCipherKey(kKey));
  const std::size_t blocks = (kName.size() + 5) / 6;
  for (auto _ : state) {
    tarnwick::SkipjackBlock block = {0x4142, 0x4344, 0x4546, 0};
    for (std::size_t i = 0; i < blocks; ++i) block = cipher.Encrypt(block);
    benchmark::DoNotOptimize(block);
  }
}
BENCHMARK(BM_BareSkipjackBlocks);

}  // namespace

BENCHMARK_MAIN();

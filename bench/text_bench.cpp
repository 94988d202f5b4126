// The character-counted text functions over typical file names, each beside
// the plain std::string operation on bytes that it replaces, so the price of
// counting characters shows in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "base/text.h"

namespace {

namespace vb = tarnwick::vb;

// A mix like a photo or music folder: mostly ASCII, some umlauts, one with a
// byte that is not UTF-8.
const std::vector<std::string>& Names() {
  static const std::vector<std::string> names = {
      "IMG_20040712_153012.jpg",
      "Holiday 2004 - Beach at Grömitz (12).jpg",
      "01 - Artist Name - A Rather Long Song Title (Remastered).mp3",
      "Müller, Jürgen - Übersicht Straße.pdf",
      "report-final-v2.docx",
      "caf\xe9 au lait.txt",
      "日本語のファイル名.txt",
      "a.b",
  };
  return names;
}

void BM_LenChars(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(vb::Len(name));
  }
}
BENCHMARK(BM_LenChars);

void BM_LenBytes(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(name.size());
  }
}
BENCHMARK(BM_LenBytes);

void BM_MidChars(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(vb::Mid(name, 4, 8));
  }
}
BENCHMARK(BM_MidChars);

void BM_SubstrBytes(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(name.substr(3, 8));
  }
}
BENCHMARK(BM_SubstrBytes);

void BM_InStrBinary(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(vb::InStr(name, "al"));
  }
}
BENCHMARK(BM_InStrBinary);

void BM_InStrText(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) {
      benchmark::DoNotOptimize(vb::InStr(1, name, "AL", vb::Compare::kText));
    }
  }
}
BENCHMARK(BM_InStrText);

void BM_FindBytes(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(name.find("al"));
  }
}
BENCHMARK(BM_FindBytes);

void BM_UCase(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) benchmark::DoNotOptimize(vb::UCase(name));
  }
}
BENCHMARK(BM_UCase);

void BM_ToupperBytes(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) {
      std::string upper = name;
      std::transform(upper.begin(), upper.end(), upper.begin(),
                     [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
      benchmark::DoNotOptimize(upper);
    }
  }
}
BENCHMARK(BM_ToupperBytes);

void BM_ReplaceText(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) {
      benchmark::DoNotOptimize(vb::Replace(name, " ", "_", 1, -1, vb::Compare::kText));
    }
  }
}
BENCHMARK(BM_ReplaceText);

void BM_ReplaceBytes(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& name : Names()) {
      std::string out = name;
      std::replace(out.begin(), out.end(), ' ', '_');
      benchmark::DoNotOptimize(out);
    }
  }
}
BENCHMARK(BM_ReplaceBytes);

}  // namespace

BENCHMARK_MAIN();

// Stand-in for libFuzzer when the compiler has none: feeds every file of the
// given folders to the target, then a fixed number of deterministic mutations
// of them, so each fuzz target also runs as a test under the sanitizers.
// "--mutations=N" sets their number (default 20,000) for a slow target.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

constexpr std::string_view kMutationsFlag = "--mutations=";

std::vector<std::string> ReadSeeds(int argc, char** argv) {
  std::vector<std::string> seeds;
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]).starts_with(kMutationsFlag)) continue;
    std::error_code ec;
    std::filesystem::path root(argv[i]);
    if (std::filesystem::is_regular_file(root, ec)) {
      std::ifstream in(root, std::ios::binary);
      seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
      continue;
    }
    for (auto it = std::filesystem::recursive_directory_iterator(root, ec);
         it != std::filesystem::recursive_directory_iterator(); it.increment(ec)) {
      if (!it->is_regular_file()) continue;
      std::ifstream in(it->path(), std::ios::binary);
      seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
  }
  if (seeds.empty()) seeds.emplace_back();
  return seeds;
}

std::string Mutate(std::string input, std::mt19937& rng) {
  const int edits = 1 + static_cast<int>(rng() % 8);
  for (int e = 0; e < edits; ++e) {
    const size_t pos = input.empty() ? 0 : rng() % (input.size() + 1);
    switch (rng() % 4) {
      case 0:
        if (!input.empty() && pos < input.size()) input[pos] = static_cast<char>(rng());
        break;
      case 1:
        input.insert(pos, 1, static_cast<char>(rng()));
        break;
      case 2:
        if (!input.empty() && pos < input.size()) input.erase(pos, 1 + rng() % 16);
        break;
      default:
        if (!input.empty()) {
          const size_t from = rng() % input.size();
          input.insert(pos, input.substr(from, 1 + rng() % 32));
        }
    }
  }
  return input;
}

int Mutations(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg(argv[i]);
    if (arg.starts_with(kMutationsFlag)) return std::atoi(argv[i] + kMutationsFlag.size());
  }
  return 20000;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> seeds = ReadSeeds(argc, argv);
  for (const std::string& seed : seeds) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(seed.data()), seed.size());
  }
  std::mt19937 rng(20261122);
  const int kMutations = Mutations(argc, argv);
  for (int i = 0; i < kMutations; ++i) {
    const std::string input = Mutate(seeds[rng() % seeds.size()], rng);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
  }
  std::printf("replayed %zu seeds and %d mutations\n", seeds.size(), kMutations);
  return 0;
}

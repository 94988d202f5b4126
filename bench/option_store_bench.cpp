// How cheap is an option read? GetOption on a realistic options file (a hit,
// and a miss that returns the default) beside its floors in the same run: the
// bare stat() every read makes to notice changes by other processes, and an
// std::unordered_map lookup. Also SaveOption, a locked, synced file replace.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <unordered_map>

#include "persist/option_store.h"
#include "platform/temp_files.h"

namespace {

constexpr int kKeyCount = 120;  // about as many as the program keeps

std::string KeyName(int i) { return "OptionKeyNumber" + std::to_string(i); }

// A temporary folder with an options file of kKeyCount keys in "Options" and
// a few other sections.
class OptionFile {
 public:
  OptionFile() {
    std::string pattern = (tarnwick::TempFolder() / "tarnwick-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    folder_ = pattern;
    tarnwick::OptionStore store(file());
    for (int i = 0; i < kKeyCount; ++i) store.SaveOption(KeyName(i), "Options", std::to_string(i));
    store.SaveOption("LastCheck", "AutoUpdate", "n/a");
    store.SaveOption("StartDir", "Playlist", "/home/user/Music");
    store.SaveOption("setName", "XML", "1");
    // Let the file's time stamps age past the window in which every read
    // re-reads it.
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
  }
  ~OptionFile() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }
  std::filesystem::path file() const { return folder_ / "Tarnwick.ini"; }
  bool ready() const { return !folder_.empty(); }

 private:
  std::filesystem::path folder_;
};

void BM_GetOptionHit(benchmark::State& state) {
  OptionFile options;
  if (!options.ready()) return state.SkipWithError("no temporary folder");
  const tarnwick::OptionStore store(options.file());
  const std::string key = KeyName(kKeyCount / 2);
  for (auto _ : state) {
    benchmark::DoNotOptimize(store.GetOption(key, "Options", "0"));
  }
  if (store.GetOption(key, "Options", "") != std::to_string(kKeyCount / 2)) {
    state.SkipWithError("wrong value");
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_GetOptionMissReturnsDefault(benchmark::State& state) {
  OptionFile options;
  if (!options.ready()) return state.SkipWithError("no temporary folder");
  const tarnwick::OptionStore store(options.file());
  for (auto _ : state) {
    benchmark::DoNotOptimize(store.GetOption("NotStoredAnywhere", "Options", "1"));
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_FloorRawStat(benchmark::State& state) {
  OptionFile options;
  if (!options.ready()) return state.SkipWithError("no temporary folder");
  const std::string path = options.file().string();
  struct stat info {};
  for (auto _ : state) {
    benchmark::DoNotOptimize(::stat(path.c_str(), &info));
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_FloorUnorderedMapLookup(benchmark::State& state) {
  std::unordered_map<std::string, std::string> map;
  for (int i = 0; i < kKeyCount; ++i) map[KeyName(i)] = std::to_string(i);
  const std::string key = KeyName(kKeyCount / 2);
  for (auto _ : state) {
    const auto found = map.find(key);
    std::string value = found == map.end() ? std::string("0") : found->second;
    benchmark::DoNotOptimize(value);
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_SaveOption(benchmark::State& state) {
  OptionFile options;
  if (!options.ready()) return state.SkipWithError("no temporary folder");
  tarnwick::OptionStore store(options.file());
  long long i = 0;
  for (auto _ : state) {
    if (!store.SaveOption("Path", "Options", "/home/user/folder " + std::to_string(++i))) {
      return state.SkipWithError("save failed");
    }
  }
  state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(BM_GetOptionHit);
BENCHMARK(BM_GetOptionMissReturnsDefault);
BENCHMARK(BM_FloorRawStat);
BENCHMARK(BM_FloorUnorderedMapLookup);
BENCHMARK(BM_SaveOption)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();

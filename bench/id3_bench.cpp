// Reads the ID3 tags of 10,000 tagged MP3 files in a temporary folder:
// Tarnwick's readers beside mutagen (python3, timed inside the interpreter so
// its start does not count) and beside a bare open/read/close loop.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "media/id3_tags.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/id3_v2_write.h"
#include "platform/temp_files.h"

namespace {

constexpr int kFiles = 10000;

// One tagged file (a version 2.3 tag of a dozen frames, a few MPEG frames, a
// version 1 tag), copied `count` times into a fresh folder.
class TaggedFolder {
 public:
  explicit TaggedFolder(int count) {
    std::string pattern = (tarnwick::TempFolder() / "tarnwick-id3-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    folder_ = pattern;
    const auto first = folder_ / "song 0.mp3";
    std::string audio;
    for (int i = 0; i < 8; ++i) {
      std::string frame = "\xFF\xFB\x90\x44";
      frame.resize(417, '\x55');
      audio += frame;
    }
    std::ofstream(first, std::ios::binary) << audio;
    tarnwick::ID3v2Tag tag;
    tag.artist = "The Benchmark Ensemble";
    tag.album = "Ten Thousand Files";
    tag.title = "Reading Quickly";
    tag.year = "2024";
    tag.genre = "Rock";
    tag.comment = "A comment of some length, as taggers leave them";
    tag.track = "7";
    tag.composer = "Somebody";
    tag.encoder = "LAME";
    tag.userText = "user text";
    tag.linkTo = "http://example.org/";
    tag.publisher = "Oakhollow Records";
    tarnwick::WriteID3v2(first, tag, tarnwick::kID3v23, true, false, false);
    tarnwick::ID3v1Tag v1;
    v1.artist = "Bench";
    v1.title = "Reading";
    v1.track = "7";
    tarnwick::WriteID3v1(first, v1, false);
    paths_.push_back(first);
    for (int i = 1; i < count; ++i) {
      paths_.push_back(folder_ / ("song " + std::to_string(i) + ".mp3"));
      std::filesystem::copy_file(first, paths_.back());
    }
  }
  ~TaggedFolder() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }
  const std::vector<std::filesystem::path>& paths() const { return paths_; }
  const std::filesystem::path& folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
  std::vector<std::filesystem::path> paths_;
};

const TaggedFolder& Folder() {
  static const TaggedFolder folder(kFiles);
  return folder;
}

void BM_TarnwickReadID3(benchmark::State& state) {
  const auto& files = Folder().paths();
  for (auto _ : state) {
    for (const auto& path : files) {
      tarnwick::ID3v1Tag v1;
      tarnwick::ID3v2Tag v2;
      tarnwick::ReadID3v1(path, v1);
      if (!tarnwick::ReadID3v2(path, v2)) return state.SkipWithError("no tag read");
      benchmark::DoNotOptimize(v2.title.data());
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(files.size()));
}

void BM_MutagenReadID3(benchmark::State& state) {
  const std::string script =
      "import os, sys, time\n"
      "from mutagen.id3 import ID3\n"
      "d = sys.argv[1]\n"
      "files = [os.path.join(d, f) for f in os.listdir(d)]\n"
      "t = time.perf_counter()\n"
      "for f in files: ID3(f)\n"
      "print(time.perf_counter() - t)\n";
  const std::string command =
      "/usr/bin/python3 -c '" + script + "' '" + Folder().folder().string() + "' 2>/dev/null";
  for (auto _ : state) {
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) return state.SkipWithError("python3 did not start");
    double seconds = -1;
    const int read = std::fscanf(pipe, "%lf", &seconds);
    ::pclose(pipe);
    if (read != 1 || seconds < 0) return state.SkipWithError("mutagen is not installed");
    state.SetIterationTime(seconds);
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}

// The floor: open, read the first 4 KiB and the last 128 bytes, close.
void BM_RawOpenReadClose(benchmark::State& state) {
  const auto& files = Folder().paths();
  char buffer[4096];
  for (auto _ : state) {
    for (const auto& path : files) {
      const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
      if (fd < 0) return state.SkipWithError("open failed");
      benchmark::DoNotOptimize(::pread(fd, buffer, sizeof buffer, 0));
      benchmark::DoNotOptimize(::pread(fd, buffer, 128, 3000));
      ::close(fd);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(files.size()));
}

BENCHMARK(BM_TarnwickReadID3)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_MutagenReadID3)->Unit(benchmark::kMillisecond)->Iterations(1)->UseManualTime();
BENCHMARK(BM_RawOpenReadClose)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();

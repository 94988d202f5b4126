// A playlist of 100,000 titles: load, check and save, each beside the plain
// system work under it (reading the file and splitting its lines, one stat per
// row, one write of the same bytes). And the correction of 10,000 tagged MP3
// titles beside a plain tag read of the same files.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
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
#include "playlist/playlist_file.h"
#include "playlist/playlist_rows.h"

namespace {

constexpr int kRows = 100000;
constexpr int kSongs = 10000;

// A folder of 10,000 tagged MP3 files and playlists of 100,000 rows over
// them, one row in ten naming a file that is not there.
class Fixture {
 public:
  Fixture() {
    std::string pattern = (tarnwick::TempFolder() / "tarnwick-playlist-bench-XXXXXX").string();
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
    tag.title = "Reading Quickly";
    tag.album = "Ten Thousand Files";
    tarnwick::WriteID3v2(first, tag, tarnwick::kID3v23, true, false, false);
    songs_.push_back(first.string());
    for (int i = 1; i < kSongs; ++i) {
      songs_.push_back((folder_ / ("song " + std::to_string(i) + ".mp3")).string());
      std::filesystem::copy_file(first, songs_.back());
    }
    for (int i = 0; i < kRows; ++i) {
      tarnwick::PlaylistRow row;
      row.title = "Artist " + std::to_string(i % 977) + " - Title " + std::to_string(i);
      row.length = "03:" + std::to_string(10 + i % 50);
      row.path = i % 10 == 9 ? (folder_ / "gone" / (std::to_string(i) + ".mp3")).string()
                             : songs_[static_cast<std::size_t>(i % kSongs)];
      rows_.push_back(row);
    }
    m3u_ = (folder_ / "big.m3u").string();
    pls_ = (folder_ / "big.pls").string();
    tarnwick::SavePlaylist(m3u_, rows_);
    tarnwick::SavePlaylist(pls_, rows_);
  }
  ~Fixture() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }

  std::filesystem::path folder_;
  std::vector<std::string> songs_;
  std::vector<tarnwick::PlaylistRow> rows_;
  std::string m3u_;
  std::string pls_;
};

const Fixture& Data() {
  static const Fixture fixture;
  return fixture;
}

void Load(benchmark::State& state, const std::string& file) {
  for (auto _ : state) {
    const tarnwick::PlaylistLoad load = tarnwick::LoadPlaylist(file);
    if (load.rows.size() != kRows) return state.SkipWithError("rows lost");
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_LoadM3u(benchmark::State& state) { Load(state, Data().m3u_); }
void BM_LoadPls(benchmark::State& state) { Load(state, Data().pls_); }

// The floor of a load: the file read and split into lines.
void BM_RawReadLines(benchmark::State& state) {
  for (auto _ : state) {
    std::ifstream in(Data().m3u_, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(std::move(line));
    benchmark::DoNotOptimize(lines.data());
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_CheckRows(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::vector<tarnwick::PlaylistRow> rows = Data().rows_;
    state.ResumeTiming();
    if (tarnwick::MarkMissingRows(rows, 0, rows.size() - 1) != kRows / 10) {
      return state.SkipWithError("wrong count");
    }
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

// The floor of a check: one stat per row.
void BM_RawStat(benchmark::State& state) {
  for (auto _ : state) {
    int missing = 0;
    for (const tarnwick::PlaylistRow& row : Data().rows_) {
      struct stat info {};
      missing += ::stat(row.path.c_str(), &info) != 0 ? 1 : 0;
    }
    benchmark::DoNotOptimize(missing);
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_SaveM3u(benchmark::State& state) {
  const std::string file = (Data().folder_ / "saved.m3u").string();
  for (auto _ : state) {
    if (!tarnwick::SavePlaylist(file, Data().rows_).ok()) return state.SkipWithError("not saved");
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

// The floor of a save: the same bytes written and synced in one go.
void BM_RawWriteSync(benchmark::State& state) {
  const std::string bytes = tarnwick::PlaylistFileBytes(Data().rows_, "M3U", "x.m3u");
  const std::string file = (Data().folder_ / "raw.m3u").string();
  for (auto _ : state) {
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    benchmark::DoNotOptimize(::write(fd, bytes.data(), bytes.size()));
    ::fsync(fd);
    ::close(fd);
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_CorrectRows(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::vector<tarnwick::PlaylistRow> rows;
    for (const std::string& song : Data().songs_) {
      tarnwick::PlaylistRow row;
      row.path = song;
      rows.push_back(row);
    }
    state.ResumeTiming();
    for (tarnwick::PlaylistRow& row : rows) {
      if (!tarnwick::CorrectRow(row)) return state.SkipWithError("not corrected");
    }
  }
  state.SetItemsProcessed(state.iterations() * kSongs);
}

// The peer of a correction: the tags of the same files read, nothing else.
void BM_PlainTagRead(benchmark::State& state) {
  for (auto _ : state) {
    for (const std::string& song : Data().songs_) {
      tarnwick::ID3v2Tag tag;
      if (!tarnwick::ReadID3v2(song, tag)) return state.SkipWithError("no tag");
      benchmark::DoNotOptimize(tag.title.data());
    }
  }
  state.SetItemsProcessed(state.iterations() * kSongs);
}

BENCHMARK(BM_LoadM3u)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadPls)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_RawReadLines)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_CheckRows)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_RawStat)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_SaveM3u)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_RawWriteSync)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_CorrectRows)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_PlainTagRead)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();

// How fast does our EXIF reader read pictures, and what does the EXIF-date
// column cost a list fill? 10,000 copies of a picture with 54 EXIF tags in a
// temporary folder: our reader (every entry decoded, as ListInfo shows them)
// beside `exiftool -EXIF:all` and `exiv2 -pe` on the same files in the same
// run; and FillListView of the folder with and without the EXIF-date column
// (target: at most 3 times).
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_column_source.h"
#include "filelist/media_source.h"
#include "media/exif_reader.h"
#include "persist/option_store.h"
#include "platform/temp_files.h"
#include "quiet_interaction.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace {

using namespace tarnwick;
using bench::NoLog;
using bench::QuietInteraction;

constexpr int kPictures = 10000;

// The fixture picture: under TW_SOURCE_DIR, the working folder (make bench
// runs from the source tree), or beside this source file.
std::filesystem::path FixturePicture() {
  const std::filesystem::path relative = "tests/fixtures/exif/full_intel.jpg";
  if (const char* source = std::getenv("TW_SOURCE_DIR")) return source / relative;
  if (std::filesystem::exists(relative)) return relative;
  return std::filesystem::path(__FILE__).parent_path().parent_path() / relative;
}

// 10,000 copies of the fixture, kept for the whole run.
class PictureFolder {
 public:
  PictureFolder() {
    std::string pattern = (TempFolder() / "tarnwick-exif-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    root_ = pattern;
    std::filesystem::create_directory(folder());
    for (int i = 0; i < kPictures; ++i) {
      std::filesystem::copy_file(FixturePicture(),
                                 folder() + "/IMG_" + std::to_string(100000 + i) + ".jpg");
    }
  }
  ~PictureFolder() {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }
  std::string folder() const { return root_ + "/pictures"; }
  std::filesystem::path options_file() const { return root_ + "/Tarnwick.ini"; }

 private:
  std::string root_;
};

const PictureFolder& Pictures() {
  static const PictureFolder folder;
  return folder;
}

void BM_OurExifReader(benchmark::State& state) {
  const PictureFolder& pictures = Pictures();
  ExifReader reader(MessageTable::Get(Language::kEnglish), {});
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    for (int i = 0; i < kPictures; ++i) {
      reader.SetImageFile(pictures.folder() + "/IMG_" + std::to_string(100000 + i) + ".jpg");
      bytes += reader.ListInfo().size();
    }
    benchmark::DoNotOptimize(bytes);
  }
  state.counters["files"] = kPictures;
  state.counters["per_file"] = benchmark::Counter(
      kPictures, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_OurExifReader)->UseRealTime()->Unit(benchmark::kMillisecond);

// A peer tool over all pictures; its output counted and thrown away.
void RunPeer(benchmark::State& state, const std::string& command) {
  std::size_t lines = 0;
  for (auto _ : state) {
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
      state.SkipWithError("the peer tool could not be started");
      return;
    }
    char buffer[1 << 16];
    lines = 0;
    while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe)) {
      for (std::size_t i = 0; i < got; ++i) lines += buffer[i] == '\n';
    }
    if (::pclose(pipe) != 0 && lines == 0) {
      state.SkipWithError("the peer tool is not installed (scripts/install-fixture-tools.sh)");
      return;
    }
  }
  state.counters["lines"] = static_cast<double>(lines);
  state.counters["per_file"] = benchmark::Counter(
      kPictures, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_Exiftool(benchmark::State& state) {
  RunPeer(state, "exiftool -q -q -s -EXIF:all '" + Pictures().folder() + "' 2>/dev/null");
}
BENCHMARK(BM_Exiftool)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_Exiv2(benchmark::State& state) {
  RunPeer(state, "find '" + Pictures().folder() +
                     "' -name '*.jpg' -print0 | xargs -0 exiv2 -q -pe 2>/dev/null");
}
BENCHMARK(BM_Exiv2)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

// FillListView of the 10,000 pictures: arg 0 without, arg 1 with the
// EXIF-date column.
void BM_FillListView(benchmark::State& state) {
  const PictureFolder& pictures = Pictures();
  OptionStore options(pictures.options_file());
  AppState app;
  QuietInteraction ui;
  NoLog log;
  FileRowMediaSource none;
  MediaColumnSource exif;
  FileRowMediaSource& media = state.range(0) ? static_cast<FileRowMediaSource&>(exif) : none;
  FileListLoader loader({options, app, ui, log, media, MessageTable::Get(Language::kEnglish)});
  FileList list;
  for (auto _ : state) {
    loader.FillListView(list, {pictures.folder(), false});
    benchmark::DoNotOptimize(list.size());
  }
  std::size_t dated = 0;
  for (std::size_t r = 0; r < list.size(); ++r)
    dated += !list.Text(r, file_column::kExifDate).empty();
  state.counters["rows"] = static_cast<double>(list.size());
  state.counters["exif_dates"] = static_cast<double>(dated);
}
BENCHMARK(BM_FillListView)->Arg(0)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
BENCHMARK_MAIN();

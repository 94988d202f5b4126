// How fast is a fill of the file list, and how much memory do its rows take?
// FillListView over folders of 10,000 and 100,000 empty files (columns 1 to
// 10, no EXIF), beside `find DIR -maxdepth 1 -printf` of the same facts (name,
// size, time, mode) in the same run; the bytes each row takes beyond its
// name; and sorting 100,000 rows by several columns.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_source.h"
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

// A temporary folder with `count` empty files named like a camera's, kept for
// the whole run.
class FileFolder {
 public:
  explicit FileFolder(int count) {
    std::string pattern = (TempFolder() / "tarnwick-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    root_ = pattern;
    std::filesystem::create_directory(folder());
    for (int i = 0; i < count; ++i) {
      const std::string name = folder() + "/IMG_" + std::to_string(100000 + i) +
                               (i % 3 ? ".jpg" : (i % 2 ? ".Txt" : ".mp3"));
      const int fd = ::open(name.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
      if (fd >= 0) ::close(fd);
    }
  }
  ~FileFolder() {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }
  std::string folder() const { return root_ + "/files"; }
  std::filesystem::path options_file() const { return root_ + "/Tarnwick.ini"; }

 private:
  std::string root_;
};

const FileFolder& FolderOf(int count) {
  static std::map<int, FileFolder> folders;
  auto found = folders.find(count);
  if (found == folders.end()) found = folders.try_emplace(count, count).first;
  return found->second;
}

// A loader with its own options file and quiet fakes around it.
struct Fill {
  explicit Fill(const FileFolder& files) : options(files.options_file()) {}
  OptionStore options;
  AppState state;
  QuietInteraction ui;
  NoLog log;
  FileRowMediaSource media;
  FileListLoader loader{{options, state, ui, log, media, MessageTable::Get(Language::kEnglish)}};
  FileList list;
};

void BM_FillListView(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  Fill fill(files);
  for (auto _ : state) {
    fill.loader.FillListView(fill.list, {files.folder(), false});
    benchmark::DoNotOptimize(fill.list.size());
  }
  state.counters["rows"] = static_cast<double>(fill.list.size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_FillListView)->Arg(10000)->Arg(100000)->UseRealTime()->Unit(benchmark::kMillisecond);

// The fill and every column text built once, as a display or an export would.
void BM_FillAndAllTexts(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  Fill fill(files);
  for (auto _ : state) {
    fill.loader.FillListView(fill.list, {files.folder(), false});
    std::size_t bytes = 0;
    for (std::size_t r = 0; r < fill.list.size(); ++r) {
      for (int c = 1; c <= 10; ++c) bytes += fill.list.Text(r, c).size();
    }
    benchmark::DoNotOptimize(bytes);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_FillAndAllTexts)
    ->Arg(10000)
    ->Arg(100000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

// The peer: find prints name, size, time and mode of each entry.
void BM_FindPrintf(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  const std::string command =
      "find '" + files.folder() + "' -mindepth 1 -maxdepth 1 -printf '%f\\t%s\\t%T@\\t%m\\n'";
  std::size_t lines = 0;
  for (auto _ : state) {
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
      state.SkipWithError("find could not be started");
      return;
    }
    char buffer[1 << 16];
    lines = 0;
    while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe)) {
      for (std::size_t i = 0; i < got; ++i) lines += buffer[i] == '\n';
    }
    ::pclose(pipe);
  }
  state.counters["rows"] = static_cast<double>(lines);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_FindPrintf)->Arg(10000)->Arg(100000)->UseRealTime()->Unit(benchmark::kMillisecond);

// Bytes per row beyond the names' own characters (target: at most 300).
void BM_RowMemory(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  Fill fill(files);
  fill.loader.FillListView(fill.list, {files.folder(), false});
  for (auto _ : state) benchmark::DoNotOptimize(fill.list.OverheadBytes());
  const double rows = static_cast<double>(fill.list.size());
  state.counters["bytes_per_row"] = static_cast<double>(fill.list.OverheadBytes()) / rows;
}
BENCHMARK(BM_RowMemory)->Arg(100000)->Iterations(1);

// Sorting 100,000 rows by one column, the list put back in name order each time.
void BM_Sort(benchmark::State& state) {
  const FileFolder& files = FolderOf(100000);
  Fill fill(files);
  fill.loader.FillListView(fill.list, {files.folder(), false});
  const SortColumn by_column[] = {{static_cast<int>(state.range(0)), true}};
  const SortColumn by_name[] = {{file_column::kName, false}};
  for (auto _ : state) {
    fill.list.MultiSortListView(by_column);
    state.PauseTiming();
    fill.list.MultiSortListView(by_name);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_Sort)
    ->Arg(file_column::kName)
    ->Arg(file_column::kSize)
    ->Arg(file_column::kType)
    ->Arg(file_column::kDate)
    ->Arg(file_column::kAttributes)
    ->Arg(file_column::kExtension)
    ->Unit(benchmark::kMillisecond);

}  // namespace
BENCHMARK_MAIN();

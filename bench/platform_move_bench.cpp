// Renames N files in a temporary folder, back and forth: Tarnwick's
// never-replace move beside a bare renameat2(RENAME_NOREPLACE) loop, and the
// in-use probe that a run asks once per file.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_in_use.h"
#include "platform/files.h"
#include "platform/temp_files.h"

namespace {

// A folder of `count` empty files, each with a second free name to move to.
class FileSet {
 public:
  explicit FileSet(int count) {
    std::string pattern = (tarnwick::TempFolder() / "tarnwick-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    folder_ = pattern;
    for (int i = 0; i < count; ++i) {
      names_.push_back(folder_ / ("file " + std::to_string(i) + ".txt"));
      others_.push_back(folder_ / ("File " + std::to_string(i) + " renamed.TXT"));
      const int fd = ::open(names_.back().c_str(), O_CREAT | O_WRONLY, 0644);
      if (fd >= 0) ::close(fd);
    }
  }
  ~FileSet() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }

  // Where the files are now, and where they go next.
  const std::vector<std::filesystem::path>& from() const { return forth_ ? names_ : others_; }
  const std::vector<std::filesystem::path>& to() const { return forth_ ? others_ : names_; }
  void Flip() { forth_ = !forth_; }
  bool ready() const { return !folder_.empty(); }

 private:
  std::filesystem::path folder_;
  std::vector<std::filesystem::path> names_, others_;
  bool forth_ = true;
};

void BM_MoveFileNoReplace(benchmark::State& state) {
  FileSet files(static_cast<int>(state.range(0)));
  if (!files.ready()) return state.SkipWithError("no temporary folder");
  for (auto _ : state) {
    for (size_t i = 0; i < files.from().size(); ++i) {
      if (!tarnwick::MoveFileNoReplace(files.from()[i], files.to()[i]).ok()) {
        return state.SkipWithError("move failed");
      }
    }
    files.Flip();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_RawRenameat2(benchmark::State& state) {
  FileSet files(static_cast<int>(state.range(0)));
  if (!files.ready()) return state.SkipWithError("no temporary folder");
  for (auto _ : state) {
    for (size_t i = 0; i < files.from().size(); ++i) {
      if (::renameat2(AT_FDCWD, files.from()[i].c_str(), AT_FDCWD, files.to()[i].c_str(),
                      RENAME_NOREPLACE) != 0) {
        return state.SkipWithError("renameat2 failed");
      }
    }
    files.Flip();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_IsFileInUse(benchmark::State& state) {
  FileSet files(static_cast<int>(state.range(0)));
  if (!files.ready()) return state.SkipWithError("no temporary folder");
  for (auto _ : state) {
    for (const auto& name : files.from()) benchmark::DoNotOptimize(tarnwick::IsFileInUse(name));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(BM_MoveFileNoReplace)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RawRenameat2)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_IsFileInUse)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

// How fast is a rename run? StartRename over folders of 10,000 and 100,000
// empty files, a prefix with a number (IMG_000001...), once with the log
// and the undo batch written and once without, beside a plain C loop of
// renameat2(RENAME_NOREPLACE) over the same names and beside the Perl
// `rename` tool doing the same prefixing and numbering. The counter
// "late/early" compares the time per file of the last tenth of a run with
// that of the first tenth: a run must not slow down as it goes.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/clock.h"
#include "core/rename_settings.h"
#include "core/start_rename.h"
#include "filelist/file_list.h"
#include "filelist/list_loader.h"
#include "filelist/media_source.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "platform/temp_files.h"
#include "quiet_interaction.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace {

using namespace tarnwick;
using Clock = std::chrono::steady_clock;

// Nobody watches: questions get their quiet answers; the progress calls
// keep the moments at which a tenth and nine tenths of the run were done.
class TimingInteraction : public bench::QuietInteraction {
 public:
  void ShowProgress(std::int64_t value, std::int64_t max) override {
    if (max < 10 || value == 0) return;
    if (value == 1) start = Clock::now();
    if (value == max / 10) early_end = Clock::now();
    if (value == max - max / 10) late_start = Clock::now();
    if (value == max) end = Clock::now();
  }

  // Time per file of the last tenth over that of the first tenth.
  double LateOverEarly() const {
    const double early = std::chrono::duration<double>(early_end - start).count();
    const double late = std::chrono::duration<double>(end - late_start).count();
    return early > 0 ? late / early : 0;
  }

  Clock::time_point start, early_end, late_start, end;
};

using bench::NoLog;

// The width of "IMG_000001": the prefix and the number each file gets.
constexpr std::size_t kPrefixWidth = 10;

std::string NewName(std::size_t index, const std::string& name) {
  char prefix[16];
  std::snprintf(prefix, sizeof prefix, "IMG_%06zu", index + 1);
  return prefix + name;
}

// A temporary folder of `count` empty files, kept for the whole program.
class FileFolder {
 public:
  explicit FileFolder(int count) {
    std::string pattern = (TempFolder() / "tarnwick-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    root_ = pattern;
    std::filesystem::create_directories(folder());
    std::filesystem::create_directories(root_ + "/undo");
    std::filesystem::create_directories(root_ + "/log");
    for (int i = 0; i < count; ++i) {
      char name[32];
      std::snprintf(name, sizeof name, "f%07d.dat", i);
      names_.push_back(name);
      const int fd = ::open((folder() + "/" + name).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
      if (fd >= 0) ::close(fd);
    }
  }
  ~FileFolder() {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }
  std::string folder() const { return root_ + "/files"; }
  std::string root() const { return root_; }
  const std::vector<std::string>& names() const { return names_; }

  // Every "IMG_nnnnnn" name back to the name it had.
  void Restore() const {
    const int dir = ::open(folder().c_str(), O_RDONLY | O_DIRECTORY);
    DIR* stream = ::fdopendir(::dup(dir));
    std::vector<std::string> prefixed;
    while (const dirent* entry = ::readdir(stream)) {
      const std::string name = entry->d_name;
      if (name.starts_with("IMG_") && name.size() > kPrefixWidth) prefixed.push_back(name);
    }
    ::closedir(stream);
    for (const std::string& name : prefixed) {
      ::renameat2(dir, name.c_str(), dir, name.substr(kPrefixWidth).c_str(), RENAME_NOREPLACE);
    }
    ::close(dir);
  }

 private:
  std::string root_;
  std::vector<std::string> names_;
};

const FileFolder& FolderOf(int count) {
  static std::map<int, FileFolder> folders;
  auto found = folders.find(count);
  if (found == folders.end()) found = folders.try_emplace(count, count).first;
  return found->second;
}

// One run over the folder, as the command line's run does it.
void BM_RenameRun(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  const bool log_and_undo = state.range(1) != 0;
  OptionStore options(files.root() + "/Tarnwick.ini");
  for (const char* key : {"ReadySound", "WriteLogFile", "WriteUndoList"}) {
    options.SaveOption(key, "Options", "0");
  }
  if (log_and_undo) {
    options.SaveOption("WriteLogFile", "Options", "1");
    options.SaveOption("WriteUndoList", "Options", "1");
  }
  RenameSettings settings;
  settings.chkPrefix = 1;
  settings.txtPrefix = "IMG_";
  settings.chkNumbers = 1;
  settings.optNumber = kNumberAfterPrefix;
  settings.txtStartNumber = "000001";
  LogUndoState log_undo;
  log_undo.DefaultUndoFolder = files.root() + "/undo";
  log_undo.DefaultLogFolder = files.root() + "/log";
  SystemClock clock;
  NoLog fill_log;
  FileRowMediaSource media;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  double late_over_early = 0;
  std::int64_t done = 0;
  for (auto _ : state) {
    state.PauseTiming();
    files.Restore();
    AppState app;
    app.BatchMode = true;
    app.CurrentPath = files.folder();
    TimingInteraction ui;
    FileList list;
    FileListLoader loader({options, app, ui, fill_log, media, messages});
    loader.FillListView(list, {files.folder(), false});
    list.SelectAll();
    state.ResumeTiming();
    const RenameRunResult result =
        StartRename({app, settings, list, options, ui, messages, clock, log_undo});
    done = result.done;
    late_over_early = ui.LateOverEarly();
  }
  state.counters["files"] = static_cast<double>(done);
  state.counters["late/early"] = late_over_early;
  state.SetItemsProcessed(state.iterations() * state.range(0));
  files.Restore();
}
BENCHMARK(BM_RenameRun)
    ->ArgNames({"files", "log_undo"})
    ->Args({10000, 1})
    ->Args({10000, 0})
    ->Args({100000, 1})
    ->Args({100000, 0})
    ->Iterations(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

// The raw loop: renameat2 with RENAME_NOREPLACE over the same names.
void BM_RenameatLoop(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    files.Restore();
    std::vector<std::string> targets;
    targets.reserve(files.names().size());
    for (std::size_t i = 0; i < files.names().size(); ++i) {
      targets.push_back(NewName(i, files.names()[i]));
    }
    const int dir = ::open(files.folder().c_str(), O_RDONLY | O_DIRECTORY);
    state.ResumeTiming();
    for (std::size_t i = 0; i < files.names().size(); ++i) {
      ::renameat2(dir, files.names()[i].c_str(), dir, targets[i].c_str(), RENAME_NOREPLACE);
    }
    state.PauseTiming();
    ::close(dir);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  files.Restore();
}
BENCHMARK(BM_RenameatLoop)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

// The peer: Debian's Perl rename, given the names on its standard input.
void BM_PerlRename(benchmark::State& state) {
  const FileFolder& files = FolderOf(static_cast<int>(state.range(0)));
  const std::string command =
      "cd '" + files.folder() + "' && ls -U | rename 'our $n; s/^/sprintf(\"IMG_%06d\", ++$n)/e'";
  if (std::system("command -v rename >/dev/null 2>&1") != 0) {
    state.SkipWithError("the Perl rename tool is not installed (scripts/install-deps.sh)");
    return;
  }
  for (auto _ : state) {
    state.PauseTiming();
    files.Restore();
    state.ResumeTiming();
    if (std::system(command.c_str()) != 0) state.SkipWithError("rename failed");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  files.Restore();
}
BENCHMARK(BM_PerlRename)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

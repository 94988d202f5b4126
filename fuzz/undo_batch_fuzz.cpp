// Arbitrary bytes as an undo batch, which `tarnwick-cli undo` acts on by
// moving and deleting files: reading it, each line and each escaped name
// must not crash, and a dry run must change nothing on disk.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "core/undo_runner.h"
#include "persist/undo_line.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

// One sandbox folder per process, holding the batch and one file that a
// dry run must leave alone.
const std::filesystem::path& Sandbox() {
  // Never destroyed, so that the clean-up at exit can still name it.
  static const std::filesystem::path* const path = [] {
    auto* made = new std::filesystem::path(std::filesystem::temp_directory_path() /
                                           ("tw-undo-fuzz-" + std::to_string(::getpid())));
    std::filesystem::create_directories(*made);
    std::ofstream(*made / "keep.txt") << "keep";
    std::atexit([] {
      std::error_code ignored;
      std::filesystem::remove_all(Sandbox(), ignored);
    });
    return made;
  }();
  return *path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const UndoBatchText text = ReadUndoBatchText(bytes);
  for (const auto& run : text.runs) {
    for (const UndoBatchEntry& entry : run) {
      Check(entry.line_number >= 1);
      // A name escaped for a line reads back as itself.
      const std::optional<std::string> back = UnescapeUndoName(EscapeUndoName(entry.line.new_path));
      Check(back && *back == entry.line.new_path);
    }
  }
  std::size_t start = 0;
  while (start <= bytes.size()) {
    const std::size_t end = bytes.find('\n', start);
    ParseUndoLine(bytes.substr(start, end == std::string_view::npos ? end : end - start));
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  const std::filesystem::path batch = Sandbox() / "UndoBatch.bat";
  std::ofstream(batch, std::ios::binary | std::ios::trunc) << bytes;
  // A dry run tells what it would do (its `done` counts those) and does none.
  RunUndoBatch(batch, {.dry_run = true}, [](const UndoStep& step) {
    Check(step.outcome != UndoStepOutcome::kDone);
  });
  Check(std::filesystem::exists(Sandbox() / "keep.txt"));
  return 0;
}

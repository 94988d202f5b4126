// Arbitrary bytes as a run journal, which crash recovery reads at start-up:
// parsing must not crash, what it reads must write back the same, and the
// preview of a recovery must write nothing.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "core/journal_format.h"
#include "core/journal_recovery.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

// One folder per process, removed at its end.
const std::filesystem::path& Folder() {
  // Never destroyed, so that the clean-up at exit can still name it.
  static const std::filesystem::path* const path = [] {
    auto* made = new std::filesystem::path(std::filesystem::temp_directory_path() /
                                           ("tw-journal-fuzz-" + std::to_string(::getpid())));
    std::filesystem::create_directories(*made);
    std::atexit([] {
      std::error_code ignored;
      std::filesystem::remove_all(Folder(), ignored);
    });
    return made;
  }();
  return *path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const JournalContent content = ParseJournal(bytes);
  if (content.valid) {
    // The records written back from what was read read as the same.
    std::string again = JournalHeaderText(content.batch_path, content.older_copy);
    for (std::int64_t i = 0; i < content.settled && i < 1000; ++i) again += JournalDoneText();
    for (const JournalStep& step : content.open_steps) again += JournalStepText(step);
    const JournalContent reread = ParseJournal(again);
    Check(reread.valid);
    Check(reread.batch_path == content.batch_path);
    Check(reread.open_steps.size() == content.open_steps.size());
  }
  const std::filesystem::path journal = Folder() / "UndoBatch.bat.1.journal";
  std::ofstream(journal, std::ios::binary | std::ios::trunc) << bytes;
  const std::string batch = "@echo off\r\n";
  PreviewCompletedBatch(journal, batch);
  // The preview moves and writes nothing: the journal is where it was.
  Check(std::filesystem::file_size(journal) == size);
  return 0;
}

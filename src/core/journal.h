#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "core/journal_format.h"
#include "platform/file_status.h"

namespace tarnwick {

// The journal a run keeps beside its undo batch (format: journal_format.h).
// It is named after the batch: "UndoBatch.bat.<process id>.journal", so two
// runs never share one. While the run lasts the file stays open and locked;
// a run that ends normally removes it. A journal left behind belongs to a
// run that was killed, and journal_recovery.h completes the batch from it.
//
// Each record goes out with one write before the step it announces, so a
// killed process never leaves a step without its record. Records are forced
// to the disk when the journal starts and then at least every
// `kSyncEveryRecords` records or `kSyncInterval`, whichever comes first; a
// power loss can thus lose the records of the last moments only.
class RunJournal {
 public:
  static constexpr int kSyncEveryRecords = 1000;
  static constexpr std::chrono::milliseconds kSyncInterval{500};

  // Starts the journal of a run that writes `batch_path`; `older_copy` is
  // the saved copy of the older runs (empty when there is none). The journal
  // is made in `folder`, beside the batch when it is empty. Nothing when the
  // file cannot be made; `status` then says why.
  static std::unique_ptr<RunJournal> Begin(const std::filesystem::path& batch_path,
                                           const std::string& older_copy, FileStatus* status,
                                           const std::filesystem::path& folder = {});

  ~RunJournal();
  RunJournal(const RunJournal&) = delete;
  RunJournal& operator=(const RunJournal&) = delete;

  const std::filesystem::path& path() const { return path_; }

  // The record before a move or a copy; a step whose record could not be
  // written must not be done.
  FileStatus RecordStep(const JournalStep& step);
  // The file's undo line is settled.
  FileStatus RecordDone();
  // The older runs are about to be put behind a batch of `batch_size` bytes.
  FileStatus RecordFinish(std::uint64_t batch_size);

  // The run ended normally: the journal is removed.
  void Remove();

 private:
  RunJournal(std::filesystem::path path, int fd) : path_(std::move(path)), fd_(fd) {}
  FileStatus Write(const std::string& record);

  std::filesystem::path path_;
  int fd_ = -1;
  int unsynced_ = 0;
  std::chrono::steady_clock::time_point last_sync_ = std::chrono::steady_clock::now();
};

// The journals of the batch `batch_path` that are left in its folder.
std::vector<std::filesystem::path> JournalsOfBatch(const std::filesystem::path& batch_path);
// Every journal left in `folder`.
std::vector<std::filesystem::path> JournalsInFolder(const std::filesystem::path& folder);

}  // namespace tarnwick

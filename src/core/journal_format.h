#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The journal of a run: what the run meant to do, written before it does
// it, so that a run killed at any moment can still be taken back. One line
// per record, ended by a line feed; every path is written in the escaped
// form of undo_line.h (EscapeUndoName), so a name may hold any byte.
//
//   tarnwick-journal 1        first line
//   batch PATH                the undo batch the run writes
//   older PATH                the copy of the older runs that belongs behind
//                             this run's lines (appending mode only)
//   move FROM TO              a move is about to happen
//   copy FROM TO              a copy is about to happen
//   done                      the undo line of the file is settled (written,
//                             or not needed because the step failed)
//   finish SIZE               the older runs are about to be put behind the
//                             batch, which holds SIZE bytes before that
//
// A change of case is two moves (old name to a temporary name, then to the
// new name) before one "done". A line that cannot be read, such as the torn
// last line of a killed run, is ignored.
enum class JournalStepKind { kMove, kCopy };

struct JournalStep {
  JournalStepKind kind = JournalStepKind::kMove;
  std::string from;
  std::string to;
};

struct JournalContent {
  bool valid = false;  // the first line was a journal's
  std::string batch_path;
  std::string older_copy;
  // The steps of the file whose undo line was not yet settled when the
  // journal ended; empty when every file was settled.
  std::vector<JournalStep> open_steps;
  // How many "done" records the journal holds (files that made no step
  // may share one).
  std::int64_t settled = 0;
  // Set when the run had started to put the older runs behind its lines.
  std::optional<std::uint64_t> finish_size;
};

inline constexpr std::string_view kJournalMagic = "tarnwick-journal 1";

// The record lines, each with its line feed.
std::string JournalHeaderText(std::string_view batch_path, std::string_view older_copy);
std::string JournalStepText(const JournalStep& step);
std::string JournalDoneText();
std::string JournalFinishText(std::uint64_t batch_size);

// Reads a journal's bytes. Never fails: what cannot be read is left out.
JournalContent ParseJournal(std::string_view bytes);

}  // namespace tarnwick

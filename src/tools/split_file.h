#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/tool_job.h"

namespace tarnwick {

// `cboUnits` of `frmSplitter`, in the order of its list.
enum class SplitUnit { kMegabytes = 0, kKilobytes = 1, kBytes = 2, kCount = 3 };

// The choices of `frmSplitter`.
struct SplitChoices {
  double amount = 0;            // txtUnits
  SplitUnit unit = SplitUnit::kMegabytes;
  std::string extension;        // txtExtension, of the pieces
  std::string destination;      // txtNewFile; empty: each file's own folder
  bool overwrite = false;       // chkOverwriteFiles
  bool sort = false;            // chkSortItems
  bool batch = false;           // chkBatch: the script that joins the pieces
  bool delete_source = false;   // chkDeleteSourceFiles
};

// What is wrong with the choices on "Start"; empty when the job may start.
std::string CheckSplitChoices(const SplitChoices& choices, const MessageTable& messages);

// `ChunkSize`: the bytes of one piece of a file of `file_size` bytes.
// Megabytes go through kilobytes rounded to a whole number; "Count" gives
// `file_size` / amount, one byte more when the test on amount × 1024 says so.
std::int64_t ChunkSize(double amount, SplitUnit unit, std::int64_t file_size);

// One piece: its path and the bytes of the source it holds (0-based).
struct SplitPiece {
  std::string path;
  std::uint64_t first = 0;
  std::uint64_t length = 0;
};

// What splitting one file writes: the pieces, and the script line that joins
// them again ("copy /b" with the quoted pieces joined by " + ", then the
// quoted target). No pieces when the file is not split (a chunk as large as
// the file or larger).
struct SplitPlan {
  std::vector<SplitPiece> pieces;
  std::string folder;       // where the pieces go, with a trailing separator
  std::string script;       // the joining line, without a line end
  std::string script_path;  // folder + name + ".bat"
};
SplitPlan PlanSplit(const std::string& path, std::uint64_t size, const SplitChoices& choices);

// `mnuSplitFiles`: every selected row cut into its pieces, in list order
// (sorted by name first when asked). A failure or pieces that exist stop the
// job with the tool's message; Esc stops it after the current piece, leaving
// the pieces written so far and the source. The list is read again.
ToolJobResult SplitFiles(const RenameRunEnv& env, const SplitChoices& choices);

}  // namespace tarnwick

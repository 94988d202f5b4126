#include "core/result_batch.h"

#include <cerrno>
#include <cstring>
#include <fstream>

#include "base/path_text.h"
#include "persist/undo_line.h"

namespace tarnwick {
namespace {

constexpr char kLineEnd[] = "\r\n";

// The run writes "<...>" where it has no name to give.
bool Unusable(const TestResultRow& row) {
  return row.new_name.empty() || row.new_name.front() == '<';
}

}  // namespace

std::string ResultListBatch(const std::vector<TestResultRow>& rows) {
  std::string batch = std::string("@echo off") + kLineEnd;
  for (const TestResultRow& row : rows) {
    if (row.new_name == row.present_name) continue;
    const std::string present = JoinPath(row.folder, row.present_name);
    const std::string renamed = JoinPath(row.folder, row.new_name);
    // The undo line names the file to move first, then where it goes back to;
    // here the present name goes first and the new one second.
    batch += UndoEntryLine(renamed, present, Unusable(row) ? "rem" : "move");
    batch += kLineEnd;
  }
  return batch;
}

std::optional<std::string> SaveResultListBatch(const std::string& path,
                                               const std::vector<TestResultRow>& rows) {
  const std::string text = ResultListBatch(rows);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (!out) return std::string(std::strerror(errno));
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  if (!out) return std::string("write failed");
  return std::nullopt;
}

}  // namespace tarnwick

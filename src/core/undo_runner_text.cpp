#include "core/undo_runner.h"

namespace tarnwick {
namespace {

bool StartsRun(std::string_view line) {
  while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
  return line == "@echo off";
}

}  // namespace

std::string_view WithoutNewestRun(std::string_view bytes) {
  // The newest run stands first; it ends where a header opens the next run,
  // by the rule of ReadUndoBatchText.
  bool run_has_header = false;
  bool run_has_lines = false;
  std::size_t at = 0;
  while (at < bytes.size()) {
    std::size_t end = bytes.find('\n', at);
    if (end == std::string_view::npos) end = bytes.size();
    std::string_view line = bytes.substr(at, end - at);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (StartsRun(line)) {
      if (run_has_header || run_has_lines) return bytes.substr(at);
      run_has_header = true;
    } else if (ParseUndoLine(line)) {
      run_has_lines = true;
    }
    at = end + 1;
  }
  return {};
}

UndoBatchText ReadUndoBatchText(std::string_view bytes) {
  UndoBatchText text;
  text.runs.emplace_back();
  bool run_has_header = false;
  int number = 0;
  std::size_t at = 0;
  while (at < bytes.size()) {
    std::size_t end = bytes.find('\n', at);
    if (end == std::string_view::npos) end = bytes.size();
    std::string_view line = bytes.substr(at, end - at);
    at = end + 1;
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (StartsRun(line)) {
      // The first header opens the first run unless lines came before it.
      if (run_has_header || !text.runs.back().empty()) text.runs.emplace_back();
      run_has_header = true;
      continue;
    }
    if (auto parsed = ParseUndoLine(line)) text.runs.back().push_back({number, std::move(*parsed)});
  }
  if (text.runs.size() == 1 && text.runs.front().empty() && !run_has_header) text.runs.clear();
  return text;
}

}  // namespace tarnwick

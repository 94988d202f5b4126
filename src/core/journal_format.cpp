#include "core/journal_format.h"

#include <charconv>

#include "persist/undo_line.h"

namespace tarnwick {
namespace {

std::string Record(std::string_view word, std::string_view a = {}, std::string_view b = {},
                   int fields = 0) {
  std::string line(word);
  if (fields >= 1) line += " " + EscapeUndoName(a);
  if (fields >= 2) line += " " + EscapeUndoName(b);
  line += '\n';
  return line;
}

// The blank-separated words of one line.
std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  std::size_t at = 0;
  while (at <= line.size()) {
    const std::size_t blank = line.find(' ', at);
    const std::size_t end = blank == std::string_view::npos ? line.size() : blank;
    words.push_back(line.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

void ReadStep(JournalContent& content, JournalStepKind kind,
              const std::vector<std::string_view>& words) {
  if (words.size() != 3) return;
  const auto from = UnescapeUndoName(words[1]);
  const auto to = UnescapeUndoName(words[2]);
  if (!from || !to || from->empty() || to->empty()) return;
  content.open_steps.push_back({kind, *from, *to});
}

void ReadPath(std::string& target, const std::vector<std::string_view>& words) {
  if (words.size() != 2) return;
  if (const auto path = UnescapeUndoName(words[1])) target = *path;
}

void ReadFinish(JournalContent& content, const std::vector<std::string_view>& words) {
  if (words.size() != 2) return;
  std::uint64_t size = 0;
  const char* end = words[1].data() + words[1].size();
  const auto [ptr, ec] = std::from_chars(words[1].data(), end, size);
  if (ec == std::errc() && ptr == end) content.finish_size = size;
}

void ReadRecord(JournalContent& content, std::string_view line) {
  const std::vector<std::string_view> words = Words(line);
  const std::string_view word = words[0];
  if (word == "batch") return ReadPath(content.batch_path, words);
  if (word == "older") return ReadPath(content.older_copy, words);
  if (word == "move") return ReadStep(content, JournalStepKind::kMove, words);
  if (word == "copy") return ReadStep(content, JournalStepKind::kCopy, words);
  if (word == "finish") return ReadFinish(content, words);
  if (word == "done" && words.size() == 1) {
    content.open_steps.clear();
    ++content.settled;
  }
}

}  // namespace

std::string JournalHeaderText(std::string_view batch_path, std::string_view older_copy) {
  std::string text = std::string(kJournalMagic) + "\n" + Record("batch", batch_path, {}, 1);
  if (!older_copy.empty()) text += Record("older", older_copy, {}, 1);
  return text;
}

std::string JournalStepText(const JournalStep& step) {
  return Record(step.kind == JournalStepKind::kMove ? "move" : "copy", step.from, step.to, 2);
}

std::string JournalDoneText() { return "done\n"; }

std::string JournalFinishText(std::uint64_t batch_size) {
  return "finish " + std::to_string(batch_size) + "\n";
}

JournalContent ParseJournal(std::string_view bytes) {
  JournalContent content;
  std::size_t at = 0;
  bool first = true;
  while (at < bytes.size()) {
    const std::size_t end = bytes.find('\n', at);
    // A line without its line feed was torn by a kill: it does not count.
    if (end == std::string_view::npos) break;
    const std::string_view line = bytes.substr(at, end - at);
    at = end + 1;
    if (first) {
      if (line != kJournalMagic) return content;
      content.valid = true;
      first = false;
      continue;
    }
    ReadRecord(content, line);
  }
  return content;
}

}  // namespace tarnwick

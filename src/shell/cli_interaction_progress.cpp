#include "shell/cli_interaction_progress.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr auto kMinInterval = std::chrono::milliseconds(100);
constexpr char kEraseLine[] = "\r\x1b[K";

// The first `limit` characters of `text`, cut between characters, never
// inside one.
std::string CutToWidth(const std::string& text, int limit) {
  if (limit <= 0) return {};
  int characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool starts_character = (byte & 0xC0) != 0x80;
    if (starts_character && ++characters > limit) return text.substr(0, i);
  }
  return text;
}

}  // namespace

CliProgressLine::CliProgressLine(std::ostream& err, bool enabled, int width)
    : err_(err), enabled_(enabled), width_(std::max(width, 20)) {}

void CliProgressLine::SetText(std::string_view text) {
  std::string one_line;
  for (char c : text) one_line += (c == '\r' || c == '\n' || c == '\t') ? ' ' : c;
  if (one_line == text_) return;
  text_ = std::move(one_line);
  Update(false);
}

void CliProgressLine::SetProgress(std::int64_t value, std::int64_t max) {
  const bool first = !has_progress_;
  has_progress_ = true;
  value_ = value;
  max_ = max;
  Update(first || value == max);
}

void CliProgressLine::Hide() {
  Erase();
  has_progress_ = false;
}

void CliProgressLine::Erase() {
  if (!enabled_ || !drawn_) return;
  err_ << kEraseLine << std::flush;
  drawn_ = false;
}

void CliProgressLine::Update(bool force) {
  if (!enabled_) return;
  const auto now = std::chrono::steady_clock::now();
  if (!force && drawn_ && now - last_draw_ < kMinInterval) return;
  const std::string body = Body();
  if (body.empty()) return Erase();
  err_ << kEraseLine << body << std::flush;
  drawn_ = true;
  ++draws_;
  last_draw_ = now;
}

std::string CliProgressLine::Body() const {
  std::string count;
  if (has_progress_) {
    count = std::to_string(value_) + "/" + std::to_string(max_);
    if (max_ > 0) {
      const double share =
          std::clamp(static_cast<double>(value_) / static_cast<double>(max_), 0.0, 1.0);
      count += " (" + std::to_string(static_cast<int>(share * 100)) + "%)";
    }
  }
  const int room = width_ - 1 - static_cast<int>(count.size()) - (count.empty() ? 0 : 1);
  std::string body = CutToWidth(text_, room);
  if (!body.empty() && !count.empty()) body += ' ';
  return body + count;
}

}  // namespace tarnwick

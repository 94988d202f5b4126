#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace tarnwick {

// The one-line progress display of the command line: a line on standard
// error that is rewritten in place ("\r"), on a terminal only. Updates are
// drawn at most every tenth of a second, so a run of 100,000 files draws a
// few dozen lines, not 100,000; the last step (value == max) is always drawn.
class CliProgressLine {
 public:
  // Nothing is ever written when `enabled` is false (standard error is not a
  // terminal). `width` is the terminal's width in characters.
  CliProgressLine(std::ostream& err, bool enabled, int width);

  // The text in front of the count.
  void SetText(std::string_view text);
  void SetProgress(std::int64_t value, std::int64_t max);
  // Erases the line and forgets the progress; the text stays for later.
  void Hide();
  // Erases the line for other output; the next update draws it again.
  void Erase();

  // How many times the line was drawn.
  int draws() const { return draws_; }

 private:
  void Update(bool force);
  std::string Body() const;

  std::ostream& err_;
  bool enabled_;
  int width_;
  std::string text_;
  std::int64_t value_ = 0;
  std::int64_t max_ = 0;
  bool has_progress_ = false;
  bool drawn_ = false;
  int draws_ = 0;
  std::chrono::steady_clock::time_point last_draw_{};
};

}  // namespace tarnwick

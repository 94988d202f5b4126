#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/random_pool.h"
#include "placeholders/media_provider.h"

namespace tarnwick {

class OptionStore;

// The texts of the current row of the file list that the tokens read.
struct RowTexts {
  std::string folder;       // column 5: the absolute folder
  std::string name;         // the row's text: the file name
  std::string type_text;    // column 2: the type text
  std::string folder_name;  // column 7: the folder text of {{parentfolder}}
};

// The numbering fields of the main window that the tokens read.
struct NumberingFields {
  std::string limiter;             // `txtLimiter`, the separator
  std::string start_number;        // `txtStartNumber`: its length is the mask width
  std::string step;                // `txtStep`
  std::size_t selected_count = 0;  // selected rows of the list
};

// The state the tokens keep between calls: the letter counter and the random
// pool. It lives as long as the window, with the rest of the shared state.
struct PlaceholderState {
  std::int32_t last_char_count = 0;  // `LastCharCount`
  std::string char_counter_text;     // `CharCounterText`
  RandomPool random_pool;            // `RandomPool`
};

// Where the engine reports a failed token: a log line with subject and text
// (`WriteLogFileTool`).
class ExpansionLog {
 public:
  virtual ~ExpansionLog() = default;
  virtual void WriteLogFileTool(std::string_view subject, std::string_view text) = 0;
};

// A local date and time handed in by a function: the older way to give the
// engine its clock, read only when `ExpansionContext::clock` is absent.
struct ClockReading {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
  double seconds_since_midnight = 0;  // with fractions: the random seed
};

// Everything an expansion reads besides its three arguments. Nothing here is
// global: the front end owns the objects and hands them in.
struct ExpansionContext {
  const OptionStore* options = nullptr;  // read at each use; defaults without
  // A text of the message table by id (month names 592-603, 1012 "Yes",
  // 1013 "No"), in the interface's language; absent gives empty texts.
  std::function<std::string(int)> message_text;
  const Clock* clock = nullptr;       // the injected clock: now and the seed
  std::function<ClockReading()> now;  // used when `clock` is absent
  ExpansionLog* log = nullptr;        // may be absent
  const MediaInfoProvider* media = &MediaInfoProvider::None();

  PlaceholderState* state = nullptr;  // required
  std::int32_t current_count = 0;     // `CurrentCount`
  bool run_active = false;            // a run is under way (start button disabled)
  RowTexts row;
  NumberingFields numbering;
};

}  // namespace tarnwick

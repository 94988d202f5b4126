#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/clock.h"
#include "persist/option_store.h"
#include "placeholders/engine.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {

// A log that keeps its lines.
class RecordingLog : public ExpansionLog {
 public:
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    lines.emplace_back(std::string(subject), std::string(text));
  }
  std::vector<std::pair<std::string, std::string>> lines;
};

// A context with a fixed clock (8 March 2004, 10:15:05), English month
// names, an option store in a temporary folder and a row for file.txt.
class EngineFixture {
 public:
  EngineFixture() : options_(dir_.path() / "options.ini") {
    context.options = &options_;
    context.log = &log;
    context.state = &state;
    context.clock = &clock;
    context.message_text = [](int id) -> std::string {
      static const char* kMonths[] = {"January",   "February", "March",    "April",
                                      "May",       "June",     "July",     "August",
                                      "September", "October",  "November", "December"};
      if (id >= 592 && id <= 603) return kMonths[id - 592];
      if (id == 1012) return "Yes";
      if (id == 1013) return "No";
      return {};
    };
    context.row = {dir_.str(), "file.txt", "Text document", "Holiday"};
    context.current_count = 1;
    context.numbering = {"", "1", "1", 1};
  }

  std::string Expand(std::string_view expression, std::string_view date = "08.03.2004 10:15:05") {
    return ConvertExpressionMultiple(context, expression, date, path());
  }
  std::string path() const { return context.row.folder + "/" + context.row.name; }
  void SetOption(std::string_view name, std::string_view value) {
    options_.SaveOption(name, "Options", value);
  }
  const TempDir& dir() const { return dir_; }

  FixedClock clock{{2004, 3, 8, 10, 15, 5}};
  RecordingLog log;
  PlaceholderState state;
  ExpansionContext context;

 private:
  TempDir dir_;
  OptionStore options_;
};

}  // namespace tarnwick::testing

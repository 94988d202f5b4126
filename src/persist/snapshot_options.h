#pragma once

#include <string>

namespace tarnwick {

class OptionStore;
struct LogUndoState;

// Defaults of the options snapshot that depend on the machine or the
// language: the system's short date form in lower case (the default of
// `DateFormat`), and the texts of "Created" and "Normal" in the user's
// language (the defaults of `FileDateType` and `SampleRefreshRate`).
struct OptionSnapshotDefaults {
  std::string date_format;
  std::string file_date_type = "Created";
  std::string sample_refresh_rate = "Normal";
};

// The lines of the options snapshot after its heading: "label value" for each
// option as read now with its usual default, each ended by CR LF; an empty
// line; "Sort order action 1: " to "Sort order action 10: " with the action
// order; one more CR LF after the last. Labels name their options, except
// that the second "OnlySelected: " prints `StretchSlide`, as it always has.
std::string OptionSettingsSnapshotLines(const OptionStore& options, const LogUndoState& state,
                                        const OptionSnapshotDefaults& defaults);

}  // namespace tarnwick

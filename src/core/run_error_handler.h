#pragma once

#include <string_view>

#include "base/vb_error.h"
#include "core/run_context.h"

namespace tarnwick {

// The run's error handler, for an error of one file or of the run's set-up:
// the log gets "! ERROR: " + old path, the new path and number + ": " +
// description + "; " + the note; an overflow (6) or out of memory (7) first
// shows "!!! OVERFLOW IN STARTRENAME !!!"; then "Continue with next file?"
// is asked, and No sets `CancelRun`, so the loop ends at its next test.
void HandleRunError(RunContext& run, const VbError& error, std::string_view old_path,
                    std::string_view new_path, std::string_view note);

// Runs `statement`; a run-time error goes to the handler above with the
// file's paths and note. Returns false when the statement failed.
template <typename Statement>
bool Guarded(RunContext& run, std::string_view old_path, std::string_view new_path,
             std::string_view note, Statement statement) {
  try {
    statement();
    return true;
  } catch (const VbError& error) {
    HandleRunError(run, error, old_path, new_path, note);
  } catch (const std::bad_alloc&) {
    HandleRunError(run, VbError(vb_error::kOutOfMemory, "Out of memory"), old_path, new_path, note);
  } catch (const std::exception& error) {
    HandleRunError(run, VbError(vb_error::kInvalidProcedureCall, error.what()), old_path, new_path,
                   note);
  }
  return false;
}

}  // namespace tarnwick

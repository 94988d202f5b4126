#pragma once

namespace tarnwick {

class RunLog;
struct LogUndoEnv;

// The start-up's memory of whether the last start finished: the option
// `ResetPath` is "1" from the moment start-up begins its real work until it
// has succeeded, so a start that crashed in between leaves "1" behind.
//
// RecoverFromFailedStart, early in start-up: when `ResetPath` is "1", the
// previous start never finished, so it
//   1. logs (WriteLogFileTool) the subject "Previous Load Error" with the text
//      of message 1030 and " [" + the date + "]",
//   2. deletes the whole section "Options" and no other,
//   3. shows "Tarnwick could not start properly so all options are set back
//      to their defaults." with title "ATTENTION!" and the information icon,
// and returns true. Otherwise it stores "1" in `ResetPath` and returns false.
// Kept: after a recovery the flag is not set again for this start, so a crash
// right after a recovery goes unnoticed at the next start.
bool RecoverFromFailedStart(const LogUndoEnv& env, RunLog& log);

// Every normal ending of start-up (and the end of an unattended run) stores
// "0" in `ResetPath`.
void MarkStartFinished(const LogUndoEnv& env);

}  // namespace tarnwick

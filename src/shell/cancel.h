#pragma once

#include "shell/app_state.h"

namespace tarnwick {

// Ctrl-C cancels a job on the command line the way Esc does in the window.
//
// While installed, SIGINT sets `state.CancelRun` (the run reads it once per
// file) and leaves a request that TakeInterruptRequest() returns once. A
// second Ctrl-C while CancelRun is still set, that is, before the job has
// acted on the first, ends the process as Ctrl-C normally does, so a job
// stuck in one file can still be stopped.
//
// Only one state is served at a time; installing again serves the new one.
// `state` must outlive the installation.
void InstallInterruptCancel(AppState& state);

// Puts back the handling of SIGINT that was in place before the first
// InstallInterruptCancel and forgets the state. Harmless when not installed.
void RestoreInterruptHandling();

// True once for each Ctrl-C that came since the last call.
bool TakeInterruptRequest();

// Installs for the lifetime of the object.
class ScopedInterruptCancel {
 public:
  explicit ScopedInterruptCancel(AppState& state) { InstallInterruptCancel(state); }
  ~ScopedInterruptCancel() { RestoreInterruptHandling(); }
  ScopedInterruptCancel(const ScopedInterruptCancel&) = delete;
  ScopedInterruptCancel& operator=(const ScopedInterruptCancel&) = delete;
};

}  // namespace tarnwick

#pragma once

#include <chrono>

#include "core/start_rename.h"

namespace tarnwick {

// The end every job shares, a run and each tool alike.

// `PlayFinishSound`: with `ReadySound` on, the wave of `ReadySoundPath`
// (default: the program folder's "Media/notify.wav"), and a moment for it.
void PlayFinishSound(const RenameRunEnv& env);

// With `TimeMeasuring` "1": "Job duration" and the time since `started` as
// hh:mm:ss.
void ShowJobDuration(const RenameRunEnv& env, std::chrono::steady_clock::time_point started);

}  // namespace tarnwick

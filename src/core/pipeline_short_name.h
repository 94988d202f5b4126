#pragma once

#include <string_view>

#include "core/pipeline_env.h"

namespace tarnwick {

// The short-name check before the actions: a name too short for a ticked
// cut left, cut right or replace range (its base with the dot counted,
// against the value of `txtLeftCut`, `txtRightCut` or `txtFromChar`) is
// announced in a box that asks "Continue with next file?"; No sets
// `CancelRun`. Returns true when the file is to keep its name. May raise
// VbError 6 for a field value beyond the range of numbers.
bool StopForShortName(const PipelineEnv& env, std::string_view name);

}  // namespace tarnwick

#pragma once

#include "base/vb_error.h"

namespace tarnwick {

// Runs one statement under "resume next": a run-time error ends the
// statement, and whatever it was to assign keeps its value before.
template <typename Statement>
void ResumeNext(Statement statement) {
  try {
    statement();
  } catch (const VbError&) {
  }
}

}  // namespace tarnwick

#pragma once

#include "core/rename_settings.h"
#include "persist/snapshot_rename_settings.h"

namespace tarnwick {

// The log's snapshot of the renaming controls.
RenameSettingsSnapshot SnapshotOf(const RenameSettings& settings);

}  // namespace tarnwick

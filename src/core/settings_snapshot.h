#pragma once

#include "core/rename_settings.h"
#include "persist/snapshot_rename_settings.h"

namespace tarnwick {

// The renaming controls as the log's settings snapshot prints them.
RenameSettingsSnapshot SnapshotOf(const RenameSettings& settings);

}  // namespace tarnwick

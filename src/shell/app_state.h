#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "base/random_pool.h"

namespace tarnwick {

// The state of the main window that every part working on it shares. One
// object lives as long as the process; the front end owns it and hands it to
// the core by reference. Nothing in it is global.
//
// The fields that other code knows by name keep those names; the rest follow
// the usual style.
struct AppState {
  AppState() = default;
  AppState(const AppState&) = delete;
  AppState& operator=(const AppState&) = delete;

  // Folder whose files the list shows; kept equal to the folder browser's path.
  std::string CurrentPath;
  // Extension filter of the list.
  std::string CurrentFilter = "*.*";
  // Copies of the options ShowHiddenFiles and ShowSystemFiles, taken at each
  // fill of the list.
  std::uint8_t ShowHiddenFlag = 0;
  std::uint8_t ShowSystemFlag = 0;

  // A start with "-d": no confirmation before the run.
  bool BatchMode = false;
  // From the first steps of start-up until the window is ready; control events
  // are ignored meanwhile.
  bool LoadingFlag = false;
  // A renaming control changed since the last load or save of a settings file.
  bool SettingsDirty = false;
  // A renaming text field holds the focus.
  bool FieldHasFocus = false;

  // Row being processed.
  std::int32_t CurrentRow = 0;
  // The numbering counter.
  std::int32_t CurrentCount = 0;
  // Files that have used the present counter value.
  std::int32_t SameNumberCount = 0;
  // Last folder and last day at which the counter was reset.
  std::string LastCounterFolder;
  std::string LastCounterDate;

  // Request to stop the run or the fill of the list; set by Esc, by Ctrl-C
  // (from a signal handler, see cancel.h) and by dialogues. An atomic so a
  // signal handler may set it; read and write it like a plain bool.
  std::atomic<bool> CancelRun{false};
  static_assert(std::atomic<bool>::is_always_lock_free);

  // Selected rows at the start of a run, lowered by one for each file dealt
  // with.
  std::int32_t RunFileCount = 0;
  // A file of the run was found open by another program.
  bool FileLockSeen = false;

  // A job is running: stands for "the start button is disabled". Set and
  // cleared with the window's controls (PrepareButtons); other code tests it
  // to know whether a job is under way.
  bool run_active = false;

  // Placeholder state kept between expansions: the counter value at the
  // previous pass, the letter counter and the pool of random numbers.
  std::int32_t LastCharCount = 0;
  std::string CharCounterText;
  RandomPool random_pool;

  // File name of the settings file loaded last, for the title of the settings
  // frame and the preset of the save dialogue; empty when none was loaded.
  std::string loaded_settings_name;
};

}  // namespace tarnwick

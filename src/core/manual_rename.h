#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/pipeline_env.h"
#include "shell/interaction_dialogs.h"

namespace tarnwick {

class RowExpander;

// The longest name the manual dialogue lets through, in characters.
inline constexpr std::int64_t kManualNameMaxLength = 233;

// The cursor choices of the dialogue as the options of section
// `ManualRename` hold them (`ChangeCursorStart`, `StartPosition`,
// `EndPosition`, `SelectAll`, `ToExtension`; all "0" by default).
ManualRenameCursor ReadManualRenameCursor(const OptionStore& options);
void StoreManualRenameCursor(OptionStore& options, const ManualRenameCursor& cursor);
// Puts all five back to "0", as a run does at its start.
void ResetManualRenameCursor(OptionStore& options);

// The part of `name` the dialogue selects on opening, by caret positions
// from 0 to the length of the name in characters. "Select whole filename"
// selects everything; "Select filename" selects from the start to the end
// position; the tick of the extension makes the selection end before the
// extension's dot. Positions carried over from a longer name are clamped to
// this one's end, and an end before the start selects nothing.
struct NameSelection {
  std::int64_t start = 0;
  std::int64_t length = 0;
};
NameSelection ManualRenameSelection(const ManualRenameCursor& cursor, std::string_view name);

// `RenameFile`, action 10 of the pipeline: shows `name`, expanded with the
// date text "dummy" (so date tokens give nothing usable here), for manual
// editing, with the row's present name beside it. OK stores the cursor
// choices. The name entered is tested in this order: a forbidden character
// ("You have entered an not allowed char ...") or more than 233 characters
// ("Length of filename is to long!") show a box and open the dialogue again
// on the expanded name. Cancel asks "Do you really want to cancel the
// renaming?": Yes sets `CancelRun` and gives `name` as it came in, No opens
// the dialogue again. Otherwise the result is the name entered.
std::string RenameFile(const PipelineEnv& env, RowExpander& expander, std::string_view name);

}  // namespace tarnwick

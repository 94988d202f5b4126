#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/pipeline_env.h"

namespace tarnwick {

// The live sample: what the selected file would be called with the controls
// as they are now. The window's timer asks for it at the rate the user chose;
// this is the part that needs no window.

// `SampleRefreshRate`, stored as the word of the user's language.
enum class SampleRate { kTurnOff, kNormal, kAverage, kSlow, kSpecial };

// The rate the options hold. A word that is none of the five (in the
// language of `messages`) counts as "Normal" and is stored as such.
SampleRate ReadSampleRate(OptionStore& options, const MessageTable& messages);

// The timer's interval in milliseconds; 0 for "Turn off", which leaves the
// timer as it is.
int SampleIntervalMilliseconds(SampleRate rate);

// The moments when the sample keeps its present text, so that no work is done
// in the background or while the user types with the rate "Special".
struct SampleConditions {
  bool window_in_front = true;
  bool folder_changing = false;  // the folder browser is on its way elsewhere
  bool field_has_focus = false;  // AppState::FieldHasFocus
};
bool SampleKeepsItsText(const SampleConditions& conditions, SampleRate rate);

struct Sample {
  std::string text;
  // The clean-up replaced characters: the sample shows in red.
  bool illegal_chars_replaced = false;
};

// `ComputeSample` for the row `row` (folder: the row's absolute folder):
// outside a run the counter starts from `txtStartNumber`; the ticked actions
// run in the stored order without the clean-up between them, manual edit
// does nothing; the whole is expanded once and cleaned of illegal
// characters. With the rate "Turn off" the text is "* Preview disabeld *"
// (cleaned like any other). No question is asked. Nothing when a step
// fails: the window keeps the sample it shows.
std::optional<Sample> ComputeSample(const PipelineEnv& env, std::size_t row,
                                    std::string_view folder, SampleRate rate);

// The name of the row with the controls as they are, at the present counter
// value (`AppState::CurrentCount`), computed as the sample does: no question,
// no counter step. Nothing when a step fails.
std::optional<Sample> ComputeRowName(const PipelineEnv& env, std::size_t row,
                                     std::string_view folder);

// The caption of the sample frame: "Sample   [Length: 12 chars]".
std::string SampleFrameCaption(const MessageTable& messages, std::string_view sample);

// The status line for a selection in the sample, positions counted from 0
// as a text field gives them: "Selected length: 3 chars, from char 2 to 4
// "abc"", the selected text cut to 80 characters and " ..." when longer.
// Empty when nothing is selected.
std::string SampleSelectionStatus(const MessageTable& messages, std::string_view sample,
                                  std::size_t selection_start, std::size_t selection_length);

}  // namespace tarnwick

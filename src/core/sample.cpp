// The live sample of the new name.
#include "core/sample.h"

#include <array>
#include <exception>

#include "base/text.h"
#include "core/action_order.h"
#include "core/expansion_setup.h"
#include "core/numbering.h"
#include "core/pipeline_actions.h"
#include "core/pipeline_illegal_chars.h"
#include "core/rename_settings.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/option_choice.h"

namespace tarnwick {
namespace {

struct RateWord {
  SampleRate rate;
  std::string_view key;
};

constexpr std::array<RateWord, 5> kRateWords = {{
    {SampleRate::kTurnOff, "sample.rate_turn_off"},
    {SampleRate::kNormal, "sample.rate_normal"},
    {SampleRate::kAverage, "sample.rate_average"},
    {SampleRate::kSlow, "sample.rate_slow"},
    {SampleRate::kSpecial, "sample.rate_special"},
}};

std::string Text(const MessageTable& messages, std::string_view key) {
  return std::string(messages.Text(key));
}

// The actions in the stored order, without the clean-up between them; the
// manual edit has no place in a sample.
std::string RunSampleActions(const PipelineEnv& env, RowExpander& expander) {
  std::string name = expander.row_name();
  for (int code : ReadActionOrder(env.options)) {
    if (code == kActionEditManual || !ActionTicked(env.settings, code)) continue;
    name = ApplyAction(code, ActionInputs{env.settings, expander, env.app.CurrentCount}, name);
  }
  return expander.Expand(name);
}

}  // namespace

SampleRate ReadSampleRate(OptionStore& options, const MessageTable& messages) {
  const std::string word = options.GetOption("SampleRefreshRate", "Options", "");
  if (word.empty()) return SampleRate::kNormal;
  std::array<std::string_view, kRateWords.size()> keys;
  for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = kRateWords[i].key;
  if (const auto choice = FindChoice(word, keys)) return kRateWords[*choice].rate;
  // Kept: a word of no rate is put right in the store.
  options.SaveOption("SampleRefreshRate", "Options", ChoiceValue("sample.rate_normal"));
  return SampleRate::kNormal;
}

int SampleIntervalMilliseconds(SampleRate rate) {
  switch (rate) {
    case SampleRate::kTurnOff:
      return 0;
    case SampleRate::kAverage:
      return 1500;
    case SampleRate::kSlow:
      return 2500;
    case SampleRate::kNormal:
    case SampleRate::kSpecial:
      return 500;
  }
  return 500;
}

bool SampleKeepsItsText(const SampleConditions& conditions, SampleRate rate) {
  if (!conditions.window_in_front || conditions.folder_changing) return true;
  return rate == SampleRate::kSpecial && conditions.field_has_focus;
}

std::optional<Sample> ComputeSample(const PipelineEnv& env, std::size_t row,
                                    std::string_view folder, SampleRate rate) {
  try {
    std::string text;
    if (rate == SampleRate::kTurnOff) {
      text = Text(env.messages, "sample.preview_disabled");
    } else {
      // Outside a run the sample shows the first number.
      if (!env.app.run_active) env.app.CurrentCount = StartNumberValue(env.settings);
      return ComputeRowName(env, row, folder);
    }
    Sample sample;
    sample.text = ReplaceIllegalChars(text, env.options);
    sample.illegal_chars_replaced = !EqualsText(sample.text, text);
    return sample;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

std::optional<Sample> ComputeRowName(const PipelineEnv& env, std::size_t row,
                                     std::string_view folder) {
  try {
    RowExpander expander(env, row, folder);
    const std::string text = RunSampleActions(env, expander);
    Sample sample;
    sample.text = ReplaceIllegalChars(text, env.options);
    sample.illegal_chars_replaced = !EqualsText(sample.text, text);
    return sample;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

std::string SampleFrameCaption(const MessageTable& messages, std::string_view sample) {
  return Text(messages, "sample.frame_caption") + "   [" + Text(messages, "sample.length") + ": " +
         std::to_string(vb::Len(sample)) + " " + Text(messages, "sample.chars") + "]";
}

std::string SampleSelectionStatus(const MessageTable& messages, std::string_view sample,
                                  std::size_t selection_start, std::size_t selection_length) {
  if (selection_length == 0) return {};
  const auto start = static_cast<std::int64_t>(selection_start) + 1;
  const auto length = static_cast<std::int64_t>(selection_length);
  std::string selected = vb::Mid(sample, start, length);
  if (vb::Len(selected) > 80) selected = vb::Left(selected, 80) + " ...";
  return Text(messages, "sample.selected_length") + ": " + std::to_string(length) + " " +
         Text(messages, "sample.chars") + ", " + Text(messages, "sample.from_char") + " " +
         std::to_string(start) + " " + Text(messages, "sample.to") + " " +
         std::to_string(start + length - 1) + " \"" + selected + "\"";
}

}  // namespace tarnwick

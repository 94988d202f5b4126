#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

struct RenameSettings;
class RowExpander;

// What the actions read: the controls, the expansions for the row, and the
// counter for the number.
struct ActionInputs {
  const RenameSettings& settings;
  RowExpander& expander;
  std::int32_t current_count = 0;
};

// Whether the tick of action `code` (1 to 10) is set; false for other codes.
bool ActionTicked(const RenameSettings& settings, int code);

// Runs action `code` (1 to 9) on `name` and returns the new name; other
// codes give the name unchanged. Below, E(x) stands for: x expanded, or x as
// it stands when the expansion is empty. May raise VbError (a cut longer than
// the name, a number that overflows); the caller's handler reports it.
std::string ApplyAction(int code, const ActionInputs& in, std::string_view name);

// The single actions, for the sample and the tests.
std::string ActionCompleteName(const ActionInputs& in, std::string_view name);
std::string ActionExtension(const ActionInputs& in, std::string_view name);
std::string ActionReplaceRange(const ActionInputs& in, std::string_view name);
std::string ActionCutLeft(const ActionInputs& in, std::string_view name);
std::string ActionPrefix(const ActionInputs& in, std::string_view name);
std::string ActionCutRight(const ActionInputs& in, std::string_view name);
std::string ActionPostfix(const ActionInputs& in, std::string_view name);
std::string ActionReplaceText(const ActionInputs& in, std::string_view name);
std::string ActionUsePlaceholder(const ActionInputs& in, std::string_view name);

}  // namespace tarnwick

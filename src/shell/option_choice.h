#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// An option whose value is one of a few words (`FileDateType`,
// `SampleRefreshRate`, `Language`) is stored as the English word of the
// choice, whatever the language of the window that stored it, and read in
// the word of either language: a value a German window stored works in an
// English one and back, and switching the language changes no result.

// The index in `choice_keys` (message table keys) of the choice `stored`
// names, in English or German, without regard to case; nothing when it
// names none of them (an empty value included).
std::optional<std::size_t> FindChoice(std::string_view stored,
                                      std::span<const std::string_view> choice_keys);

// The value to store for the choice `choice_key`.
std::string ChoiceValue(std::string_view choice_key);

}  // namespace tarnwick

#pragma once

#include <span>
#include <string_view>

namespace tarnwick {

// One caption or message of the user interface. `id` is the number the texts
// are known by; 0 for a text that has none and is found by `key` only. Every
// entry has a key.
struct MessageEntry {
  int id;
  std::string_view key;
  std::string_view english;
  std::string_view german;
};

// The whole table, in the order of its source (grouped by subsystem).
std::span<const MessageEntry> AllMessages();

}  // namespace tarnwick

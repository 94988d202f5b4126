#include "shell/message_data.h"

namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    {1012, "media.yes", "Yes", "Ja"},
    {1013, "media.no", "No", "Nein"},
};

}  // namespace

std::span<const MessageEntry> Media() { return kEntries; }

}  // namespace tarnwick::message_data

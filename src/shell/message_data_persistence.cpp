#include "shell/message_data.h"

namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    {0, "log.cancelled_by_user", "Operation cancelled by user!",
     "Vorgang vom Benutzer abgebrochen!"},
};

}  // namespace

std::span<const MessageEntry> Persistence() { return kEntries; }

}  // namespace tarnwick::message_data

#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tarnwick {

class OptionStore;
class MessageTable;

// Which stamp the date column (and so the date placeholders) shows:
// `FileDateType`, in the order of the options dialogue's choices.
enum class FileDateKind { kCreated = 0, kLastWrite = 1, kLastAccess = 2 };

inline constexpr std::array<std::string_view, 3> kFileDateChoices = {
    "options.file_date_created", "options.file_date_last_modified",
    "options.file_date_last_access"};

// Nothing stored: the last write. A stored choice (in either language): its
// stamp. Anything else: the creation stamp.
FileDateKind ReadFileDateKind(const OptionStore& options);

// The heading of the date column, in the window's language. Kept: with
// nothing stored it says "Created" while the rows show the last write.
std::string FileDateHeading(const OptionStore& options, const MessageTable& messages);

}  // namespace tarnwick

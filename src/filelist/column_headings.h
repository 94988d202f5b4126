#pragma once

#include <array>
#include <string>

#include "filelist/file_row.h"

namespace tarnwick {

class OptionStore;
class MessageTable;

// The headings of the eleven columns in the user's language. The date column
// is headed by the option `FileDateType`, with "Created" as its default
// while the rows take "Last Modified" by default. Kept: until the option is
// saved, "Created" stands over last-write dates. The hidden columns 9 and 10
// have no heading.
std::array<std::string, file_column::kCount> ColumnHeadings(const OptionStore& options,
                                                            const MessageTable& messages);

}  // namespace tarnwick

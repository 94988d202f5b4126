#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "media/report_row.h"

namespace tarnwick {

// The header line of the MP3 report; `message` gives the texts 221, 226, 250.
std::string MP3ReportHeader(const std::function<std::string(int)>& message);

// The report line of one row (without line break).
std::string MP3ReportLine(const ReportRow& row);

// Writes the MP3 report: the header and one line for each row, each ended by
// CR LF, fields joined by ";" without quoting. False when the file cannot be
// written; the old file then stays.
bool WriteMP3Report(const std::filesystem::path& out, std::span<const ReportRow> rows,
                    const std::function<std::string(int)>& message);

}  // namespace tarnwick

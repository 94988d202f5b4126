#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>

#include "media/report_row.h"

namespace tarnwick {

class ExifReader;
class MessageTable;

// Asked before each row with its place (from 1) and the count; false stops
// the report after the rows written so far.
using ReportProgress = std::function<bool(std::size_t place, std::size_t count)>;

// The header line of the EXIF report.
std::string ExifReportHeader(const MessageTable& messages);

// The line of one picture: name, size, folder, "width x height", and the
// values of the 54 tags ("n/a" where a value is missing), joined by ";".
std::string ExifReportLine(ExifReader& reader, const ReportRow& row);

// `mnuSaveJPEGEXIFInfo`: writes the header and one line per row to `out`,
// each ended by CR LF. False when the file cannot be written.
bool WriteExifReport(const std::filesystem::path& out, std::span<const ReportRow> rows,
                     ExifReader& reader, const MessageTable& messages,
                     const ReportProgress& progress = {});

}  // namespace tarnwick

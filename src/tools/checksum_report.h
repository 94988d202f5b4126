#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_status.h"
#include "tools/tool_job.h"

namespace tarnwick {

enum class DigestKind { kMd5, kSha256 };

// "MD5" or "SHA256", as the report lines name them.
std::string_view DigestName(DigestKind kind);

// The digest of the bytes of the file at `path`, in lower-case hexadecimal
// (as md5sum and sha256sum print it), read in blocks and never held whole.
// `cancel` is asked between blocks; when it says true, the result is empty
// and the status OK. The error when the file cannot be read.
FileResult<std::string> FileDigest(const std::string& path, DigestKind kind,
                                   const std::function<bool()>& cancel = {});

// One file of a report: its path and its digest, or why there is none.
struct ChecksumLine {
  std::string path;
  std::string digest;
  FileStatus status;
};

struct ChecksumReport {
  ToolJobResult result;
  std::vector<ChecksumLine> lines;
  // The report window's text: "path; MD5: digest" per file, each ended by
  // CR LF; a file that could not be read says why in place of its digest.
  std::string text;
};

// `mnuGetMD5Checksums` / `mnuGetSHA256Checksums`: a digest of every selected
// row in list order, each logged; Esc stops between files and inside a
// large file, keeping the lines made so far. A file that vanished or cannot
// be read gets its line with the error, and the job goes on.
ChecksumReport BuildChecksumReport(const RenameRunEnv& env, DigestKind kind);

}  // namespace tarnwick

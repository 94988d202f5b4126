// The checksum reports: a digest of every selected file.
#include "tools/checksum_report.h"

#include <openssl/evp.h>

#include <memory>

#include "filelist/file_list.h"
#include "platform/file_overwrite.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using DigestContext = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

std::string Hex(const unsigned char* bytes, unsigned int size) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  text.reserve(size * 2);
  for (unsigned int i = 0; i < size; ++i) {
    text += kDigits[bytes[i] >> 4];
    text += kDigits[bytes[i] & 15];
  }
  return text;
}

std::string ErrorText(const FileStatus& status) {
  return std::to_string(status.number) + ": " + status.description;
}

}  // namespace

std::string_view DigestName(DigestKind kind) { return kind == DigestKind::kMd5 ? "MD5" : "SHA256"; }

FileResult<std::string> FileDigest(const std::string& path, DigestKind kind,
                                   const std::function<bool()>& cancel) {
  if (!FileExists(path)) {
    return FileStatus::Error(FolderExists(path) ? vb_error::kPathFileAccessError
                                                : vb_error::kFileNotFound);
  }
  DigestContext context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
  const EVP_MD* algorithm = kind == DigestKind::kMd5 ? EVP_md5() : EVP_sha256();
  if (!context || EVP_DigestInit_ex(context.get(), algorithm, nullptr) != 1) {
    return FileStatus::Error(vb_error::kOutOfMemory);
  }
  bool cancelled = false;
  const FileStatus read = ReadFileInBlocks(path, [&](std::span<const unsigned char> block) {
    EVP_DigestUpdate(context.get(), block.data(), block.size());
    cancelled = cancel && cancel();
    return !cancelled;
  });
  if (!read.ok()) return read;
  if (cancelled) return std::string();
  unsigned char digest[EVP_MAX_MD_SIZE];
  unsigned int size = 0;
  EVP_DigestFinal_ex(context.get(), digest, &size);
  return Hex(digest, size);
}

ChecksumReport BuildChecksumReport(const RenameRunEnv& env, DigestKind kind) {
  ChecksumReport report;
  ToolJob job(env);
  const std::string subject = std::string(DigestName(kind)) + " checksum";
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    ChecksumLine line{env.list.Path(job.rows()[i]), {}, {}};
    const FileResult<std::string> digest =
        FileDigest(line.path, kind, [&job] { return job.CancelAsked(); });
    if (job.result().cancelled) break;
    line.status = digest.status();
    line.digest = digest.value();
    if (line.status.ok()) {
      job.Done();
    } else {
      job.Failed(line.path, ErrorText(line.status));
    }
    const std::string value = line.status.ok()
                                  ? line.digest
                                  : job.Text("run.log_error") + " " + ErrorText(line.status);
    const std::string text = line.path + "; " + std::string(DigestName(kind)) + ": " + value;
    report.text += text + "\r\n";
    job.LogTool(subject, text);
    report.lines.push_back(std::move(line));
    job.EndFile(i);
  }
  job.Finish(false);
  report.result = job.result();
  return report;
}

}  // namespace tarnwick

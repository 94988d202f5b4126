#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file_status.h"

namespace tarnwick {

// Opens `file` for appending (creating it when missing), writes `bytes` with
// one system call, and closes it again. Nothing stays open between two calls,
// so a crash loses no line that was already written. Writing is repeated
// after a short write; an error gives the run-time error the user sees
// (76 for a missing folder, 70 for a file or folder that refuses writing,
// 61 for a full disk ...).
FileStatus AppendToFile(const std::filesystem::path& file, std::string_view bytes);

// AppendToFile for the entries of a run: the file stays open between two
// appends, so an entry costs one write instead of an open, a write and a
// close. The bytes and their order on disk are those of AppendToFile, and
// an entry is in the file as soon as Append returns, as there. Another path
// than the one held opens that file instead. Nothing is held after Close()
// or the end of the object. While a file is held, it must not be replaced
// by another file under its name (the entries would go to the old one).
class HeldAppendFile {
 public:
  HeldAppendFile() = default;
  ~HeldAppendFile();
  HeldAppendFile(const HeldAppendFile&) = delete;
  HeldAppendFile& operator=(const HeldAppendFile&) = delete;

  FileStatus Append(const std::filesystem::path& file, std::string_view bytes);
  void Close();

 private:
  std::filesystem::path path_;
  int fd_ = -1;
};

// Appends the whole content of `source` behind the end of `target`.
FileStatus AppendFileToFile(const std::filesystem::path& source,
                            const std::filesystem::path& target);

// Replaces `file` by a new file holding `bytes`: the text goes to a temporary
// name in the same folder first and is then renamed over the old file, so a
// failure leaves the old file whole. A read-only old file is replaced as well.
FileStatus ReplaceFileWith(const std::filesystem::path& file, std::string_view bytes);

}  // namespace tarnwick

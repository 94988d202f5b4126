// Arbitrary bytes as an MP3 file: reading both tag versions must not crash,
// hang or read outside its buffers; rewriting the version 2 tag must keep the
// bytes behind the old tag and read back the title it wrote.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "base/text.h"
#include "base/vb_error.h"
#include "media/id3_size.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/id3_v2_write.h"
#include "media/media_file.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

const std::string& ScratchPath() {
  static const std::string path = [] {
    // tmpfs when there is one: the target writes a file for every input.
    char name[] = "/dev/shm/tw-id3-fuzz-XXXXXX";
    if (access("/dev/shm", W_OK) != 0) std::strcpy(name, "/tmp/tw-id3-fuzz-XXXXXX");
    const int fd = mkstemp(name);
    if (fd >= 0) close(fd);
    return std::string(name);
  }();
  static const bool cleanup = std::atexit([] { unlink(ScratchPath().c_str()); }) == 0;
  (void)cleanup;
  return path;
}

void WriteScratch(const std::uint8_t* data, std::size_t size) {
  std::ofstream out(ScratchPath(), std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  WriteScratch(data, size);
  const std::string& path = ScratchPath();
  ID3v1Tag v1;
  ReadID3v1(path, v1);
  ID3v2Tag v2;
  ReadID3v2(path, v2);

  // Rewriting flushes the new file to disk: done for a quarter of the inputs.
  if (size % 4 != 1) return 0;
  std::int64_t old_total = 0;
  {
    const MediaFile file(path, MediaFile::Mode::kRead);
    old_total = std::min<std::int64_t>(ID3v2TagSize(file, 0, false), file.Size());
  }
  ID3v2Tag record;
  record.title = "Fuzzed";
  record.genre = StripAtNull(v2.genre);
  try {
    Check(WriteID3v2(path, record, size % 8 == 1 ? kID3v23 : kID3v24, size % 3 == 0, false, false));
  } catch (const VbError&) {
    return 0;  // a genre above Latin-1 cannot be written: the file is untouched
  }
  std::ifstream in(path, std::ios::binary);
  const std::string written((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  const std::size_t rest = size - static_cast<std::size_t>(old_total);
  Check(written.size() >= rest);
  Check(written.compare(written.size() - rest, rest,
                        std::string(reinterpret_cast<const char*>(data) + old_total, rest)) == 0);
  ID3v2Tag back;
  Check(ReadID3v2(path, back));
  Check(StripAtNull(back.title) == "Fuzzed");
  return 0;
}

// Arbitrary bytes as an MP3 or WAV file: the stream facts, the lengths and
// the media column text must not crash, hang or read outside their buffers,
// and a found frame must give sane facts.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "base/vb_error.h"
#include "media/audio_length.h"
#include "media/mpeg_info.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

std::string ScratchPath(const char* extension) {
  // tmpfs when there is one: the target writes two files for every input.
  char name[] = "/dev/shm/tw-mpeg-fuzz-XXXXXX";
  if (access("/dev/shm", W_OK) != 0) std::strcpy(name, "/tmp/tw-mpeg-fuzz-XXXXXX");
  const int fd = mkstemp(name);
  if (fd >= 0) close(fd);
  unlink(name);
  return std::string(name) + extension;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  static const std::string mp3 = ScratchPath(".mp3");
  static const std::string wav = ScratchPath(".wav");
  static const bool cleanup = std::atexit([] {
                                unlink(mp3.c_str());
                                unlink(wav.c_str());
                              }) == 0;
  (void)cleanup;
  for (const std::string* path : {&mp3, &wav}) {
    std::ofstream out(*path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  MPEGInfo info;
  try {
    if (ReadMPEGInfo(mp3, info)) {
      Check(info.mpegVersion.starts_with("version "));
      Check(info.bitrate >= 0 && info.frequency >= 0 && info.frequency <= 48000);
      Check(info.fileSize == static_cast<std::int32_t>(size));
    }
  } catch (const VbError&) {
    // The reserved sampling rate with a VBR header: reported to the caller.
  }
  Check(MCILengthMP3(mp3) >= 0);
  const double seconds = MCILengthWAV(wav);
  Check(seconds == -1 || seconds >= 0);
  Check(MediaInfoText(mp3).ends_with(" min."));
  MediaInfoText(wav);
  return 0;
}

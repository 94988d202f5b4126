// Arbitrary bytes as a playlist file: decoding, detection and both readers
// must not crash or hang. Rows read and written again must read back the same
// after one save (the first save makes every length whole seconds), and the
// encoding of any text must decode to the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "playlist/m3u.h"
#include "playlist/playlist_file.h"
#include "playlist/playlist_text.h"
#include "playlist/pls.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

bool SameRows(const std::vector<tarnwick::PlaylistRow>& a,
              const std::vector<tarnwick::PlaylistRow>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (!a[i].SameEntry(b[i])) return false;
  }
  return true;
}

template <typename Read, typename Write>
void CheckStable(const std::vector<tarnwick::PlaylistRow>& rows, Read read, Write write) {
  if (tarnwick::FirstUnstorableRow(rows) >= 0) return;
  const std::vector<tarnwick::PlaylistRow> once = read(write(rows));
  Check(tarnwick::FirstUnstorableRow(once) < 0);
  Check(SameRows(read(write(once)), once));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (bool utf8_only : {false, true}) {
    const std::string text = tarnwick::DecodePlaylistBytes(bytes, utf8_only);
    Check(tarnwick::DecodePlaylistBytes(tarnwick::EncodePlaylistText(text, utf8_only),
                                        utf8_only) == text);
    tarnwick::DetectPlaylistFormat(text, utf8_only ? "list.m3u8" : "list.pls");
  }
  const std::string text = tarnwick::DecodePlaylistBytes(bytes, false);
  const auto read_m3u = [](const std::string& t) { return tarnwick::ReadM3u(t, "/fuzz"); };
  const auto read_pls = [](const std::string& t) { return tarnwick::ReadPls(t, "/fuzz"); };
  CheckStable(read_m3u(text), read_m3u,
              [](const std::vector<tarnwick::PlaylistRow>& r) { return tarnwick::WriteM3u(r); });
  CheckStable(read_pls(text), read_pls,
              [](const std::vector<tarnwick::PlaylistRow>& r) { return tarnwick::WritePls(r); });
  return 0;
}

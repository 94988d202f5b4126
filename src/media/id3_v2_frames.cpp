#include "media/id3_v2_frames.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "media/id3_text.h"

namespace tarnwick {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 62> kIdMap = {{
    {"UFI", "UFID"}, {"TT1", "TIT1"}, {"TT2", "TIT2"}, {"TT3", "TIT3"}, {"TP1", "TPE1"},
    {"TP2", "TPE2"}, {"TP3", "TPE3"}, {"TP4", "TPE4"}, {"TCM", "TCOM"}, {"TXT", "TEXT"},
    {"TLA", "TLAN"}, {"TCO", "TCON"}, {"TAL", "TALB"}, {"TPA", "TPOS"}, {"TRK", "TRCK"},
    {"TRC", "TSRC"}, {"TYE", "TYER"}, {"TDA", "TDAT"}, {"TIM", "TIME"}, {"TRD", "TRDA"},
    {"TMT", "TMED"}, {"TFT", "TFLT"}, {"TBP", "TBPM"}, {"TCR", "TCOP"}, {"TPB", "TPUB"},
    {"TEN", "TENC"}, {"TSS", "TSSE"}, {"TOF", "TOFN"}, {"TLE", "TLEN"}, {"TSI", "TSIZ"},
    {"TDY", "TDLY"}, {"TKE", "TKEY"}, {"TOT", "TOAL"}, {"TOL", "TOLY"}, {"TOR", "TORY"},
    {"TXX", "TXXX"}, {"WAF", "WOAF"}, {"WAR", "WOAR"}, {"WAS", "WOAS"}, {"WCM", "WCOM"},
    {"WCP", "WCOP"}, {"WPB", "WPUB"}, {"WXX", "WXXX"}, {"IPL", "IPLS"}, {"MCI", "MCDI"},
    {"ETC", "ETCO"}, {"MLL", "MLLT"}, {"STC", "SYTC"}, {"ULT", "USLT"}, {"SLT", "SYLT"},
    {"COM", "COMM"}, {"RVA", "RVAD"}, {"EQU", "EQUA"}, {"REV", "RVRB"}, {"PIC", "APIC"},
    {"GEO", "GEOB"}, {"CNT", "PCNT"}, {"POP", "POPM"}, {"BUF", "RBUF"}, {"CRA", "AENC"},
    {"LNK", "LINK"}, {"", ""},
}};

// Passes over a description (up to its NUL) and decodes the rest as the text.
std::string TextBehindDescription(std::span<const std::uint8_t> data, int encoding,
                                  int text_encoding) {
  std::size_t used = 0;
  BytesToText(data, encoding, used, true);
  used = std::min(used, data.size());
  std::size_t rest = 0;
  return BytesToText(data.subspan(used), text_encoding, rest, false);
}

}  // namespace

std::string MapFrameId(std::string_view id) {
  if (id.size() != 3) return std::string(id);
  for (const auto& [from, to] : kIdMap) {
    if (!from.empty() && from == id) return std::string(to);
  }
  return std::string(id);
}

std::string DecodeFrameValue(std::span<const std::uint8_t> data, std::string_view id) {
  if (data.empty()) return {};
  const int encoding = data[0];
  const auto behind = data.subspan(1);
  std::size_t used = 0;
  if (id == "TXX" || id == "TXXX") return TextBehindDescription(behind, encoding, encoding);
  if (id.starts_with("T")) return BytesToText(behind, encoding, used, false);
  if (id == "COM " || id == "COM" || id == "COMM" || id == "ULT" || id == "USLT") {
    if (behind.size() < 3) return {};
    return TextBehindDescription(behind.subspan(3), encoding, encoding);
  }
  if (id == "WXX" || id == "WXXX") return TextBehindDescription(behind, encoding, 0);
  if (id.starts_with("W")) return BytesToText(data, 0, used, false);
  if (id == "SEEK") {
    if (data.size() < 4) return {};
    const std::uint32_t offset = static_cast<std::uint32_t>(data[0]) << 24 |
                                 static_cast<std::uint32_t>(data[1]) << 16 |
                                 static_cast<std::uint32_t>(data[2]) << 8 | data[3];
    return std::to_string(offset);
  }
  return {};
}

void ConvertRawFrame(RawFrame& frame) {
  if (frame.id == "PIC" && frame.data.size() >= 4) {
    const std::string format =
        vb::UCase(std::string(frame.data.begin() + 1, frame.data.begin() + 4));
    std::string mime = "image/" + vb::LCase(format);
    if (format == "PNG") mime = "image/png";
    if (format == "JPG") mime = "image/jpeg";
    if (format == "-->") mime = "-->";
    // The 3 format bytes give way to the MIME text and its NUL.
    std::vector<std::uint8_t> data;
    data.push_back(frame.data[0]);
    data.insert(data.end(), mime.begin(), mime.end());
    data.push_back(0);
    data.insert(data.end(), frame.data.begin() + 4, frame.data.end());
    frame.data = std::move(data);
    frame.size = static_cast<std::uint32_t>(frame.data.size());
  } else if (frame.id == "LNK" && frame.data.size() >= 3) {
    const std::string linked = MapFrameId(std::string(frame.data.begin(), frame.data.begin() + 3));
    std::vector<std::uint8_t> data(linked.begin(), linked.end());
    data.resize(4, ' ');
    data.insert(data.end(), frame.data.begin() + 3, frame.data.end());
    frame.data = std::move(data);
    frame.size = static_cast<std::uint32_t>(frame.data.size());
  } else if (frame.id == "TDOR") {
    // Kept short on purpose: the encoding byte and three characters.
    frame.size = 4;
    frame.data.resize(4, 0);
  }
  frame.id = MapFrameId(frame.id);
}

}  // namespace tarnwick

#include "media/exif_report.h"

#include <array>
#include <cstdint>
#include <fstream>

#include "base/path_text.h"
#include "media/exif_reader.h"
#include "placeholders/picture_size.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// Kept: the header names one column fewer than the lines hold (there is no
// column for BrightnessValue), and two names are spelled as they always were.
constexpr std::string_view kHeaderTags =
    ";ApertureValue;CFAPattern;ColorSpace;ComponentsConfiguration;CompressedBitsPerPixel;"
    "Copyright;DateTime;DateTimeDigitized;DateTimeOriginal;ExifImageHeight;ExifImageWidth;"
    "ExifInteroperabilityOffset;ExifOffset;ExifVersion;ExposureBiasValue;ExposureIndex;"
    "ExposureProgram;Exposuretime;FileSource;Flash;FlashPixVersion;FNumber;FocalLength;"
    "sFocalPlaneResolutionUnit;FocalPlaneXResolution;FocalPlaneYResolution;ImageDescription;"
    "ISOSpeedRatings;LightSource;Make;MakerNote;MaxApertureValue;MeteringMode;Model;"
    "Orientation;PrimaryChromaticities;ReferenceBlackWhite;RelatedSoundFile;ResolutionUnit;"
    "SceneType;SensingMethod;ShutterSpeedValue;Software;SubjectDistance;SubsecTime;"
    "SubsecTimeDigitized;SubsecTimeOriginal;UserComment;WhitePoint;XResolution;"
    "YCbCrCoefficients;YCbCrPositioning;YResolution";

constexpr std::array<std::uint32_t, 54> kLineTags = {
    37378, 37379, 41730, 40961, 37121, 37122, 33432, 306,   36868, 36867, 40963,
    40962, 40965, 34665, 36864, 37380, 41493, 34850, 33434, 41728, 37385, 40960,
    33437, 37386, 41488, 41486, 41487, 270,   34855, 37384, 271,   37500, 37381,
    37383, 272,   274,   319,   532,   40964, 296,   41729, 41495, 37377, 305,
    37382, 37520, 37522, 37521, 37510, 318,   282,   529,   531,   283};

}  // namespace

std::string ExifReportHeader(const MessageTable& messages) {
  std::string header;
  for (const int id : {221, 226, 250, 852}) {
    if (!header.empty()) header += ";";
    header += messages.Text(id);
  }
  return header + std::string(kHeaderTags);
}

std::string ExifReportLine(ExifReader& reader, const ReportRow& row) {
  const std::string path = JoinPath(row.folder, row.name);
  const auto size = ReadPictureSize(path);
  std::string line = row.name + ";" + row.size + ";" + row.folder + ";";
  line += std::to_string(size ? size->width : 0) + " x " + std::to_string(size ? size->height : 0);
  reader.SetImageFile(path);
  for (const std::uint32_t tag : kLineTags) {
    // A picture the reader cannot parse leaves the preset "n/a" in place.
    std::string value = "n/a";
    reader.MetaInfo(tag, value, true);
    line += ";" + value;
  }
  return line;
}

bool WriteExifReport(const std::filesystem::path& out, std::span<const ReportRow> rows,
                     ExifReader& reader, const MessageTable& messages,
                     const ReportProgress& progress) {
  std::ofstream file(out, std::ios::binary | std::ios::trunc);
  if (!file) return false;
  file << ExifReportHeader(messages) << "\r\n";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (progress && !progress(i + 1, rows.size())) break;
    file << ExifReportLine(reader, rows[i]) << "\r\n";
  }
  file.flush();
  return static_cast<bool>(file);
}

}  // namespace tarnwick

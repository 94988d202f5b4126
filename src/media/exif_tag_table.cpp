#include "media/exif_tag_table.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array<ExifTagRow, 54> kRows = {{
    {270, "ImageDescription"},
    {271, "Make"},
    {272, "Model"},
    {274, "Orientation"},
    {282, "XResolution"},
    {283, "YResolution"},
    {296, "ResolutionUnit"},
    {305, "Software"},
    {306, "DateTime"},
    {318, "WhitePoint"},
    {319, "PrimaryChromaticities"},
    {529, "YCbCrCoefficients"},
    {531, "YCbCrPositioning"},
    {532, "ReferenceBlackWhite"},
    {33432, "Copyright"},
    {34665, "ExifOffset"},
    {33434, "ExposureTime"},
    {33437, "FNumber"},
    {34850, "ExposureProgram"},
    {34855, "ISOSpeedRatings"},
    {36864, "ExifVersion"},
    {36867, "DateTimeOriginal"},
    {36868, "DateTimeDigitized"},
    {37121, "ComponentsConfiguration"},
    {37122, "CompressedBitsPerPixel"},
    {37377, "ShutterSpeedValue"},
    {37378, "ApertureValue"},
    {37379, "BrightnessValue"},
    {37380, "ExposureBiasValue"},
    {37381, "MaxApertureValue"},
    {37382, "SubjectDistance"},
    {37383, "MeteringMode"},
    {37384, "LightSource"},
    {37385, "Flash"},
    {37386, "FocalLength"},
    {37500, "MakerNote"},
    {37510, "UserComment"},
    {37520, "SubsecTime"},
    {37521, "SubsecTimeOriginal"},
    {37522, "SubsecTimeDigitized"},
    {40960, "FlashPixVersion"},
    {40961, "ColorSpace"},
    {40962, "ExifImageWidth"},
    {40963, "ExifImageHeight"},
    {40964, "RelatedSoundFile"},
    {40965, "ExifInteroperabilityOffset"},
    {41486, "FocalPlaneXResolution"},
    {41487, "FocalPlaneYResolution"},
    {41488, "FocalPlaneResolutionUnit"},
    {41493, "ExposureIndex"},
    {41495, "SensingMethod"},
    {41728, "FileSource"},
    {41729, "SceneType"},
    {41730, "CFAPattern"},
}};

// Bytes per element, indexed by the TIFF field type.
constexpr std::array<int, 13> kFormatSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

}  // namespace

std::span<const ExifTagRow> ExifTagRows() { return kRows; }

std::string ExifTagName(std::uint32_t tag) {
  // The rows sorted by tag once, for a binary search.
  static const std::array<ExifTagRow, kRows.size()> sorted = [] {
    std::array<ExifTagRow, kRows.size()> rows = kRows;
    std::sort(rows.begin(), rows.end(),
              [](const ExifTagRow& a, const ExifTagRow& b) { return a.tag < b.tag; });
    return rows;
  }();
  const auto hit =
      std::lower_bound(sorted.begin(), sorted.end(), tag,
                       [](const ExifTagRow& row, std::uint32_t t) { return row.tag < t; });
  if (hit != sorted.end() && hit->tag == tag) return std::string(hit->name);
  return "Tag #" + std::to_string(tag);
}

int ExifFormatSize(std::uint32_t format) {
  return format < kFormatSizes.size() ? kFormatSizes[format] : -1;
}

}  // namespace tarnwick

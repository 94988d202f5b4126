#pragma once

#include <string>

#include "picture/picture_writers.h"
#include "tools/tool_job.h"

namespace tarnwick {

// `optSaveFormat` of `frmResizeJPG`.
enum class ResizeFormat { kJpeg = 0, kBmp = 1, kTiff = 2, kPng = 3 };

// The choices of `frmResizeJPG`.
struct ResizeChoices {
  bool by_percent = true;  // optMode: percentage, or size in pixels
  bool scale_up = false;   // optResizeMode
  double percent = 25;     // txtPercent
  int width = 0;           // txtWidth; 0 keeps the width
  int height = 0;          // txtHeight; 0 keeps the height
  bool blur = false;       // chkBlur
  ResizeFormat format = ResizeFormat::kJpeg;
  int quality = 75;  // hscQuality, for JPEG
  TiffCompression tiff = TiffCompression::kLzw;
  bool overwrite = false;   // chkSaveCopy
  std::string destination;  // txtDestinationDir; empty: each file's own folder
};

// `txtPercent` as a number: text that is not numeric is 25.
double PercentOf(const std::string& text);

// The size a picture of `width` by `height` is scaled to. By percent, with
// p the percentage: "Scale down" makes it p % of the original when p is at
// most 100, and 100 / p of it above; "Scale up" the other way round, so the
// mode gives the direction and p the amount (25 down is a quarter, 25 up
// four times). Each side is width / 100 * p in single precision, rounded to
// the nearest whole pixel (ties to even), at least 1. By pixels: the sides
// given, a side of 0 kept as it is.
std::pair<int, int> ResizedSize(int width, int height, const ResizeChoices& choices);

// `BlurPicture`: each colour byte the mean of four samples, a right shift of
// their sum by 2: the pixel itself, the one to its right, the one below and
// the one below right (a 2 by 2 box; at the right and bottom edge the last
// column and row repeat).
cImage BlurPicture(const cImage& image);

// `mnuResizeJPEG`: every selected row read, blurred if asked, scaled, and
// saved in the chosen format as name + .jpg, .bmp, .tif or .png. The
// picture stands at the top left of a surface 3 pixels wider and higher
// than its new size (the 45 logical units of the original surface at 15 a
// pixel); the strip at the right and bottom is white. Names, the question
// before replacing, the order of writing and deleting, the dates and the
// failures are as for CompressToJpeg.
ToolJobResult ResizePictures(const RenameRunEnv& env, const ResizeChoices& choices);

}  // namespace tarnwick

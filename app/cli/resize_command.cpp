// "resize": pictures scaled and saved as JPEG, BMP, TIFF or PNG.
#include <array>
#include <cstdlib>

#include "cli_job.h"
#include "picture/resize_job.h"
#include "platform/files.h"

namespace tarnwick::cli {
namespace {

struct ResizeArgs {
  FileArgs files;
  ResizeChoices choices;
  bool yes = false;
  bool percent_given = false;
  bool pixels_given = false;
};

std::optional<int> WholeNumber(const std::string& text, int low, int high) {
  char* end = nullptr;
  const long value = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || value < low || value > high) return std::nullopt;
  return static_cast<int>(value);
}

std::optional<std::string> TakeFormat(const std::string& text, ResizeChoices& c) {
  if (text == "jpeg" || text == "jpg")
    c.format = ResizeFormat::kJpeg;
  else if (text == "bmp")
    c.format = ResizeFormat::kBmp;
  else if (text == "tiff" || text == "tif")
    c.format = ResizeFormat::kTiff;
  else if (text == "png")
    c.format = ResizeFormat::kPng;
  else
    return "--format takes jpeg, bmp, tiff or png: '" + text + "'";
  return std::nullopt;
}

std::optional<std::string> TakeTiff(const std::string& text, ResizeChoices& c) {
  if (text == "lzw")
    c.tiff = TiffCompression::kLzw;
  else if (text == "ccitt3")
    c.tiff = TiffCompression::kCcitt3;
  else if (text == "ccitt4")
    c.tiff = TiffCompression::kCcitt4;
  else if (text == "rle")
    c.tiff = TiffCompression::kRle;
  else if (text == "none")
    c.tiff = TiffCompression::kNone;
  else
    return "--tiff-compression takes lzw, ccitt3, ccitt4, rle or none: '" + text + "'";
  return std::nullopt;
}

std::optional<std::string> ParseResize(std::span<const std::string> args, ResizeArgs& out) {
  ResizeChoices& c = out.choices;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool valued = arg == "--percent" || arg == "--width" || arg == "--height" ||
                        arg == "--format" || arg == "--quality" || arg == "--tiff-compression" ||
                        arg == "--dest";
    if (valued && i + 1 >= args.size()) return arg + " needs a value";
    if (arg == "--percent") {
      char* end = nullptr;
      c.percent = std::strtod(args[++i].c_str(), &end);
      if (*end != '\0' || !(c.percent > 0 && c.percent <= 10000)) {
        return "--percent takes a number above 0 and up to 10000: '" + args[i] + "'";
      }
      out.percent_given = true;
    } else if (arg == "--width" || arg == "--height") {
      const std::optional<int> pixels = WholeNumber(args[++i], 1, 65535);
      if (!pixels) return arg + " takes 1 to 65535 pixels: '" + args[i] + "'";
      (arg == "--width" ? c.width : c.height) = *pixels;
      out.pixels_given = true;
    } else if (arg == "--up") {
      c.scale_up = true;
    } else if (arg == "--blur") {
      c.blur = true;
    } else if (arg == "--format") {
      if (auto error = TakeFormat(args[++i], c)) return error;
    } else if (arg == "--quality") {
      const std::optional<int> quality = WholeNumber(args[++i], 0, 100);
      if (!quality) return "--quality takes 0 to 100: '" + args[i] + "'";
      c.quality = *quality;
    } else if (arg == "--tiff-compression") {
      if (auto error = TakeTiff(args[++i], c)) return error;
    } else if (arg == "--dest") {
      c.destination = args[++i];
    } else if (arg == "--replace") {
      c.overwrite = true;
    } else if (arg == "--yes" || arg == "-y") {
      out.yes = true;
    } else if (std::optional<std::string> error; out.files.Take(args, i, error)) {
      if (error) return error;
    } else if (arg.starts_with("--")) {
      return "unknown option " + arg;
    } else {
      out.files.files.push_back(arg);
    }
  }
  if (out.percent_given == out.pixels_given)
    return "give either --percent N or --width W and/or --height H";
  c.by_percent = out.percent_given;
  if (!c.destination.empty() && !FolderExists(c.destination)) {
    return "--dest names no folder: " + c.destination;
  }
  return out.files.Check();
}

int RunResize(std::span<const std::string> raw, CliIo& io) {
  ResizeArgs args;
  if (auto error = ParseResize(raw, args)) return UsageError(io, "resize", *error);
  CliJob job(io, args.yes, true);
  const auto tool = [&](const RenameRunEnv& env) { return ResizePictures(env, args.choices); };
  return RunConfirmedTool(job, io, "resize", args.files, tool, "written");
}

constexpr std::string_view kResizeDetails =
    "Options:\n"
    "  --percent N          the new size: N % of the original (25: a quarter\n"
    "                       of each side); with --up the same amount larger\n"
    "                       (25 --up: four times each side; 150 --up: one and\n"
    "                       a half)\n"
    "  --width W, --height H  the new size in pixels; a side not given stays\n"
    "  --up                 with --percent: enlarge instead of reduce\n"
    "  --blur               smooth first: each pixel the mean of itself and\n"
    "                       its right, lower and lower right neighbours\n"
    "  --format F           jpeg (default), bmp, tiff or png\n"
    "  --quality N          JPEG quality 0 to 100 (default 75)\n"
    "  --tiff-compression C lzw (default), ccitt3, ccitt4, rle (PackBits) or\n"
    "                       none; ccitt3, ccitt4 and rle write black and white\n"
    "  --dest DIR           write into DIR instead of beside the originals\n"
    "  --replace            the new file takes the original's place and the\n"
    "                       original is deleted (asks first; --yes answers)\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "Pictures are read as for 'jpeg' (JPEG, PNG, GIF, TIFF, BMP). The new\n"
    "picture stands on a surface 3 pixels wider and higher than its size, as\n"
    "the window's resize tool always made it; the strip is white. A taken\n"
    "name gets \"name (Copy_1).ext\". With --replace each new file is flushed\n"
    "under a temporary name before it takes the name; the original goes last.\n"
    "\n"
    "Exit status: 0 all written, 1 a file failed or Ctrl-C, 2 bad arguments,\n"
    "3 not confirmed.\n";

constexpr std::array<CommandForm, 2> kResizeForms = {{
    {"resize FILES... (--percent N | --width W --height H) [--up] [--blur] "
     "[--format jpeg|bmp|tiff|png] [--quality N] [--tiff-compression lzw|ccitt3|ccitt4|rle|none] "
     "[--dest DIR] [--replace [--yes]]",
     "scale pictures and save them as JPEG, BMP, TIFF or PNG"},
    {"resize --from-list FOLDER [--select GLOB] [OPTIONS]",
     "the same for the files of FOLDER (those matching GLOB)"},
}};

}  // namespace

extern const Command kResizeCommand = {
    .name = "resize",
    .summary = "resize pictures and save them as JPEG, BMP, TIFF or PNG",
    .forms = kResizeForms,
    .details = kResizeDetails,
    .run = RunResize,
};

}  // namespace tarnwick::cli

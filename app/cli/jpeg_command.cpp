// "jpeg": pictures written again as JPEG by Tarnwick's own encoder.
#include <array>
#include <cstdlib>

#include "cli_job.h"
#include "picture/compress_job.h"
#include "platform/files.h"

namespace tarnwick::cli {
namespace {

struct JpegArgs {
  FileArgs files;
  CompressChoices choices;
  bool yes = false;
};

std::optional<std::string> Number(const std::string& text, int low, int high, int& out) {
  char* end = nullptr;
  const long value = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || value < low || value > high) {
    return "takes " + std::to_string(low) + " to " + std::to_string(high) + ": '" + text + "'";
  }
  out = static_cast<int>(value);
  return std::nullopt;
}

std::optional<std::string> TakeSampling(const std::string& text, CompressChoices& choices) {
  if (text == "grey" || text == "gray") {
    choices.greyscale = true;
    return std::nullopt;
  }
  if (text.size() != 3 || text[1] != ':' || text[0] < '1' || text[0] > '4' || text[2] < '1' ||
      text[2] > '4') {
    return "--sampling takes H:V with 1 to 4 each (such as 2:2 or 1:1), or grey: '" + text + "'";
  }
  choices.h = text[0] - '0';
  choices.v = text[2] - '0';
  return std::nullopt;
}

std::optional<std::string> ParseJpeg(std::span<const std::string> args, JpegArgs& out) {
  CompressChoices& c = out.choices;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool has_value = i + 1 < args.size();
    const auto needs_value = [&] { return arg + " needs a value"; };
    if (arg == "--quality") {
      if (!has_value) return needs_value();
      if (auto error = Number(args[++i], 1, 100, c.quality)) return "--quality " + *error;
    } else if (arg == "--sampling") {
      if (!has_value) return needs_value();
      if (auto error = TakeSampling(args[++i], c)) return error;
    } else if (arg == "--comment") {
      if (!has_value) return needs_value();
      c.comment = args[++i];
      if (c.comment.size() > 65533) return "--comment is longer than a JPEG comment can be";
    } else if (arg == "--rotate") {
      if (!has_value) return needs_value();
      const std::string& turn = args[++i];
      if (turn == "90")
        c.rotation = 1;
      else if (turn == "-90" || turn == "270")
        c.rotation = 2;
      else if (turn == "180")
        c.rotation = 3;
      else
        return "--rotate takes 90 (clockwise), -90 (anticlockwise) or 180: '" + turn + "'";
    } else if (arg == "--mirror") {
      if (!has_value) return needs_value();
      const std::string& way = args[++i];
      if (way == "h" || way == "horizontal")
        c.mirror = 1;
      else if (way == "v" || way == "vertical")
        c.mirror = 2;
      else
        return "--mirror takes h or v: '" + way + "'";
    } else if (arg == "--dest") {
      if (!has_value) return needs_value();
      c.destination = args[++i];
    } else if (arg == "--replace") {
      c.overwrite = true;
    } else if (arg == "--keep-exif") {
      c.keep_exif = true;
    } else if (arg == "--no-exif") {
      c.keep_exif = false;
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
  if (!c.destination.empty() && !FolderExists(c.destination)) {
    return "--dest names no folder: " + c.destination;
  }
  return out.files.Check();
}

int RunJpeg(std::span<const std::string> raw, CliIo& io) {
  JpegArgs args;
  if (auto error = ParseJpeg(raw, args)) return UsageError(io, "jpeg", *error);
  CliJob job(io, args.yes, true);
  const auto tool = [&](const RenameRunEnv& env) { return CompressToJpeg(env, args.choices); };
  return RunConfirmedTool(job, io, "jpeg", args.files, tool, "written");
}

constexpr std::string_view kJpegDetails =
    "Options:\n"
    "  --quality N          1 (smallest) to 100 (best); default 75\n"
    "  --sampling H:V       how many luminance samples stand for one colour\n"
    "                       sample across and down, 1 to 4 each: 1:1 keeps all\n"
    "                       colour, 2:2 (the default) a quarter; grey writes a\n"
    "                       greyscale picture\n"
    "  --comment TEXT       a comment in the file (a COM segment)\n"
    "  --rotate 90|-90|180  turn clockwise, anticlockwise or half way round\n"
    "  --mirror h|v         flip left and right, or top and bottom (after the\n"
    "                       turn)\n"
    "  --dest DIR           write the new files into DIR instead of beside\n"
    "                       the originals\n"
    "  --replace            the new file takes the original's place: photo.png\n"
    "                       becomes photo.jpg and photo.png is deleted, and a\n"
    "                       file photo.jpg that was there is replaced. Asks\n"
    "                       first on a terminal; --yes answers for scripts\n"
    "  --keep-exif          carry the original's EXIF data (dates, camera,\n"
    "                       place) into the new file (the default)\n"
    "  --no-exif            write only the picture\n"
    "  --from-list DIR      take the files of DIR instead of FILES...\n"
    "  --select GLOB        with --from-list: only names that match\n"
    "\n"
    "Pictures are read by their content: JPEG, PNG, GIF (the first frame),\n"
    "TIFF (the first page) and BMP; transparent parts become white. A file\n"
    "that is no such picture, or whose data are damaged, is reported and left\n"
    "alone, and the job goes on. Without --replace a taken name gets\n"
    "\"name (Copy_1).jpg\" and the original stays. With --replace each new\n"
    "file is written and flushed under a temporary name first and only then\n"
    "put in place; the original goes last, so an interrupted job never\n"
    "leaves a picture under neither name. The options KeepOldFiledate and\n"
    "UseEXIFDate apply to the new files.\n"
    "\n"
    "Exit status: 0 all written, 1 a file failed or Ctrl-C, 2 bad arguments,\n"
    "3 not confirmed.\n";

constexpr std::array<CommandForm, 2> kJpegForms = {{
    {"jpeg FILES... [--quality N] [--sampling H:V|grey] [--comment TEXT] [--rotate 90|-90|180] "
     "[--mirror h|v] [--dest DIR] [--replace [--yes]] [--keep-exif|--no-exif]",
     "write pictures again as JPEG with Tarnwick's own encoder"},
    {"jpeg --from-list FOLDER [--select GLOB] [OPTIONS]",
     "the same for the files of FOLDER (those matching GLOB)"},
}};

}  // namespace

extern const Command kJpegCommand = {
    .name = "jpeg",
    .summary = "compress pictures to JPEG: turn, mirror, greyscale, comment",
    .forms = kJpegForms,
    .details = kJpegDetails,
    .run = RunJpeg,
};

}  // namespace tarnwick::cli

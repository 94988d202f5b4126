// Resize pictures and save them as JPEG, BMP, TIFF or PNG.
#include "picture/resize_job.h"

#include <cmath>
#include <cstdlib>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "core/file_date_time.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "picture/bmp_codec.h"
#include "picture/picture_file.h"
#include "picture/picture_output.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr const char* kOptions = "Options";
// The original surface was 45 logical units larger, at 15 units a pixel.
constexpr int kSurfaceMargin = 3;

const char* ExtensionOf(ResizeFormat format) {
  switch (format) {
    case ResizeFormat::kBmp:
      return ".bmp";
    case ResizeFormat::kTiff:
      return ".tif";
    case ResizeFormat::kPng:
      return ".png";
    default:
      return ".jpg";
  }
}

int Side(int side, double factor) {
  const auto scaled =
      static_cast<float>(static_cast<float>(side) / 100.0F * static_cast<float>(factor * 100.0));
  return std::max(1, static_cast<int>(vb::RoundHalfEven(scaled)));
}

// The scaled picture on its white surface.
cImage OnSurface(const cImage& scaled) {
  cImage surface;
  if (!surface.Create(scaled.Width() + kSurfaceMargin, scaled.Height() + kSurfaceMargin, 24))
    return surface;
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      surface.SetPixelColour(x, y,
                             x < scaled.Width() && y < scaled.Height()
                                 ? scaled.PixelColour(x, y)
                                 : cImage::Colour{255, 255, 255});
    }
  }
  return surface;
}

std::vector<std::uint8_t> Encoded(const cImage& image, const ResizeChoices& choices,
                                  std::string& error) {
  switch (choices.format) {
    case ResizeFormat::kBmp:
      return EncodeBmp(image);
    case ResizeFormat::kTiff:
      return EncodeTiff(image, choices.tiff, error);
    case ResizeFormat::kPng:
      return EncodePng(image, error);
    default:
      return EncodeJpegTurbo(image, choices.quality, error);
  }
}

}  // namespace

double PercentOf(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0' || !std::isfinite(value) || value <= 0) return 25;
  return value;
}

std::pair<int, int> ResizedSize(int width, int height, const ResizeChoices& choices) {
  if (!choices.by_percent) {
    return {choices.width > 0 ? choices.width : width,
            choices.height > 0 ? choices.height : height};
  }
  const double p = choices.percent > 0 ? choices.percent : 25;
  double factor = p / 100;
  // The mode gives the direction: a factor the other way is turned round.
  if (choices.scale_up ? factor < 1 : factor > 1) factor = 1 / factor;
  return {Side(width, factor), Side(height, factor)};
}

cImage BlurPicture(const cImage& image) {
  cImage blurred;
  if (!blurred.Create(image.Width(), image.Height(), 24)) return blurred;
  for (int y = 0; y < image.Height(); ++y) {
    const int below = std::min(y + 1, image.Height() - 1);
    for (int x = 0; x < image.Width(); ++x) {
      const int right = std::min(x + 1, image.Width() - 1);
      const cImage::Colour a = image.PixelColour(x, y), b = image.PixelColour(right, y),
                           c = image.PixelColour(x, below), d = image.PixelColour(right, below);
      blurred.SetPixelColour(
          x, y,
          {static_cast<std::uint8_t>((a.blue + b.blue + c.blue + d.blue) >> 2),
           static_cast<std::uint8_t>((a.green + b.green + c.green + d.green) >> 2),
           static_cast<std::uint8_t>((a.red + b.red + c.red + d.red) >> 2)});
    }
  }
  return blurred;
}

ToolJobResult ResizePictures(const RenameRunEnv& env, const ResizeChoices& choices) {
  const MessageTable& messages = env.messages;
  const std::string title(messages.Text("picture.resize_title"));
  if (choices.overwrite && !ConfirmReplacingPictures(env)) {
    ToolJobResult not_confirmed;
    not_confirmed.refused = true;
    return not_confirmed;
  }
  ToolJob job(env);
  PictureOutput output(choices.overwrite, messages);
  const bool use_exif_date = env.options.GetOption("UseEXIFDate", kOptions, "0") == "1";
  const auto fail = [&](const std::string& path, const std::string& why) {
    PictureFailed(job, title, path, why);
  };
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    const std::size_t row = job.rows()[i];
    const std::string source = env.list.Path(row);
    const LoadedPicture loaded = LoadPicture(source);
    cImage image;
    if (!loaded.ok() || !image.CopyPicture(loaded.picture, 24)) {
      fail(source, loaded.ok() ? "the picture is too large" : loaded.error);
      job.EndFile(i);
      continue;
    }
    if (choices.blur) image = BlurPicture(image);
    const auto [width, height] = ResizedSize(image.Width(), image.Height(), choices);
    const cImage surface = OnSurface(image.Resample(width, height));
    std::string error;
    const std::vector<std::uint8_t> bytes =
        surface.empty() ? std::vector<std::uint8_t>() : Encoded(surface, choices, error);
    if (bytes.empty()) {
      fail(source, surface.empty() ? "the new size is too large" : error);
      job.EndFile(i);
      continue;
    }
    const std::string folder =
        choices.destination.empty() ? std::string(env.list.Folder(row)) : choices.destination;
    FileStatus failure;
    const std::optional<std::string> target =
        output.Place(bytes, source, folder, PictureBaseName(env.list.Text(row, file_column::kName)),
                     ExtensionOf(choices.format), failure);
    if (!failure.ok()) {
      fail(target ? source : folder, std::to_string(failure.number) + ": " + failure.description);
    } else {
      SetNewPictureDates(job, title, row, *target, use_exif_date);
      job.LogTool(title, "\"" + source + "\" -> \"" + *target + "\"");
      job.Done();
    }
    job.EndFile(i);
  }
  job.Finish(choices.overwrite);
  const ToolJobResult& result = job.result();
  TellPictureFailures(env, title, result);
  return result;
}

}  // namespace tarnwick

// Compress picture files to JPEG: each picture read, turned, mirrored and
// written by our own encoder.
#include "picture/compress_job.h"

#include "base/path_text.h"
#include "base/vb_error.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "picture/exif_orientation.h"
#include "picture/image_buffer.h"
#include "picture/jpeg_encoder.h"
#include "picture/picture_file.h"
#include "picture/picture_output.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr const char* kOptions = "Options";

class Compressor {
 public:
  Compressor(ToolJob& job, const CompressChoices& choices)
      : job_(job), choices_(choices), output_(choices.overwrite, job.env().messages) {
    if (choices.greyscale) {
      encoder_.SetSamplingFrequencies(1, 1, 0, 0, 0, 0);
    } else {
      encoder_.SetSamplingFrequencies(choices.h, choices.v, 1, 1, 1, 1);
    }
    encoder_.SetQuality(choices.quality);
    encoder_.SetComment(choices.comment);
    use_exif_date_ = job.env().options.GetOption("UseEXIFDate", kOptions, "0") == "1";
  }

  void Compress(std::size_t row) {
    const FileList& list = job_.env().list;
    const std::string source = list.Path(row);
    const LoadedPicture loaded = LoadPicture(source);
    if (!loaded.ok()) {
      Fail(source, loaded.error);
      return;
    }
    cImage image;
    if (!image.CopyPicture(loaded.picture, 24)) {
      Fail(source, "the picture is too large");
      return;
    }
    image = OrientedPicture(std::move(image), choices_.rotation, choices_.mirror);
    std::vector<std::uint8_t> exif = choices_.keep_exif ? loaded.exif : std::vector<std::uint8_t>();
    // Turned or flipped here, the pixels stand as they should; a viewer must
    // not turn them again by the camera's tag.
    if (choices_.rotation != 0 || choices_.mirror != 0) ResetExifOrientation(exif);
    encoder_.SetExifBlock(std::move(exif));
    if (encoder_.SampleHDC(image.ToRgb()) != 0) {
      Fail(source, "the picture is too large for a JPEG");
      return;
    }
    const std::string folder =
        choices_.destination.empty() ? std::string(list.Folder(row)) : choices_.destination;
    std::vector<std::uint8_t> bytes;
    try {
      bytes = encoder_.Encode();
    } catch (const VbError& error) {
      Fail(source, std::to_string(error.number()) + ": " + error.description());
      return;
    }
    FileStatus failure;
    const std::optional<std::string> target =
        output_.Place(bytes, source, folder, PictureBaseName(list.Text(row, file_column::kName)),
                      ".jpg", failure);
    if (!failure.ok()) {
      // Without a target nothing was written; with one, the original could
      // not be deleted and stays beside the new file.
      Fail(target ? source : folder, std::to_string(failure.number) + ": " + failure.description);
      return;
    }
    SetNewPictureDates(job_, job_.Text("picture.compress_title"), row, *target, use_exif_date_);
    job_.LogTool(job_.Text("picture.compress_title"), "\"" + source + "\" -> \"" + *target + "\"");
    job_.Done();
  }

 private:
  void Fail(const std::string& path, const std::string& why) {
    PictureFailed(job_, job_.Text("picture.compress_title"), path, why);
  }

  ToolJob& job_;
  const CompressChoices& choices_;
  cJPEG encoder_;
  PictureOutput output_;
  bool use_exif_date_ = false;
};

}  // namespace

cImage OrientedPicture(cImage image, int rotation, int mirror) {
  switch (rotation) {
    case 1:
      image = image.Rotate(-90);
      break;
    case 2:
      image = image.Rotate(90);
      break;
    case 3:
      image = image.Rotate(180);
      break;
    default:
      break;
  }
  if (mirror == 1) image = image.Mirror(false);
  if (mirror == 2) image = image.Mirror(true);
  return image;
}

std::vector<std::string> SubsamplingItems(const MessageTable& messages) {
  std::vector<std::string> items = {"1:1  ", "1:2", "2:1", "2:2  ", "1:3", "3:1", "2:3", "3:2",
                                    "3:3",   "1:4", "4:1", "2:4",   "4:2", "3:4", "4:3", "4:4  "};
  items[0] += messages.Text("picture.subsample_max_quality");
  items[kDefaultSubsamplingItem] += messages.Text("picture.subsample_default");
  return items;
}

std::pair<int, int> SubsamplingFactors(const std::string& item) {
  if (item.size() < 3 || item[0] < '1' || item[0] > '4' || item[2] < '1' || item[2] > '4') {
    return {2, 2};
  }
  return {item[0] - '0', item[2] - '0'};
}

std::string UniqueCopyName(const std::string& folder, const std::string& name,
                           const std::string& extension, int& counter,
                           const MessageTable& messages) {
  const std::string part(messages.Text("picture.copy_name_part"));
  const auto candidate = [&] {
    return JoinPath(folder, name + " " + part + "_" + std::to_string(counter) + ")" + extension);
  };
  while (FileExists(candidate())) ++counter;
  return candidate();
}

ToolJobResult CompressToJpeg(const RenameRunEnv& env, const CompressChoices& choices) {
  const MessageTable& messages = env.messages;
  if (choices.overwrite && !ConfirmReplacingPictures(env)) {
    ToolJobResult not_confirmed;
    not_confirmed.refused = true;
    return not_confirmed;
  }
  ToolJob job(env);
  Compressor compressor(job, choices);
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    compressor.Compress(job.rows()[i]);
    job.EndFile(i);
  }
  job.Finish(choices.overwrite);
  const ToolJobResult& result = job.result();
  TellPictureFailures(env, std::string(messages.Text("picture.compress_title")), result);
  return result;
}

}  // namespace tarnwick

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "picture/image_buffer.h"
#include "tools/tool_job.h"

namespace tarnwick {

class MessageTable;

// The choices of `frmSaveJPG`.
struct CompressChoices {
  int quality = 75;  // hscQuality, 1 to 100
  int h = 2;         // cboSubSample: the luminance factors H:V
  int v = 2;
  bool greyscale = false;   // chkGreyscale
  bool overwrite = false;   // chkSaveCopy "Overwrite/delete original files"
  std::string destination;  // txtDestinationDir; empty: each file's own folder
  std::string comment;      // txtComment
  int rotation = 0;         // Option1: 0 none, 1 90° clockwise, 2 90° anticlockwise, 3 180°
  int mirror = 0;           // Option2: 0 none, 1 horizontal, 2 vertical
  // The source's EXIF block goes into the new file (dates, camera, GPS);
  // off, the file holds only what the encoder writes.
  bool keep_exif = true;
};

// The items of `cboSubSample` in their order, "1:1   [Max Quality]" first,
// and the index of the default "2:2   [Default]".
std::vector<std::string> SubsamplingItems(const MessageTable& messages);
inline constexpr int kDefaultSubsamplingItem = 3;
// H and V of an item: the values of its first and third characters.
std::pair<int, int> SubsamplingFactors(const std::string& item);

// The picture turned (`rotation` as CompressChoices: 1 clockwise, 2
// anticlockwise, 3 half way) and then mirrored (1 left and right, 2 top and
// bottom), as the job and its preview show it.
cImage OrientedPicture(cImage image, int rotation, int mirror);

// `UniqueCopyName`: folder/name (Copy_n)extension with the first n from
// `counter` on whose file does not exist; `counter` keeps the n used.
std::string UniqueCopyName(const std::string& folder, const std::string& name,
                           const std::string& extension, int& counter,
                           const MessageTable& messages);

// `mnuCompressToJPG`: every selected row read, turned, mirrored and written
// as JPEG by our own encoder. With `overwrite` the question 670 comes first
// (No ends the job), and each new file is written and flushed under a
// temporary name beside its target, then put in place, and only then is
// the original removed: a picture that fails leaves it untouched, and an
// interruption at any moment leaves the original or the new file. Without
// `overwrite` the original stays and a taken name gives "name (Copy_1).jpg".
// A file that is no readable picture counts as failed; at the end their
// number is told with message 655. The list is read again when files were
// replaced.
ToolJobResult CompressToJpeg(const RenameRunEnv& env, const CompressChoices& choices);

}  // namespace tarnwick

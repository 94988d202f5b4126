#include "media/media_readers.h"

#include "base/text.h"
#include "base/vb_number.h"
#include "media/audio_length.h"
#include "media/exif_reader.h"
#include "media/exif_value.h"
#include "media/id3_fields.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/mpeg_info.h"

namespace tarnwick {

MediaReaders::MediaReaders() : exif_(std::make_unique<ExifReader>()) {}
MediaReaders::~MediaReaders() = default;

std::string MediaReaders::ExifValue(const std::filesystem::path& path, int tag) const {
  return ExifTagValue(*exif_, path, tag);
}

TagBlock MediaReaders::ReadId3v1(const std::filesystem::path& path) const {
  TagBlock block;
  ID3v1Tag tag;
  block.found = tarnwick::ReadID3v1(path, tag);
  if (!block.found) return block;
  block.fields = {{"artist", tag.artist},   {"album", tag.album}, {"title", tag.title},
                  {"year", tag.year},       {"genre", tag.genre}, {"comments", tag.comment},
                  {"comment", tag.comment}, {"track", tag.track}};
  return block;
}

TagBlock MediaReaders::ReadId3v2(const std::filesystem::path& path) const {
  TagBlock block;
  ID3v2Tag tag;
  block.found = tarnwick::ReadID3v2(path, tag);
  if (!block.found) return block;
  for (const ID3v2Field& f : ID3v2Fields()) block.fields[vb::LCase(f.name)] = tag.*f.member;
  return block;
}

MpegFacts MediaReaders::ReadMpegInfo(std::string_view file_name) const {
  MPEGInfo info;
  MpegFacts facts;
  if (file_name.empty() || !tarnwick::ReadMPEGInfo(std::filesystem::path(file_name), info)) {
    return facts;
  }
  facts.mpegVersion = info.mpegVersion;
  facts.bitrate = info.bitrate;
  facts.channelMode = info.channelMode;
  facts.fileSize = info.fileSize;
  facts.frequency = info.frequency;
  facts.hasCRC = info.hasCRC;
  facts.hasVBR = info.hasVBR;
  facts.hasEmphasis = info.hasEmphasis;
  facts.ID3v1Version = std::to_string(info.ID3v1Version);
  facts.ID3v2Version = std::to_string(info.ID3v2Version);
  facts.isCopyrighted = info.isCopyrighted;
  facts.isOriginal = info.isOriginal;
  facts.length = info.length;
  facts.lengthFrames = info.lengthFrames;
  return facts;
}

std::optional<std::int64_t> MediaReaders::Mp3LengthMilliseconds(
    const std::filesystem::path& path) const {
  // A file that cannot be measured gives 0, as the media device did.
  return MCILengthMP3(path);
}

std::optional<std::int64_t> MediaReaders::WavLengthSeconds(
    const std::filesystem::path& path) const {
  const double seconds = MCILengthWAV(path);
  if (seconds < 0) return std::nullopt;
  return static_cast<std::int64_t>(vb::RoundHalfEven(seconds));
}

}  // namespace tarnwick

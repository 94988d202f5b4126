#include "media/media_info_text.h"

#include <utility>

#include "base/path_text.h"
#include "base/text.h"
#include "media/asf_tags.h"
#include "media/tag_editor_model.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using T = ID3v2Tag;

// The fields of a version 2 tag in the order the viewer lists them (that of
// the MP3 report's columns); each labelled by "viewer.field." and its name.
constexpr std::pair<std::string_view, std::string T::*> kV2Lines[] = {
    {"album", &T::album},
    {"artist", &T::artist},
    {"artistAdditional", &T::artistAdditional},
    {"beatsPerMinute", &T::beatsPerMinute},
    {"cdNumber", &T::cdNumber},
    {"cdSubtitle", &T::cdSubtitle},
    {"composer", &T::composer},
    {"conductor", &T::conductor},
    {"contentGroup", &T::contentGroup},
    {"copyright", &T::copyright},
    {"encoder", &T::encoder},
    {"encodingSettings", &T::encodingSettings},
    {"encodingTime", &T::encodingTime},
    {"fileOwner", &T::fileOwner},
    {"fileType", &T::fileType},
    {"genre", &T::genre},
    {"initialKey", &T::initialKey},
    {"internetRadioStationName", &T::internetRadioStationName},
    {"internetRadioStationOwner", &T::internetRadioStationOwner},
    {"involvedPeople", &T::involvedPeople},
    {"ISRC", &T::ISRC},
    {"language", &T::language},
    {"length", &T::length},
    {"linkArtistWebpage", &T::linkArtistWebpage},
    {"linkAudioFileWebpage", &T::linkAudioFileWebpage},
    {"linkAudioSourceWebpage", &T::linkAudioSourceWebpage},
    {"linkCommercialInfo", &T::linkCommercialInfo},
    {"linkCopyrightInfo", &T::linkCopyrightInfo},
    {"linkInternetRadioStationWebpage", &T::linkInternetRadioStationWebpage},
    {"linkPaymentWebpage", &T::linkPaymentWebpage},
    {"linkPublisherWebpage", &T::linkPublisherWebpage},
    {"linkTo", &T::linkTo},
    {"lyricist", &T::lyricist},
    {"mediatype", &T::mediatype},
    {"mood", &T::mood},
    {"musicianCredits", &T::musicianCredits},
    {"originalAlbums", &T::originalAlbums},
    {"originalartist", &T::originalartist},
    {"originalFileName", &T::originalFileName},
    {"originalLyricist", &T::originalLyricist},
    {"originalReleaseTime", &T::originalReleaseTime},
    {"playlistDelay", &T::playlistDelay},
    {"producedNotice", &T::producedNotice},
    {"publisher", &T::publisher},
    {"releaseYear", &T::releaseYear},
    {"remixArtist", &T::remixArtist},
    {"year", &T::year},
    {"sortableAlbumName", &T::sortableAlbumName},
    {"sortableArtistName", &T::sortableArtistName},
    {"sortableTitleName", &T::sortableTitleName},
    {"subtitle", &T::subtitle},
    {"taggingTime", &T::taggingTime},
    {"title", &T::title},
    {"track", &T::track},
    {"unsynchronisedLyrics", &T::unsynchronisedLyrics},
    {"userText", &T::userText},
    {"comment", &T::comment},
};

constexpr std::pair<std::string_view, std::string ID3v1Tag::*> kV1Lines[] = {
    {"artist", &ID3v1Tag::artist}, {"album", &ID3v1Tag::album},     {"title", &ID3v1Tag::title},
    {"year", &ID3v1Tag::year},     {"genre", &ID3v1Tag::genre},     {"comment", &ID3v1Tag::comment},
    {"track", &ID3v1Tag::track},
};

// "artistAdditional" is labelled by "viewer.field.artist_additional".
std::string Label(const MessageTable& messages, std::string_view field) {
  std::string key = "viewer.field.";
  for (std::size_t i = 0; i < field.size(); ++i) {
    const char c = field[i];
    const bool upper = c >= 'A' && c <= 'Z';
    const bool after_lower = i > 0 && field[i - 1] >= 'a' && field[i - 1] <= 'z';
    if (upper && after_lower) key += '_';
    key += upper ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return std::string(messages.Text(key));
}

bool IsWindowsMedia(const std::string& path) {
  const std::string extension = vb::LCase(ExtensionName(path));
  return extension == "wma" || extension == "wmv" || extension == "asf";
}

void AddMp3(std::string& text, const TagEditorFile& file, const MessageTable& messages) {
  if (!file.damage.empty()) text += file.damage + "\n\n";
  if (file.mpeg_found) {
    text += std::string(messages.Text("viewer.technical_information")) + "\n";
    for (const std::string& line : MpegLabelTexts(file, messages)) text += line + "\n";
  }
  if (file.has_v2) {
    text += "\n" + std::string(messages.Text("viewer.mp3_v2_information")) + "\n";
    for (const auto& [name, member] : kV2Lines) {
      const std::string& value = file.v2.*member;
      if (!value.empty()) text += Label(messages, name) + value + "\n";
    }
  }
  if (file.has_v1) {
    text += "\n" + std::string(messages.Text("viewer.mp3_v1_information")) + "\n";
    for (const auto& [name, member] : kV1Lines) {
      const std::string& value = file.v1.*member;
      if (!value.empty()) text += Label(messages, name) + value + "\n";
    }
  }
}

}  // namespace

std::string MediaInfoText(const std::string& path, const MessageTable& messages) {
  std::string text;
  if (IsWindowsMedia(path)) {
    WmTags tags;
    if (tags.ReadTags(path) && tags.TagCount() > 0) {
      text += std::string(messages.Text("viewer.wma_information")) + "\n";
      for (int i = 0; i < tags.TagCount(); ++i) {
        text += tags.TagName(i) + ": " + StripAtNull(tags.TagValue(i)) + "\n";
      }
    }
  } else {
    const TagEditorFile file = LoadTagEditorFile(path, messages);
    if (file.is_mp3) AddMp3(text, file, messages);
    if (file.is_mp3 && !file.has_v1 && !file.has_v2) {
      text += "\n" + std::string(messages.Text(851)) + "\n";
    }
  }
  if (text.empty()) text = std::string(messages.Text(851)) + "\n";
  return text;
}

}  // namespace tarnwick

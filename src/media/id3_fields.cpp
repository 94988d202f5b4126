#include "media/id3_fields.h"

#include <array>

#include "base/text.h"

namespace tarnwick {
namespace {

using T = ID3v2Tag;

constexpr std::array<ID3v2Field, 57> kFields = {{
    {"artist", "TPE1", &T::artist},
    {"album", "TALB", &T::album},
    {"title", "TIT2", &T::title},
    {"year", "TYER", &T::year},
    {"genre", "TCON", &T::genre},
    {"comment", "COMM", &T::comment},
    {"track", "TRCK", &T::track},
    {"beatsPerMinute", "TBPM", &T::beatsPerMinute},
    {"encodingTime", "TDEN", &T::encodingTime},
    {"encoder", "TENC", &T::encoder},
    {"linkTo", "WXXX", &T::linkTo},
    {"copyright", "TCOP", &T::copyright},
    {"composer", "TCOM", &T::composer},
    {"playlistDelay", "TDLY", &T::playlistDelay},
    {"originalReleaseTime", "TDOR", &T::originalReleaseTime},
    {"releaseYear", "TDRL", &T::releaseYear},
    {"taggingTime", "TDTG", &T::taggingTime},
    {"lyricist", "TEXT", &T::lyricist},
    {"fileType", "TFLT", &T::fileType},
    {"involvedPeople", "TIPL", &T::involvedPeople},
    {"contentGroup", "TIT1", &T::contentGroup},
    {"subtitle", "TIT3", &T::subtitle},
    {"initialKey", "TKEY", &T::initialKey},
    {"language", "TLAN", &T::language},
    {"length", "TLEN", &T::length},
    {"musicianCredits", "TMCL", &T::musicianCredits},
    {"mediatype", "TMED", &T::mediatype},
    {"mood", "TMOO", &T::mood},
    {"originalAlbums", "TOAL", &T::originalAlbums},
    {"originalFileName", "TOFN", &T::originalFileName},
    {"originalLyricist", "TOLY", &T::originalLyricist},
    {"originalartist", "TOPE", &T::originalartist},
    {"fileOwner", "TOWN", &T::fileOwner},
    {"artistAdditional", "TPE2", &T::artistAdditional},
    {"conductor", "TPE3", &T::conductor},
    {"remixArtist", "TPE4", &T::remixArtist},
    {"cdNumber", "TPOS", &T::cdNumber},
    {"producedNotice", "TPRO", &T::producedNotice},
    {"publisher", "TPUB", &T::publisher},
    {"internetRadioStationName", "TRSN", &T::internetRadioStationName},
    {"internetRadioStationOwner", "TRSO", &T::internetRadioStationOwner},
    {"sortableAlbumName", "TSOA", &T::sortableAlbumName},
    {"sortableArtistName", "TSOP", &T::sortableArtistName},
    {"sortableTitleName", "TSOT", &T::sortableTitleName},
    {"ISRC", "TSRC", &T::ISRC},
    {"encodingSettings", "TSSE", &T::encodingSettings},
    {"cdSubtitle", "TSST", &T::cdSubtitle},
    {"userText", "TXXX", &T::userText},
    {"linkCommercialInfo", "WCOM", &T::linkCommercialInfo},
    {"linkCopyrightInfo", "WCOP", &T::linkCopyrightInfo},
    {"linkAudioFileWebpage", "WOAF", &T::linkAudioFileWebpage},
    {"linkArtistWebpage", "WOAR", &T::linkArtistWebpage},
    {"linkAudioSourceWebpage", "WOAS", &T::linkAudioSourceWebpage},
    {"linkInternetRadioStationWebpage", "WORS", &T::linkInternetRadioStationWebpage},
    {"linkPaymentWebpage", "WPAY", &T::linkPaymentWebpage},
    {"linkPublisherWebpage", "WPUB", &T::linkPublisherWebpage},
    {"unsynchronisedLyrics", "USLT", &T::unsynchronisedLyrics},
}};

constexpr std::array<std::string_view, 58> kFrameList = {
    "TALB", "TBPM", "TCOM", "TCON", "TCOP", "TDEN", "TDLY", "TDOR", "TYER", "TDRC", "TDRL", "TDTG",
    "TENC", "TEXT", "TFLT", "TIPL", "TIT1", "TIT2", "TIT3", "TKEY", "TLAN", "TLEN", "TMCL", "TMED",
    "TMOO", "TOAL", "TOFN", "TOLY", "TOPE", "TOWN", "TPE1", "TPE2", "TPE3", "TPE4", "TPOS", "TPRO",
    "TPUB", "TRCK", "TRSN", "TRSO", "TSOA", "TSOP", "TSOT", "TSRC", "TSSE", "TSST", "TXXX", "COMM",
    "WCOM", "WCOP", "WOAF", "WOAR", "WOAS", "WORS", "WPAY", "WPUB", "WXXX", "USLT"};

}  // namespace

std::span<const ID3v2Field> ID3v2Fields() { return kFields; }

std::span<const std::string_view> ID3v2FrameList() { return kFrameList; }

std::string ID3v2Tag::*FieldOfFrame(std::string_view id) {
  if (id == "TDRC") return &T::year;
  for (const ID3v2Field& f : kFields) {
    if (f.frame == id) return f.member;
  }
  return nullptr;
}

const ID3v2Field* FindID3v2Field(std::string_view name) {
  const std::string wanted = vb::LCase(name);
  for (const ID3v2Field& f : kFields) {
    if (vb::LCase(f.name) == wanted) return &f;
  }
  return nullptr;
}

}  // namespace tarnwick

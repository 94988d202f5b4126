#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

// A version 1 tag. `genre` is the genre's name; `track` is empty for the plain
// layout without a track number.
struct ID3v1Tag {
  std::string artist;
  std::string album;
  std::string title;
  std::string year;
  std::string genre;
  std::string comment;
  std::string track;
};

// A version 2 tag: the text fields the program knows, by the words of their
// placeholders. Values are kept as decoded, a closing NUL included.
struct ID3v2Tag {
  std::string artist;
  std::string album;
  std::string title;
  std::string year;
  std::string genre;
  std::string comment;
  std::string track;
  std::string beatsPerMinute;
  std::string encodingTime;
  std::string encoder;
  std::string linkTo;
  std::string copyright;
  std::string composer;
  std::string playlistDelay;
  std::string originalReleaseTime;
  std::string releaseYear;
  std::string taggingTime;
  std::string lyricist;
  std::string fileType;
  std::string involvedPeople;
  std::string contentGroup;
  std::string subtitle;
  std::string initialKey;
  std::string language;
  std::string length;
  std::string musicianCredits;
  std::string mediatype;
  std::string mood;
  std::string originalAlbums;
  std::string originalFileName;
  std::string originalLyricist;
  std::string originalartist;
  std::string fileOwner;
  std::string artistAdditional;
  std::string conductor;
  std::string remixArtist;
  std::string cdNumber;
  std::string producedNotice;
  std::string publisher;
  std::string internetRadioStationName;
  std::string internetRadioStationOwner;
  std::string sortableAlbumName;
  std::string sortableArtistName;
  std::string sortableTitleName;
  std::string ISRC;
  std::string encodingSettings;
  std::string cdSubtitle;
  std::string userText;
  std::string linkCommercialInfo;
  std::string linkCopyrightInfo;
  std::string linkAudioFileWebpage;
  std::string linkArtistWebpage;
  std::string linkAudioSourceWebpage;
  std::string linkInternetRadioStationWebpage;
  std::string linkPaymentWebpage;
  std::string linkPublisherWebpage;
  std::string unsynchronisedLyrics;
};

// One frame of an existing tag kept as bytes for a rewrite: the content
// behind any flag-dependent extra bytes, unsynchronisation removed.
struct RawFrame {
  std::string id;
  std::uint32_t size = 0;
  std::vector<std::uint8_t> data;
};

}  // namespace tarnwick

#include "media/mp3_report.h"

#include <fstream>

#include "base/text.h"
#include "media/id3_tags.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/media_file.h"

namespace tarnwick {
namespace {

constexpr std::string_view kColumns =
    ";Album;Artist;Artist Additional;Beats per Minute;CD Number;CD Subtitle;Composer;Conductor;"
    "Content Group;Copyright;Encoded by;Encoding Settings;Encoding Time;File Owner;File Type;Genre;"
    "Initial Key;Internet Radio Station Name;Internet Radio Station Owner;Involved People;ISRC;"
    "Language;Length;Link Artist Webpage;Link Audio File Webpage;Link Audio Source Webpage;"
    "Link Commercial Info;Link Copyright Info;Link Internet Radio Station Webpage;"
    "Link Payment Webpage;Link Publisher Webpage;Link To;Lyricist;Media Type;Mood;"
    "Musician Credits;Original Album;Original Artist;Original Filename;Original Lyricist;"
    "Original Release Time;Playlist Delay;Produced Notice;Publisher;Release Year;Remix Artist;"
    "Song Year;Sortable Album Name;Sortable Artist Name;Sortable Title Name;Subtitle;"
    "Tagging Time;Title;Track Number;Unsynchronised Lyrics;User Text;Comment;Available IDs";

using T = ID3v2Tag;

// The record fields of the columns from "Album" to "Comment".
constexpr std::string T::*kV2Columns[] = {&T::album,
                                          &T::artist,
                                          &T::artistAdditional,
                                          &T::beatsPerMinute,
                                          &T::cdNumber,
                                          &T::cdSubtitle,
                                          &T::composer,
                                          &T::conductor,
                                          &T::contentGroup,
                                          &T::copyright,
                                          &T::encoder,
                                          &T::encodingSettings,
                                          &T::encodingTime,
                                          &T::fileOwner,
                                          &T::fileType,
                                          &T::genre,
                                          &T::initialKey,
                                          &T::internetRadioStationName,
                                          &T::internetRadioStationOwner,
                                          &T::involvedPeople,
                                          &T::ISRC,
                                          &T::language,
                                          &T::length,
                                          &T::linkArtistWebpage,
                                          &T::linkAudioFileWebpage,
                                          &T::linkAudioSourceWebpage,
                                          &T::linkCommercialInfo,
                                          &T::linkCopyrightInfo,
                                          &T::linkInternetRadioStationWebpage,
                                          &T::linkPaymentWebpage,
                                          &T::linkPublisherWebpage,
                                          &T::linkTo,
                                          &T::lyricist,
                                          &T::mediatype,
                                          &T::mood,
                                          &T::musicianCredits,
                                          &T::originalAlbums,
                                          &T::originalartist,
                                          &T::originalFileName,
                                          &T::originalLyricist,
                                          &T::originalReleaseTime,
                                          &T::playlistDelay,
                                          &T::producedNotice,
                                          &T::publisher,
                                          &T::releaseYear,
                                          &T::remixArtist,
                                          &T::year,
                                          &T::sortableAlbumName,
                                          &T::sortableArtistName,
                                          &T::sortableTitleName,
                                          &T::subtitle,
                                          &T::taggingTime,
                                          &T::title,
                                          &T::track,
                                          &T::unsynchronisedLyrics,
                                          &T::userText,
                                          &T::comment};

void Add(std::string& line, std::string_view value) {
  line += ';';
  line += value;
}

void AddNotAvailable(std::string& line, int count) {
  for (int i = 0; i < count; ++i) Add(line, "n/a");
}

}  // namespace

std::string MP3ReportHeader(const std::function<std::string(int)>& message) {
  return message(221) + ";" + message(226) + ";" + message(250) + std::string(kColumns);
}

std::string MP3ReportLine(const ReportRow& row) {
  std::string line = row.name + ";" + row.size + ";" + row.folder;
  const std::filesystem::path path = std::filesystem::path(row.folder) / row.name;
  ID3v1Tag v1;
  ID3v2Tag v2;
  std::string ids;
  const bool has_v1 = ReadID3v1(path, v1);
  if (has_v1) ids = "V1,";
  const bool has_v2 = ReadID3v2(path, v2);
  if (has_v2) {
    ids += "V2";
    for (const auto field : kV2Columns) Add(line, StripAtNull(v2.*field));
    Add(line, ids);
    return line;
  }
  if (!has_v1) return line;
  Add(line, v1.album);
  Add(line, v1.artist);
  AddNotAvailable(line, 13);
  Add(line, v1.genre);
  AddNotAvailable(line, 6);
  AddNotAvailable(line, 1);  // Length: a version 1 tag has none
  AddNotAvailable(line, 23);
  Add(line, v1.year);
  AddNotAvailable(line, 5);
  Add(line, v1.title);
  Add(line, v1.track);
  AddNotAvailable(line, 2);
  Add(line, v1.comment);
  Add(line, "V1");
  return line;
}

bool WriteMP3Report(const std::filesystem::path& out, std::span<const ReportRow> rows,
                    const std::function<std::string(int)>& message) {
  std::string text = MP3ReportHeader(message) + "\r\n";
  for (const ReportRow& row : rows) text += MP3ReportLine(row) + "\r\n";
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  if (!std::filesystem::exists(out)) {
    std::ofstream create(out, std::ios::binary);
    if (!create) return false;
  }
  return ReplaceWithHeadAndTail(out, bytes, INT64_MAX);
}

}  // namespace tarnwick

// The media tokens: MP3 tags, MPEG stream facts and EXIF values, through the
// media provider.
#include "base/text.h"
#include "base/vb_error.h"
#include "placeholders/date_tokens.h"
#include "placeholders/media_text.h"
#include "placeholders/number_text.h"
#include "placeholders/token_steps.h"

namespace tarnwick::token_steps {
namespace {

enum class TagKind { kV1Corrected, kV2Corrected, kV2Plain, kV1Length, kV2Length };

struct TagToken {
  std::string_view token;
  TagKind kind;
  std::string_view word;        // field of the token's own version
  std::string_view other_word;  // the same field of the other version
};

constexpr TagToken kTagTokens[] = {
    {"{{mp3idtagv1_track}}", TagKind::kV1Corrected, "track", "track"},
    {"{{mp3idtagv1_title}}", TagKind::kV1Corrected, "title", "title"},
    {"{{mp3idtagv1_album}}", TagKind::kV1Corrected, "album", "album"},
    {"{{mp3idtagv1_artist}}", TagKind::kV1Corrected, "artist", "artist"},
    {"{{mp3idtagv1_comments}}", TagKind::kV1Corrected, "comments", "comment"},
    {"{{mp3idtagv1_genre}}", TagKind::kV1Corrected, "genre", "genre"},
    {"{{mp3idtagv1_year}}", TagKind::kV1Corrected, "year", "year"},
    {"{{mp3idtagv2_title}}", TagKind::kV2Corrected, "title", "title"},
    {"{{mp3idtagv2_album}}", TagKind::kV2Corrected, "album", "album"},
    {"{{mp3idtagv2_artist}}", TagKind::kV2Corrected, "artist", "artist"},
    {"{{mp3idtagv2_comment}}", TagKind::kV2Corrected, "comment", "comments"},
    {"{{mp3idtagv2_composer}}", TagKind::kV2Plain, "composer", ""},
    {"{{mp3idtagv2_copyright}}", TagKind::kV2Plain, "copyright", ""},
    {"{{mp3idtagv2_genre}}", TagKind::kV2Corrected, "genre", "genre"},
    {"{{mp3idtagv2_length}}", TagKind::kV2Plain, "length", ""},
    {"{{mp3idtagv2_mediatype}}", TagKind::kV2Plain, "mediatype", ""},
    {"{{mp3idtagv2_originalartist}}", TagKind::kV2Plain, "originalartist", ""},
    {"{{mp3idtagv2_publisher}}", TagKind::kV2Plain, "publisher", ""},
    {"{{mp3idtagv2_track}}", TagKind::kV2Corrected, "track", "track"},
    {"{{mp3idtagv2_year}}", TagKind::kV2Corrected, "year", "year"},
    {"{{mp3idtagv2_language}}", TagKind::kV2Plain, "language", ""},
    {"{{mp3idtagv2_encoder}}", TagKind::kV2Plain, "encoder", ""},
    {"{{mp3idtagv2_artistadditional}}", TagKind::kV2Plain, "artistadditional", ""},
    {"{{mp3idtagv2_beatsperminute}}", TagKind::kV2Plain, "beatsperminute", ""},
    {"{{mp3idtagv2_cdnumber}}", TagKind::kV2Plain, "cdnumber", ""},
    {"{{mp3idtagv2_cdsubtitle}}", TagKind::kV2Plain, "cdsubtitle", ""},
    {"{{mp3idtagv2_conductor}}", TagKind::kV2Plain, "conductor", ""},
    {"{{mp3idtagv2_contentgroup}}", TagKind::kV2Plain, "contentgroup", ""},
    {"{{mp3idtagv2_encodingsettings}}", TagKind::kV2Plain, "encodingsettings", ""},
    {"{{mp3idtagv2_encodingtime}}", TagKind::kV2Plain, "encodingtime", ""},
    {"{{mp3idtagv2_fileowner}}", TagKind::kV2Plain, "fileowner", ""},
    {"{{mp3idtagv2_filetype}}", TagKind::kV2Plain, "filetype", ""},
    {"{{mp3idtagv2_initialkey}}", TagKind::kV2Plain, "initialkey", ""},
    {"{{mp3idtagv2_internetradiostationname}}", TagKind::kV2Plain, "internetradiostationname", ""},
    {"{{mp3idtagv2_internetradiostationowner}}", TagKind::kV2Plain, "internetradiostationowner",
     ""},
    {"{{mp3idtagv2_involvedpeople}}", TagKind::kV2Plain, "involvedpeople", ""},
    {"{{mp3idtagv2_isrc}}", TagKind::kV2Plain, "isrc", ""},
    {"{{mp3idtagv2_linkartistwebpage}}", TagKind::kV2Plain, "linkartistwebpage", ""},
    {"{{mp3idtagv2_linkaudiofilewebpage}}", TagKind::kV2Plain, "linkaudiofilewebpage", ""},
    {"{{mp3idtagv2_linkaudiosourcewebpage}}", TagKind::kV2Plain, "linkaudiosourcewebpage", ""},
    {"{{mp3idtagv2_linkcommercialinfo}}", TagKind::kV2Plain, "linkcommercialinfo", ""},
    {"{{mp3idtagv2_linkcopyrightinfo}}", TagKind::kV2Plain, "linkcopyrightinfo", ""},
    {"{{mp3idtagv2_linkinternetradiostationwebpage}}", TagKind::kV2Plain,
     "linkinternetradiostationwebpage", ""},
    {"{{mp3idtagv2_linkpaymentwebpage}}", TagKind::kV2Plain, "linkpaymentwebpage", ""},
    {"{{mp3idtagv2_linkpublisherwebpage}}", TagKind::kV2Plain, "linkpublisherwebpage", ""},
    {"{{mp3idtagv2_linkto}}", TagKind::kV2Plain, "linkto", ""},
    {"{{mp3idtagv2_lyricist}}", TagKind::kV2Plain, "lyricist", ""},
    {"{{mp3idtagv2_mood}}", TagKind::kV2Plain, "mood", ""},
    {"{{mp3idtagv2_musiciancredits}}", TagKind::kV2Plain, "musiciancredits", ""},
    {"{{mp3idtagv2_originalalbums}}", TagKind::kV2Plain, "originalalbums", ""},
    {"{{mp3idtagv2_originalfilename}}", TagKind::kV2Plain, "originalfilename", ""},
    {"{{mp3idtagv2_originallyricist}}", TagKind::kV2Plain, "originallyricist", ""},
    {"{{mp3idtagv2_originalreleasetime}}", TagKind::kV2Plain, "originalreleasetime", ""},
    {"{{mp3idtagv2_playlistdelay}}", TagKind::kV2Plain, "playlistdelay", ""},
    {"{{mp3idtagv2_producednotice}}", TagKind::kV2Plain, "producednotice", ""},
    {"{{mp3idtagv2_releaseyear}}", TagKind::kV2Plain, "releaseyear", ""},
    {"{{mp3idtagv2_remixartist}}", TagKind::kV2Plain, "remixartist", ""},
    {"{{mp3idtagv2_sortablealbumname}}", TagKind::kV2Plain, "sortablealbumname", ""},
    {"{{mp3idtagv2_sortableartistname}}", TagKind::kV2Plain, "sortableartistname", ""},
    {"{{mp3idtagv2_sortabletitlename}}", TagKind::kV2Plain, "sortabletitlename", ""},
    {"{{mp3idtagv2_subtitle}}", TagKind::kV2Plain, "subtitle", ""},
    {"{{mp3idtagv2_taggingtime}}", TagKind::kV2Plain, "taggingtime", ""},
    {"{{mp3idtagv2_unsynchronisedlyrics}}", TagKind::kV2Plain, "unsynchronisedlyrics", ""},
    {"{{mp3idtagv2_usertext}}", TagKind::kV2Plain, "usertext", ""},
    {"{{mp3idtagv2_reallength}}", TagKind::kV2Length, "", ""},
    {"{{mp3idtagv1_reallength}}", TagKind::kV1Length, "", ""},
};

// The tag blocks of one pass and the two value slots, which are never
// cleared between tokens.
struct TagPass {
  ExpansionPass& pass;
  TagBlock v1;
  TagBlock v2;
  std::string v1_value;
  std::string v2_value;

  std::string Corrected(const TagToken& t) {
    const bool own_v1 = t.kind == TagKind::kV1Corrected;
    const TagBlock& own = own_v1 ? v1 : v2;
    const TagBlock& other = own_v1 ? v2 : v1;
    std::string& own_slot = own_v1 ? v1_value : v2_value;
    std::string& other_slot = own_v1 ? v2_value : v1_value;
    if (own.found) own_slot = StripAtNull(own.Field(t.word));
    if (pass.Option("CorrectMP3Tags", "1") == "1" && other.found) {
      other_slot = StripAtNull(other.Field(t.other_word));
    }
    if (t.word == "track" && pass.Option("FormatMP3TrackTag", "1") == "1") {
      v1_value = FormatTextWithZeroMask(v1_value, "00");
      v2_value = FormatTextWithZeroMask(v2_value, "00");
    }
    if (!vb::Trim(v2_value).empty()) return v2_value;
    if (!vb::Trim(v1_value).empty()) return v1_value;
    return {};
  }

  std::string RealLength(bool found) const {
    if (!found) return {};
    const auto ms = pass.context().media->Mp3LengthMilliseconds(std::string(pass.file_path()));
    return ms ? MinutesAndSeconds(*ms / 1000) : std::string();
  }

  std::string ValueOf(const TagToken& t) {
    switch (t.kind) {
      case TagKind::kV1Corrected:
      case TagKind::kV2Corrected:
        return Corrected(t);
      case TagKind::kV2Plain:
        return v2.found ? StripAtNull(v2.Field(t.word)) : std::string();
      case TagKind::kV2Length:
        return RealLength(v2.found);
      case TagKind::kV1Length:
        return RealLength(v1.found);
    }
    return {};
  }
};

std::string YesNo(const ExpansionContext& context, bool yes) {
  return context.message_text ? context.message_text(yes ? 1012 : 1013) : std::string();
}

struct ExifToken {
  std::string_view token;
  int tag;
  bool time;
};

constexpr int kOriginalDateTime = 36867;

constexpr ExifToken kExifTokens[] = {
    {"{{get_jpg_exif_originaldatetime}}", kOriginalDateTime, true},
    {"{{get_jpg_exif_aperturevalue}}", 37378, false},
    {"{{get_jpg_exif_brightnessvalue}}", 37379, false},
    {"{{get_jpg_exif_cfapattern}}", 41730, false},
    {"{{get_jpg_exif_colorspace}}", 40961, false},
    {"{{get_jpg_exif_componentsconfiguration}}", 37121, false},
    {"{{get_jpg_exif_compressedbitsperpixel}}", 37122, false},
    {"{{get_jpg_exif_copyright}}", 33432, false},
    {"{{get_jpg_exif_datetime}}", 306, true},
    {"{{get_jpg_exif_datetimedigitized}}", 36868, true},
    {"{{get_jpg_exif_exifimageheight}}", 40963, false},
    {"{{get_jpg_exif_exifimagewidth}}", 40962, false},
    {"{{get_jpg_exif_exifinteroperabilityoffset}}", 40965, false},
    {"{{get_jpg_exif_exifoffset}}", 34665, false},
    {"{{get_jpg_exif_exifversion}}", 36864, false},
    {"{{get_jpg_exif_exposurebiasvalue}}", 37380, false},
    {"{{get_jpg_exif_exposureindex}}", 41493, false},
    {"{{get_jpg_exif_exposureprogram}}", 34850, false},
    {"{{get_jpg_exif_exposuretime}}", 33434, false},
    {"{{get_jpg_exif_filesource}}", 41728, false},
    {"{{get_jpg_exif_flash}}", 37385, false},
    {"{{get_jpg_exif_flashpixversion}}", 40960, false},
    {"{{get_jpg_exif_fnumber}}", 33437, false},
    {"{{get_jpg_exif_focallength}}", 37386, false},
    {"{{get_jpg_exif_focalplaneresolutionunit}}", 41488, false},
    {"{{get_jpg_exif_focalplanexresolution}}", 41486, false},
    {"{{get_jpg_exif_focalplaneyresolution}}", 41487, false},
    {"{{get_jpg_exif_imagedescription}}", 270, false},
    {"{{get_jpg_exif_isospeedratings}}", 34855, false},
    {"{{get_jpg_exif_lightsource}}", 37384, false},
    {"{{get_jpg_exif_makernote}}", 37500, false},
    {"{{get_jpg_exif_maxaperturevalue}}", 37381, false},
    {"{{get_jpg_exif_meteringmode}}", 37383, false},
    {"{{get_jpg_exif_orientation}}", 274, false},
    {"{{get_jpg_exif_primarychromaticities}}", 319, false},
    {"{{get_jpg_exif_referenceblackwhite}}", 532, false},
    {"{{get_jpg_exif_relatedsoundfile}}", 40964, false},
    {"{{get_jpg_exif_resolutionunit}}", 296, false},
    {"{{get_jpg_exif_scenetype}}", 41729, false},
    {"{{get_jpg_exif_sensingmethod}}", 41495, false},
    {"{{get_jpg_exif_shutterspeedvalue}}", 37377, false},
    {"{{get_jpg_exif_software}}", 305, false},
    {"{{get_jpg_exif_subjectdistance}}", 37382, false},
    {"{{get_jpg_exif_subsectime}}", 37520, true},
    {"{{get_jpg_exif_subsectimedigitized}}", 37522, true},
    {"{{get_jpg_exif_subsectimeoriginal}}", 37521, true},
    {"{{get_jpg_exif_usercomment}}", 37510, false},
    {"{{get_jpg_exif_whitepoint}}", 318, false},
    {"{{get_jpg_exif_xresolution}}", 282, false},
    {"{{get_jpg_exif_ycbcrcoefficients}}", 529, false},
    {"{{get_jpg_exif_ycbcrpositioning}}", 531, false},
    {"{{get_jpg_exif_yresolution}}", 283, false},
};

std::string ExifValue(const ExpansionPass& pass, int tag, bool time) {
  std::string value = pass.context().media->ExifValue(std::string(pass.file_path()), tag);
  if (time) ReplaceToken(value, ":", pass.Option("TimeSeperator", "-"));
  return value;
}

// The original date of a picture as a date, for the name tokens.
DateValue ExifOriginalDate(const ExpansionPass& pass) {
  std::string value = vb::Trim(ExifValue(pass, kOriginalDateTime, false));
  ReplaceToken(value, ":", ".");
  const auto date = ParseDateText(vb::Left(value, 10), "yyyy.mm.dd");
  if (!date) throw VbError(vb_error::kTypeMismatch, "Type mismatch");
  return *date;
}

// `count` characters (all with npos) from the 0-based character `first`.
std::string CharactersFrom(std::string_view text, std::size_t first, std::size_t count) {
  const std::int64_t start = static_cast<std::int64_t>(first) + 1;
  if (count == std::string::npos) return vb::Mid(text, start);
  return vb::Mid(text, start, static_cast<std::int64_t>(count));
}

}  // namespace

void Mp3Tags(ExpansionPass& pass) {
  if (pass.index().Find("{{mp3idtag") == std::string_view::npos) return;
  TagPass tags{pass, {}, {}, {}, {}};
  pass.Run([&] {
    const MediaInfoProvider& media = *pass.context().media;
    tags.v1 = media.ReadId3v1(pass.row_path());
    tags.v2 = media.ReadId3v2(pass.row_path());
  });
  for (const TagToken& t : kTagTokens) pass.ValueToken(t.token, [&] { return tags.ValueOf(t); });
}

void Mpeg(ExpansionPass& pass) {
  if (pass.index().Find("{{mpeg_") == std::string_view::npos) return;
  MpegFacts f;
  // Kept: the stream reader is handed the expression, not the file's path.
  pass.Run([&] { f = pass.context().media->ReadMpegInfo(pass.index().expression()); });
  const bool filled = !f.mpegVersion.empty();
  const ExpansionContext& c = pass.context();
  const auto value = [&](std::string_view token, auto make) {
    pass.ValueToken(token, [&] { return filled ? std::string(make()) : std::string(); });
  };
  value("{{mpeg_mpegversion}}", [&] { return f.mpegVersion; });
  value("{{mpeg_bitrate}}", [&] { return std::to_string(f.bitrate); });
  value("{{mpeg_channelmode}}", [&] { return f.channelMode; });
  value("{{mpeg_filesize}}", [&] { return std::to_string(f.fileSize); });
  value("{{mpeg_frequency}}", [&] { return std::to_string(f.frequency); });
  value("{{mpeg_hascrc}}", [&] { return YesNo(c, f.hasCRC); });
  value("{{mpeg_hasvbr}}",
        [&] { return std::string(f.hasVBR ? "variable bit rate" : "constant bit rate"); });
  value("{{mpeg_hasemphasis}}", [&] { return YesNo(c, f.hasEmphasis); });
  value("{{mpeg_id3v1version}}", [&] { return "1." + f.ID3v1Version; });
  value("{{mpeg_id3v2version}}", [&] { return "2." + f.ID3v2Version; });
  value("{{mpeg_iscopyrighted}}", [&] { return YesNo(c, f.isCopyrighted); });
  value("{{mpeg_isoriginal}}", [&] { return YesNo(c, f.isOriginal); });
  value("{{mpeg_length}}", [&] { return MinutesAndSeconds(f.length); });
  value("{{mpeg_lengthframes}}", [&] { return std::to_string(f.lengthFrames); });
}

void Exif(ExpansionPass& pass) {
  if (!pass.index().HasPrefix("{{get_jpg_exif_")) return;
  for (const ExifToken& t : kExifTokens) {
    pass.ValueToken(t.token, [&] { return ExifValue(pass, t.tag, t.time); });
  }
  pass.ValueToken("{{get_jpg_exif_originaldate}}",
                  [&] { return CharactersFrom(ExifValue(pass, kOriginalDateTime, true), 0, 10); });
  pass.ValueToken("{{get_jpg_exif_originaldate_mm_text}}",
                  [&] { return MonthNameOf(pass.context(), ExifOriginalDate(pass)); });
  pass.ValueToken("{{get_jpg_exif_originaldate_dd_text}}",
                  [&] { return DayNameOf(ExifOriginalDate(pass)); });
  pass.ValueToken("{{get_jpg_exif_originaltime}}", [&] {
    return CharactersFrom(ExifValue(pass, kOriginalDateTime, true), 11, std::string::npos);
  });
  pass.ValueToken("{{get_jpg_exif_dcmodel}}", [&] { return ExifValue(pass, 272, false); });
  pass.ValueToken("{{get_jpg_exif_dcmaker}}", [&] { return ExifValue(pass, 271, false); });
}

}  // namespace tarnwick::token_steps

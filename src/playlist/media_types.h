#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The file types the playlist editor takes, by extension.
inline constexpr std::string_view kPlaylistMediaTypes =
    "mp3 ogg ape flac wav wma mid mod mdz stm s3m stz s3z it itz xm xmz mtm ult 669 umx mp1 mp2 "
    "aif aiff au snd voc mpg mpeg avi wmv asf nsv";

// `GetFileExt`: the lower-case text behind the last "." of the name, empty
// when it has none.
std::string GetFileExt(std::string_view name);

// `FilterMedia`: true when the name's extension is one of the media types
// (any case).
bool FilterMedia(std::string_view name);

}  // namespace tarnwick

#include "media/id3_genres.h"

#include <vector>

#include "base/text.h"
#include "base/vb_number.h"

namespace tarnwick {
namespace {

// The spellings are kept as the program has always shown them ("Psychadelic",
// "Bebob", the cut "Contemporary C").
constexpr std::string_view kGenreList =
    "Blues#Classic Rock#Country#Dance#Disco#Funk#Grunge#Hip-Hop#Jazz#Metal#New Age#Oldies#Other#"
    "Pop#R&B#Rap#Reggae#Rock#Techno#Industrial#Alternative#Ska#Death Metal#Pranks#Soundtrack#"
    "Euro-Techno#Ambient#Trip-Hop#Vocal#Jazz+Funk#Fusion#Trance#Classical#Instrumental#Acid#House#"
    "Game#Sound Clip#Gospel#Noise#Alt. Rock#Bass#Soul#Punk#Space#Meditative#Instrumental Pop#"
    "Instrumental Rock#Ethnic#Gothic#Darkwave#Techno-Industrial#Electronic#Pop-Folk#Eurodance#"
    "Dream#Southern Rock#Comedy#Cult#Gangsta#Top 40#Christian Rap#Pop/Funk#Jungle#Native American#"
    "Cabaret#New Wave#Psychadelic#Rave#Showtunes#Trailer#Lo-Fi#Tribal#Acid Punk#Acid Jazz#Polka#"
    "Retro#Musical#Rock & Roll#Hard Rock#Folk#Folk-Rock#National Folk#Swing#Fast Fusion#Bebob#"
    "Latin#Revival#Celtic#Bluegrass#Avantgarde#Gothic Rock#Progressive Rock#Psychedelic Rock#"
    "Symphonic Rock#Slow Rock#Big Band#Chorus#Easy Listening#Acoustic#Humour#Speech#Chanson#Opera#"
    "Chamber Music#Sonata#Symphony#Booty Bass#Primus#Porn Groove#Satire#Slow Jam#Club#Tango#Samba#"
    "Folklore#Ballad#Power Ballad#Rhythmic Soul#Freestyle#Duet#Punk Rock#Drum Solo#A capella#"
    "Euro-House#Dance Hall#Goa#Drum & Bass#Club-House#Hardcore#Terror#Indie#BritPop#Negerpunk#"
    "Polsk Punk#Beat#Christian Gangsta#Heavy Metal#Black Metal#Crossover#Contemporary C#"
    "Christian Rock#Merengue#Salsa#Thrash Metal#Anime#JPop#SynthPop";

const std::vector<std::string>& Genres() {
  static const std::vector<std::string> genres = vb::Split(kGenreList, "#");
  return genres;
}

}  // namespace

std::string GenreName(int number) {
  const auto& genres = Genres();
  if (number < 0 || number >= static_cast<int>(genres.size())) return {};
  return genres[static_cast<std::size_t>(number)];
}

int GenreIndex(std::string_view name) {
  const std::string wanted = vb::LCase(vb::Trim(name));
  const auto& genres = Genres();
  for (std::size_t i = 0; i < genres.size(); ++i) {
    if (vb::LCase(genres[i]) == wanted) return static_cast<int>(i);
  }
  return 255;
}

std::string ParseGenreField(std::string_view text) {
  const std::size_t open = text.find('(');
  const std::size_t close = text.find(')');
  if (open == std::string_view::npos || close == std::string_view::npos) return std::string(text);
  // Between the first "(" and the first ")"; a ")" before the "(" gives nothing between.
  const std::string inner =
      close > open ? std::string(text.substr(open + 1, close - open - 1)) : std::string();
  if (vb::IsNumeric(inner)) {
    const double number = vb::CDbl(inner);
    if (number < 0 || number > 1e6) return {};
    return GenreName(static_cast<int>(vb::RoundHalfEven(number)));
  }
  if (inner == "RX") return "Remix";
  if (inner == "CR") return "Cover";
  return std::string(text);
}

std::string FormatGenreField(std::string_view name) {
  const int index = GenreIndex(name);
  if (index == 255) return std::string(name);
  return "(" + std::to_string(index) + ")" + GenreName(index);
}

}  // namespace tarnwick

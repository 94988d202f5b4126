// The path, file, drive, picture and system tokens.
#include <filesystem>

#include "base/vb_error.h"
#include "placeholders/media_text.h"
#include "placeholders/picture_size.h"
#include "placeholders/token_steps.h"
#include "placeholders/version_resource.h"
#include "platform/drive_info.h"
#include "platform/file_attributes.h"
#include "platform/files.h"
#include "platform/system_info.h"

namespace tarnwick::token_steps {
namespace {

std::string LowerExtension(std::string_view name) {
  const std::string ext = ExtensionOf(name);
  return ext.empty() ? std::string() : AsciiLower(ext.substr(1));
}

// `{{mediainfo}}`: the playing length of MP3 and WAV files, the picture size
// of anything else.
std::string MediaInfo(const ExpansionPass& pass) {
  const std::string& path = pass.row_path();
  const std::string ext = LowerExtension(pass.context().row.name);
  const MediaInfoProvider& media = *pass.context().media;
  if (ext == "mp3") {
    const auto ms = media.Mp3LengthMilliseconds(path);
    return ms ? MinutesAndSeconds(*ms / 1000) + " min." : std::string();
  }
  if (ext == "wav") {
    const auto seconds = media.WavLengthSeconds(path);
    return seconds ? MinutesAndSeconds(*seconds) + " min." : std::string();
  }
  const auto size = ReadPictureSize(path);
  if (!size) return {};
  return std::to_string(size->width) + " x " + std::to_string(size->height) + " Pixel";
}

void AttributeToken(ExpansionPass& pass, std::string_view token, int attributes) {
  if (!pass.Has(token)) return;
  pass.Run([&] {
    const std::filesystem::path path = std::filesystem::absolute(pass.row_path());
    if (!FileExists(path)) return;  // the token stays
    pass.text() = RemoveToken(pass.text(), token);
    const FileStatus status = SetFileAttributes(path, attributes);
    if (!status.ok()) throw status.ToVbError();
  });
}

template <typename Field>
void VersionToken(ExpansionPass& pass, std::string_view token, Field field) {
  pass.ValueToken(token, [&] { return field(ReadVersionStrings(pass.row_path())); });
}

std::string PictureDimension(const ExpansionPass& pass, bool width) {
  const auto size = ReadPictureSize(pass.row_path());
  if (!size) return {};
  return std::to_string(width ? size->width : size->height);
}

}  // namespace

void PathAndMediaInfo(ExpansionPass& pass) {
  pass.ValueToken("{{parentfolder}}", [&] {
    std::string text = pass.context().row.folder_name;
    ReplaceToken(text, ":\\", "");
    return text;
  });
  if (!pass.Has("{{mediainfo}}")) return;
  // Kept: the media info is worked out once for the test and once for the value.
  pass.Run([&] {
    const bool empty = MediaInfo(pass).empty();
    ReplaceToken(pass.text(), "{{mediainfo}}", empty ? "$$$" : MediaInfo(pass));
  });
}

void FileAttributes(ExpansionPass& pass) {
  if (!pass.index().HasPrefix("{{setfileattribute_")) return;
  AttributeToken(pass, "{{setfileattribute_normal}}", 0);
  AttributeToken(pass, "{{setfileattribute_readonly}}", file_attribute::kReadOnly);
  AttributeToken(pass, "{{setfileattribute_hidden}}", file_attribute::kHidden);
  AttributeToken(pass, "{{setfileattribute_system}}", file_attribute::kSystem);
  AttributeToken(pass, "{{setfileattribute_archiv}}", file_attribute::kArchive);
}

void FileAndDrive(ExpansionPass& pass) {
  VersionToken(pass, "{{fileinfo_legalcopyright}}",
               [](const VersionStrings& s) { return s.legal_copyright; });
  if (pass.index().HasPrefix("{{drive")) {
    pass.ValueToken("{{drivename}}", [&] { return GetDriveFacts(pass.row_path()).name; });
    pass.ValueToken("{{driveserial}}", [&] { return GetDriveFacts(pass.row_path()).serial; });
    pass.ValueToken("{{drivefilesystem}}",
                    [&] { return GetDriveFacts(pass.row_path()).file_system; });
  }
  pass.ValueToken("{{hollowmere}}", [] { return std::string("Aster + Bryony + Clover + Fennel"); });
  VersionToken(pass, "{{fileinfo_description}}",
               [](const VersionStrings& s) { return s.file_description; });
  VersionToken(pass, "{{fileinfo_version}}",
               [](const VersionStrings& s) { return s.file_version; });
  VersionToken(pass, "{{fileinfo_companyname}}",
               [](const VersionStrings& s) { return s.company_name; });
  pass.ValueToken("{{fileinfo_type}}", [&] { return pass.context().row.type_text; });
}

void PictureAndSystem(ExpansionPass& pass) {
  pass.ValueToken("{{pic_pixelwidth}}", [&] { return PictureDimension(pass, true); });
  pass.ValueToken("{{pic_pixelheight}}", [&] { return PictureDimension(pass, false); });
  pass.ValueToken("{{logged_on_username}}", [] { return LoggedOnUserName(); });
  pass.ValueToken("{{computername}}", [] { return StripAtNull(ComputerName()); });
}

}  // namespace tarnwick::token_steps

// "tags": the ID3 tags and MPEG stream facts of one MP3 file, and writing them.
#include <array>
#include <map>
#include <optional>
#include <sstream>
#include <string>

#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_number.h"
#include "cli_command.h"
#include "json_text.h"
#include "media/id3_fields.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/id3_v2_write.h"
#include "media/mpeg_info.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view kCommand = "tags";

using V1Field = std::string ID3v1Tag::*;
constexpr std::array<std::pair<std::string_view, V1Field>, 7> kV1Fields = {{
    {"artist", &ID3v1Tag::artist},
    {"album", &ID3v1Tag::album},
    {"title", &ID3v1Tag::title},
    {"year", &ID3v1Tag::year},
    {"genre", &ID3v1Tag::genre},
    {"comment", &ID3v1Tag::comment},
    {"track", &ID3v1Tag::track},
}};

V1Field FindV1Field(std::string_view name) {
  for (const auto& [field, member] : kV1Fields) {
    if (field == vb::LCase(name)) return member;
  }
  return nullptr;
}

struct TagsArgs {
  std::string file;
  bool json = false;
  bool raw = false;  // values exactly as read, a closing NUL and what follows it included
  std::map<std::string, std::string> v1;  // field name -> value
  std::map<std::string, std::string> v2;
  std::optional<int> version;
  bool discard = false;
  bool remove_v1 = false;
  bool remove_v2 = false;

  bool writes() const {
    return !v1.empty() || !v2.empty() || version || discard || remove_v1 || remove_v2;
  }
};

std::optional<std::string> AddSet(const std::string& assignment, TagsArgs& out) {
  const std::size_t eq = assignment.find('=');
  if (eq == std::string::npos) return "--set needs v1.FIELD=VALUE or v2.FIELD=VALUE";
  const std::string key = assignment.substr(0, eq);
  const std::string value = assignment.substr(eq + 1);
  if (key.starts_with("v1.") && FindV1Field(key.substr(3)) != nullptr) {
    out.v1[vb::LCase(key.substr(3))] = value;
    return std::nullopt;
  }
  if (key.starts_with("v2.") && FindID3v2Field(key.substr(3)) != nullptr) {
    out.v2[std::string(FindID3v2Field(key.substr(3))->name)] = value;
    return std::nullopt;
  }
  return "unknown tag field '" + key + "'";
}

std::optional<std::string> ParseArgs(std::span<const std::string> args, TagsArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--json") {
      out.json = true;
    } else if (arg == "--raw") {
      out.raw = true;
    } else if (arg == "--set") {
      if (i + 1 >= args.size()) return "--set needs a value";
      if (auto error = AddSet(args[++i], out)) return error;
    } else if (arg == "--v23" || arg == "--v24") {
      if (out.version) return "give only one of --v23 and --v24";
      out.version = arg == "--v24" ? kID3v24 : kID3v23;
    } else if (arg == "--discard-other-frames") {
      out.discard = true;
    } else if (arg == "--remove-v1") {
      out.remove_v1 = true;
    } else if (arg == "--remove-v2") {
      out.remove_v2 = true;
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else {
      if (!out.file.empty()) return "only one FILE is expected";
      out.file = arg;
    }
  }
  if (out.file.empty()) return "FILE is missing";
  if (out.json && out.writes()) return "--json only goes with reading";
  if (out.raw && !out.json) return "--raw goes with --json";
  if (out.remove_v1 && !out.v1.empty()) return "--remove-v1 and --set v1.* exclude each other";
  const bool v2_write = !out.v2.empty() || out.version || out.discard;
  if (out.remove_v2 && v2_write) return "--remove-v2 excludes writing a version 2 tag";
  return std::nullopt;
}

// A value as the tag editor, the viewers and the reports show it: a frame's
// closing NUL and anything behind it are no part of it; `raw` keeps them.
std::string Shown(const std::string& value, bool raw) { return raw ? value : StripAtNull(value); }

void PrintJson(std::ostream& out, bool v1_found, const ID3v1Tag& v1, bool v2_found,
               const ID3v2Tag& v2, bool valid, const MPEGInfo& m, bool raw) {
  JsonObject root;
  if (v1_found) {
    JsonObject o;
    for (const auto& [name, member] : kV1Fields) o.Text(name, Shown(v1.*member, raw));
    root.Raw("v1", o.str());
  } else {
    root.Raw("v1", "null");
  }
  if (v2_found) {
    JsonObject o;
    for (const ID3v2Field& f : ID3v2Fields()) o.Text(f.name, Shown(v2.*f.member, raw));
    root.Raw("v2", o.str());
  } else {
    root.Raw("v2", "null");
  }
  JsonObject mp;
  mp.Text("mpegVersion", m.mpegVersion);
  mp.Bool("hasCRC", m.hasCRC);
  mp.Number("bitrate", m.bitrate);
  mp.Number("frequency", m.frequency);
  mp.Bool("hasVBR", m.hasVBR);
  mp.Text("channelMode", m.channelMode);
  mp.Bool("isCopyrighted", m.isCopyrighted);
  mp.Bool("isOriginal", m.isOriginal);
  mp.Bool("hasEmphasis", m.hasEmphasis);
  mp.Number("length", m.length);
  mp.Number("lengthFrames", m.lengthFrames);
  mp.Number("ID3v1Version", m.ID3v1Version);
  mp.Number("ID3v2Version", m.ID3v2Version);
  mp.Number("fileSize", m.fileSize);
  mp.Bool("valid", valid);
  root.Raw("mpeg", mp.str());
  out << root.str() << '\n';
}

std::string YesNo(bool value) { return value ? "yes" : "no"; }

void PrintText(std::ostream& out, bool v1_found, const ID3v1Tag& v1, bool v2_found,
               const ID3v2Tag& v2, bool valid, const MPEGInfo& m) {
  out << "ID3v1: " << (v1_found ? "" : "none") << '\n';
  if (v1_found) {
    for (const auto& [name, member] : kV1Fields) out << "  " << name << ": " << v1.*member << '\n';
  }
  out << "ID3v2: " << (v2_found ? "" : "none") << '\n';
  if (v2_found) {
    for (const ID3v2Field& f : ID3v2Fields()) {
      const std::string value = StripAtNull(v2.*f.member);
      if (!value.empty()) out << "  " << f.name << ": " << value << '\n';
    }
  }
  out << "MPEG: " << (valid ? "" : "no frame found") << '\n';
  if (valid) {
    out << "  mpegVersion: " << m.mpegVersion << "\n  hasCRC: " << YesNo(m.hasCRC)
        << "\n  bitrate: " << m.bitrate << "\n  frequency: " << m.frequency
        << "\n  hasVBR: " << YesNo(m.hasVBR) << "\n  channelMode: " << m.channelMode
        << "\n  isCopyrighted: " << YesNo(m.isCopyrighted)
        << "\n  isOriginal: " << YesNo(m.isOriginal) << "\n  hasEmphasis: " << YesNo(m.hasEmphasis)
        << "\n  length: " << FormatSeconds(m.length) << "\n  lengthFrames: " << m.lengthFrames
        << '\n';
  }
  out << "  ID3v1Version: " << m.ID3v1Version << "\n  ID3v2Version: " << m.ID3v2Version
      << "\n  fileSize: " << m.fileSize << '\n';
}

int ShowTags(const TagsArgs& a, CliIo& io) {
  ID3v1Tag v1;
  ID3v2Tag v2;
  MPEGInfo info;
  const bool v1_found = ReadID3v1(a.file, v1);
  const bool v2_found = ReadID3v2(a.file, v2);
  bool valid = false;
  try {
    valid = ReadMPEGInfo(a.file, info);
  } catch (const VbError& e) {
    return Failure(io, a.file + ": " + e.what());
  }
  if (a.json) {
    PrintJson(io.out, v1_found, v1, v2_found, v2, valid, info, a.raw);
  } else {
    PrintText(io.out, v1_found, v1, v2_found, v2, valid, info);
  }
  return kExitOk;
}

// The records as the tag editor fills its boxes: the file's values cut at NUL.
void LoadRecords(const std::string& file, ID3v1Tag& v1, ID3v2Tag& v2, int& version) {
  ReadID3v1(file, v1);
  for (const auto& [name, member] : kV1Fields) v1.*member = StripAtNull(v1.*member);
  ID3v2Tag read;
  if (ReadID3v2(file, read)) {
    for (const ID3v2Field& f : ID3v2Fields()) v2.*f.member = StripAtNull(read.*f.member);
  }
  MPEGInfo info;
  try {
    ReadMPEGInfo(file, info);
  } catch (const VbError&) {
  }
  version = info.ID3v2Version == 4 ? kID3v24 : kID3v23;
}

bool TrackIsNumber(const std::map<std::string, std::string>& values) {
  const auto track = values.find("track");
  return track == values.end() || vb::IsNumeric(track->second);
}

int WriteTags(const TagsArgs& a, CliIo& io) {
  if (!FileExists(a.file)) return Failure(io, a.file + ": no such file");
  const MessageTable& messages = MessageTable::Get(SystemLanguage());
  if (!TrackIsNumber(a.v1)) return Failure(io, std::string(messages.Text(1102)));
  if (!TrackIsNumber(a.v2)) return Failure(io, std::string(messages.Text(1103)));
  ID3v1Tag v1;
  ID3v2Tag v2;
  int version = kID3v23;
  LoadRecords(a.file, v1, v2, version);
  for (const auto& [name, value] : a.v1) v1.*FindV1Field(name) = value;
  for (const auto& [name, value] : a.v2) v2.*FindID3v2Field(name)->member = value;
  const int target = a.version.value_or(version);
  const bool write_v2 = !a.v2.empty() || a.version || a.discard;
  try {
    // Both records are encoded before anything is written, so a character
    // a Latin-1 tag cannot hold stops the command with the file untouched.
    ID3v1Block(v1);
    if (write_v2) BuildID3v2Tag(v2, target, {}, 0, false);
  } catch (const VbError&) {
    return Failure(io, "a tag value holds a character that Latin-1 cannot store");
  }
  bool ok = true;
  if (!a.v1.empty()) ok = WriteID3v1(a.file, v1, true) && ok;
  if (a.remove_v1) RemoveID3v1(a.file, true);
  if (write_v2) ok = WriteID3v2(a.file, v2, target, a.discard, false, true) && ok;
  if (a.remove_v2) ok = RemoveID3v2(a.file, true) && ok;
  if (!ok) return Failure(io, a.file + ": the tags could not be written");
  return kExitOk;
}

int RunTags(std::span<const std::string> args, CliIo& io) {
  TagsArgs a;
  if (const auto error = ParseArgs(args, a)) return UsageError(io, kCommand, *error);
  return a.writes() ? WriteTags(a, io) : ShowTags(a, io);
}

constexpr std::array<CommandForm, 2> kForms = {{
    {"tags FILE [--json [--raw]]", "show the ID3 version 1 and 2 tags and the MPEG stream facts"},
    {"tags FILE --set v1.FIELD=VALUE --set v2.FIELD=VALUE [--v23|--v24] "
     "[--discard-other-frames] [--remove-v1] [--remove-v2]",
     "write tags as the tag editor does"},
}};

constexpr std::string_view kDetails =
    "Reading:\n"
    "  --json                 one JSON object: \"v1\" (7 fields or null), \"v2\" (57\n"
    "                         fields or null) and \"mpeg\" (14 fields and \"valid\");\n"
    "                         values as the tag editor shows them\n"
    "  --raw                  with --json: values exactly as read, a frame's\n"
    "                         closing NUL and what follows it included\n"
    "Writing (Latin-1 only, read-only files are made writable first):\n"
    "  --set v1.FIELD=VALUE   artist, album, title, year, genre, comment, track\n"
    "  --set v2.FIELD=VALUE   any field of the version 2 record, such as title,\n"
    "                         artist, comment, userText, linkTo, composer\n"
    "  --v23, --v24           the version of the written tag; by default that of\n"
    "                         the tag already there, else 2.3\n"
    "  --discard-other-frames keep nothing of the old tag but the record\n"
    "  --remove-v1            remove the version 1 tag at the end\n"
    "  --remove-v2            remove the version 2 tag at the start\n"
    "Fields not set keep the values the file has. A track must be a number.\n";

}  // namespace

extern const Command kTagsCommand = {
    .name = kCommand,
    .summary = "show or write the ID3 tags of an MP3 file",
    .forms = kForms,
    .details = kDetails,
    .run = RunTags,
};

}  // namespace tarnwick::cli

#include "media/exif_translation.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "base/text.h"
#include "platform/user_folders.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFileName = "exif.ini";
// The lookup reads into a buffer of this many characters.
constexpr std::size_t kBufferChars = 1023;

std::optional<std::string> ReadSmallFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  // A translation file is a few kilobytes; a huge one is not read whole.
  constexpr std::uintmax_t kLimit = 4u << 20;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || size > kLimit) return std::nullopt;
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace

ExifTranslation ExifTranslation::Load(const std::vector<std::filesystem::path>& files) {
  for (const auto& file : files) {
    if (auto text = ReadSmallFile(file)) return ExifTranslation(IniDocument::Parse(*text));
  }
  return {};
}

std::string ExifTranslation::Lookup(std::string_view section, std::string_view key) const {
  const std::string* value = document_->Find(section, key);
  if (!value) return {};
  return vb::Trim(value->substr(0, std::min(value->size(), kBufferChars)));
}

std::string ExifTranslation::Apply(std::string_view name, std::string text) const {
  if (!document_) return text;
  if (std::string replaced = Lookup(name, vb::Trim(text)); !replaced.empty()) {
    text = std::move(replaced);
  }
  const std::string format = Lookup(name, "Format");
  if (!format.empty()) text = vb::Replace(format, "@X", text);
  return text;
}

std::vector<std::filesystem::path> DefaultExifTranslationFiles() {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) files.push_back(executable.parent_path() / kFileName);
  files.push_back(DataFolder() / kFileName);
  return files;
}

}  // namespace tarnwick

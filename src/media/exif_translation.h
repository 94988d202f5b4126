#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persist/ini_document.h"

namespace tarnwick {

// The optional translation file `exif.ini`: a section per tag name; a key
// equal to an entry's text gives the text shown instead, and a key `Format`
// gives a template in which "@X" stands for the text.
class ExifTranslation {
 public:
  ExifTranslation() = default;
  explicit ExifTranslation(IniDocument document) : document_(std::move(document)) {}

  // Reads the first of `files` that exists; nothing when none does or it
  // cannot be read.
  static ExifTranslation Load(const std::vector<std::filesystem::path>& files);

  // The text of an entry of tag `name` after translation.
  std::string Apply(std::string_view name, std::string text) const;

  bool empty() const { return !document_.has_value(); }

 private:
  std::string Lookup(std::string_view section, std::string_view key) const;

  std::optional<IniDocument> document_;
};

// Where the program looks for exif.ini: beside the executable, then in the
// program's data folder.
std::vector<std::filesystem::path> DefaultExifTranslationFiles();

}  // namespace tarnwick

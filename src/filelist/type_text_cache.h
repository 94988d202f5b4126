#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "shell/message_table.h"

namespace tarnwick {

// The type texts of the list by type key ("Folder", or "z" + the lower-case
// extension). The cache starts with the folder entry; four extensions have a
// fixed text that never enters it. Both are German and shown as they stand in
// every language. Every other key is described once, in the cache's language,
// for the first file of that extension, and then found in the cache.
class TypeTextCache {
 public:
  // `initial` and `fixed` in the form "|key=text|key=text|".
  TypeTextCache(std::string_view initial, std::string_view fixed,
                Language language = Language::kEnglish);
  // With the program's own texts of the message table.
  explicit TypeTextCache(Language language = Language::kEnglish);

  // The type text of `key`. The reference stays valid as long as the cache.
  const std::string& TypeTextFor(std::string_view key);
  // Whether `key` has one of the fixed texts (those files had an icon each).
  bool IsFixed(std::string_view key) const;
  std::size_t cached_count() const { return cache_.size(); }

 private:
  std::unordered_map<std::string, std::string> cache_;
  std::unordered_map<std::string, std::string> fixed_;
  Language language_;
};

// The type key of a file name: "z" + the lower-case extension.
std::string TypeKeyOf(std::string_view file_name);

// What a file of a type key is called where the system keeps no description:
// the upper-case extension and " File" ("TXT File"), or "File" without one;
// in German "TXT-Datei" and "Datei".
std::string DescribeFileType(std::string_view key, Language language = Language::kEnglish);

}  // namespace tarnwick

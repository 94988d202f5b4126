#include "filelist/type_text_cache.h"

#include "base/path_text.h"
#include "base/text.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFileKeyPrefix = "z";

// The pairs of a text "|key=text|key=text|".
std::unordered_map<std::string, std::string> ParsePairs(std::string_view text) {
  std::unordered_map<std::string, std::string> pairs;
  for (const std::string& pair : vb::Split(text, "|")) {
    const std::size_t equals = pair.find('=');
    if (equals == std::string::npos || equals == 0) continue;
    pairs.emplace(pair.substr(0, equals), pair.substr(equals + 1));
  }
  return pairs;
}

}  // namespace

TypeTextCache::TypeTextCache(std::string_view initial, std::string_view fixed, Language language)
    : cache_(ParsePairs(initial)), fixed_(ParsePairs(fixed)), language_(language) {}

// The texts are the same in both languages.
TypeTextCache::TypeTextCache(Language language)
    : TypeTextCache(MessageTable::Get(Language::kEnglish).Text("filelist.type_cache.folder"),
                    MessageTable::Get(Language::kEnglish).Text("filelist.type_cache.fixed"),
                    language) {}

const std::string& TypeTextCache::TypeTextFor(std::string_view key) {
  const std::string k(key);
  if (const auto fixed = fixed_.find(k); fixed != fixed_.end()) return fixed->second;
  if (const auto cached = cache_.find(k); cached != cache_.end()) return cached->second;
  return cache_.emplace(k, DescribeFileType(key, language_)).first->second;
}

bool TypeTextCache::IsFixed(std::string_view key) const {
  return fixed_.contains(std::string(key));
}

std::string TypeKeyOf(std::string_view file_name) {
  return std::string(kFileKeyPrefix) + vb::LCase(ExtensionName(file_name));
}

std::string DescribeFileType(std::string_view key, Language language) {
  const bool german = language == Language::kGerman;
  if (key.starts_with(kFileKeyPrefix)) key.remove_prefix(kFileKeyPrefix.size());
  if (key.empty()) return german ? "Datei" : "File";
  return vb::UCase(key) + (german ? "-Datei" : " File");
}

}  // namespace tarnwick

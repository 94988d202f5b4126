#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::cli {

// A JSON string; bytes that are not UTF-8 become U+FFFD.
std::string JsonString(std::string_view text);

// Builds one JSON object member by member, in the order they are added.
class JsonObject {
 public:
  void Text(std::string_view key, std::string_view value) { Raw(key, JsonString(value)); }
  void Number(std::string_view key, std::int64_t value) { Raw(key, std::to_string(value)); }
  void Bool(std::string_view key, bool value) { Raw(key, value ? "true" : "false"); }
  // `json` is already JSON: an object, an array or null.
  void Raw(std::string_view key, std::string_view json);
  std::string str() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

}  // namespace tarnwick::cli

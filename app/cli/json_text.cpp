#include "json_text.h"

#include <cstdio>

#include "base/utf8.h"

namespace tarnwick::cli {

std::string JsonString(std::string_view text) {
  std::string out = "\"";
  for (const utf8::Char c : utf8::Chars(text)) {
    if (!c.valid) {
      out += "\xEF\xBF\xBD";
    } else if (c.code_point == '"' || c.code_point == '\\') {
      out += '\\';
      out += static_cast<char>(c.code_point);
    } else if (c.code_point < 0x20) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c.code_point));
      out += escaped;
    } else {
      utf8::AppendCodePoint(out, c.code_point);
    }
  }
  return out + "\"";
}

void JsonObject::Raw(std::string_view key, std::string_view json) {
  if (!members_.empty()) members_ += ", ";
  members_ += JsonString(key);
  members_ += ": ";
  members_ += json;
}

}  // namespace tarnwick::cli

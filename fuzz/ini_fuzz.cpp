// Arbitrary bytes as the content of the options file: reading must not crash,
// writing what was read and reading it again must give the same sections,
// keys and values, and a value set from the input must read back unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "persist/ini_document.h"

namespace {

using Content =
    std::vector<std::pair<std::string, std::vector<std::pair<std::string, std::string>>>>;

Content ContentOf(const tarnwick::IniDocument& document) {
  Content content;
  for (const std::string& section : document.SectionNames()) {
    content.emplace_back(section, document.Entries(section));
  }
  return content;
}

void Check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  tarnwick::IniDocument document = tarnwick::IniDocument::Parse(input);
  const Content content = ContentOf(document);
  const std::string text = document.Serialize();
  Check(ContentOf(tarnwick::IniDocument::Parse(text)) == content);

  // Names and value from the input's own bytes: thirds of it.
  const std::string_view section = input.substr(0, size / 3);
  const std::string_view key = input.substr(size / 3, size / 3);
  const std::string_view value = input.substr(2 * (size / 3));
  const bool changed = document.Set(section, key, value);
  const tarnwick::IniDocument again = tarnwick::IniDocument::Parse(document.Serialize());
  if (!section.empty() && !key.empty()) {
    const std::string* stored = again.Find(section, key);
    Check(stored != nullptr && *stored == value);
  } else {
    Check(!changed);
  }
  Check(ContentOf(again) == ContentOf(document));
  return 0;
}

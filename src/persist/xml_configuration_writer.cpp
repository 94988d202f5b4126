#include "persist/xml_configuration_writer.h"

#include <sys/stat.h>

#include "base/vb_error.h"
#include "persist/option_store_file.h"
#include "persist/xml_configuration.h"

namespace tarnwick {
namespace {

constexpr std::string_view kRootOpen = "<configuration>";
constexpr std::string_view kRootClose = "</configuration>";

}  // namespace

void XmlConfigurationWriter::AddSection(std::string_view section, std::span<const Item> items) {
  XMLConfiguration scratch;
  scratch.Utf8Text(true);
  scratch.StartNewFile("");
  for (const auto& [name, value] : items) scratch.WriteValue(section, name, value);
  if (items.empty()) return;  // WriteValue makes no section without an item
  // Values are escaped, so the root's tags stand only where the root put them.
  const std::string text = scratch.DocumentText();
  const std::size_t open = text.find(kRootOpen) + kRootOpen.size();
  const std::size_t close = text.rfind(kRootClose);
  if (head_.empty()) {
    head_ = text.substr(0, open);
    tail_ = text.substr(close);
  }
  body_.append(text, open, close - open);
}

std::string XmlConfigurationWriter::Text() const {
  if (body_.empty()) {
    XMLConfiguration empty;
    empty.Utf8Text(true);
    empty.StartNewFile("");
    return empty.DocumentText();
  }
  return head_ + body_ + tail_;
}

void XmlConfigurationWriter::Save(const std::string& path) const {
  struct stat existing {};
  const mode_t mode = ::stat(path.c_str(), &existing) == 0 ? (existing.st_mode & 07777) : 0644;
  if (!ReplaceOptionFile(path, Text(), mode)) {
    throw VbError(vb_error::kPathFileAccessError, "Path/File access error");
  }
}

}  // namespace tarnwick

#include "persist/xml_configuration.h"

#include <sys/stat.h>

#include <fstream>
#include <iterator>
#include <pugixml.hpp>
#include <sstream>
#include <string>

#include "base/vb_error.h"
#include "persist/option_store_file.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kRootName = "configuration";
constexpr std::string_view kBeforeSection = "\r\n\t";
constexpr std::string_view kAfterSection = "\r\n";
constexpr std::string_view kBeforeFirstItem = "\r\n\t\t";
constexpr std::string_view kBeforeItem = "\t\t";
constexpr std::string_view kAfterItem = "\r\n\t";
constexpr std::string_view kAfterDeclaration = "\r\n";
constexpr std::string_view kAfterRoot = "\r\n";

// A plain file larger than this is not a configuration file.
constexpr std::uintmax_t kMaxFileBytes = 16 * 1024 * 1024;

// Layout is kept as it stands: whitespace text nodes stay, line ends are not
// normalised; attribute values are normalised as XML requires.
constexpr unsigned kParseFlags = pugi::parse_escapes | pugi::parse_wconv_attribute |
                                 pugi::parse_ws_pcdata | pugi::parse_declaration |
                                 pugi::parse_comments | pugi::parse_cdata;
constexpr unsigned kSaveFlags = pugi::format_raw | pugi::format_no_declaration;

constexpr std::string_view kErrorTemplate = "%2";
constexpr std::string_view kParseErrorTemplate = "%2 [%3: %4]";

void AppendText(pugi::xml_node parent, std::string_view text) {
  parent.append_child(pugi::node_pcdata).set_value(std::string(text).c_str());
}

bool IsBlankText(const char* text) {
  for (; *text != '\0'; ++text) {
    if (*text != ' ' && *text != '\t' && *text != '\r' && *text != '\n') return false;
  }
  return true;
}

// pugixml accepts text and several elements at the top of a document; an
// XML file must have one root and nothing but markup and blanks beside it.
bool HasSingleRoot(const pugi::xml_document& doc) {
  int elements = 0;
  for (pugi::xml_node node : doc.children()) {
    if (node.type() == pugi::node_element) ++elements;
    if (node.type() == pugi::node_pcdata && !IsBlankText(node.value())) return false;
    if (node.type() == pugi::node_cdata) return false;
  }
  return elements == 1;
}

// Text before the first or after the last markup; the parser drops it.
bool HasTextOutsideMarkup(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  const std::size_t last = text.find_last_not_of(" \t\r\n");
  if (first == std::string_view::npos) return false;
  return text[first] != '<' || text[last] != '>';
}

// The parser drops the blanks between the nodes of the document itself;
// they are put back as a new file has them, so a file read and saved again
// is the same to the byte.
void RestoreTopLevelLayout(pugi::xml_document& doc) {
  for (pugi::xml_node node = doc.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    doc.insert_child_after(pugi::node_pcdata, node).set_value(std::string(kAfterRoot).c_str());
    node = next;
  }
}

struct StringWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
};

std::string ReadWholeFile(const std::string& path, bool& ok) {
  std::ifstream in(path, std::ios::binary);
  ok = static_cast<bool>(in);
  if (!ok) return {};
  std::string bytes;
  char buffer[65536];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    bytes.append(buffer, static_cast<std::size_t>(in.gcount()));
    if (bytes.size() > kMaxFileBytes) break;
  }
  return bytes;
}

}  // namespace

struct XMLConfiguration::Document {
  pugi::xml_document doc;

  pugi::xml_node Root() const {
    const pugi::xml_node root = doc.document_element();
    if (!root || std::string_view(root.name()) != kRootName) return {};
    return root;
  }
};

XMLConfiguration::XMLConfiguration() : key_(ConfigurationKey()) {}
XMLConfiguration::~XMLConfiguration() = default;

void XMLConfiguration::Raise(int number, std::string_view description) const {
  const std::string number_text = std::to_string(number);
  if (parse_failed_) {
    const std::string code = std::to_string(parse_status_);
    throw VbError(
        number, FillMessage(kParseErrorTemplate, {number_text, description, code, parse_reason_}));
  }
  throw VbError(number, FillMessage(kErrorTemplate, {number_text, description}));
}

void XMLConfiguration::FailParse(int status, std::string reason) {
  parse_failed_ = true;
  parse_status_ = status;
  parse_reason_ = std::move(reason);
  document_.reset();
}

void XMLConfiguration::StartNewFile(std::string_view path) {
  path_ = std::string(path);
  parse_failed_ = false;
  document_ = std::make_unique<Document>();
  pugi::xml_document& doc = document_->doc;
  doc.append_child(std::string(kRootName).c_str());
  pugi::xml_node declaration = doc.prepend_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  doc.insert_child_after(pugi::node_pcdata, declaration)
      .set_value(std::string(kAfterDeclaration).c_str());
  AppendText(doc, kAfterRoot);
}

bool XMLConfiguration::LoadConfigurationFile(std::string_view path, bool create) {
  path_ = std::string(path);
  document_.reset();
  parse_failed_ = false;
  if (!FileExists(path_)) {
    if (!create) return false;
    StartNewFile(path);
    SaveConfigurationFile();
    return true;
  }
  bool read = false;
  std::string bytes = ReadWholeFile(path_, read);
  if (!read) Raise(vb_error::kPathFileAccessError, "Path/File access error");
  document_ = std::make_unique<Document>();
  if (bytes.size() > kMaxFileBytes) {
    FailParse(pugi::status_out_of_memory, "File too large");
    Raise(kXmlReadConfigurationError, kXmlReadConfigurationText);
  }
  if (encryption_) {
    try {
      bytes = ScrambleConfigurationText(bytes, key_);
    } catch (const VbError& error) {
      document_.reset();
      Raise(error.number(), error.description());
    }
  }
  const std::string text = utf8_ ? bytes : ConfigurationBytesToText(bytes);
  const pugi::xml_parse_result result =
      document_->doc.load_buffer(text.data(), text.size(), kParseFlags, pugi::encoding_utf8);
  if (!result || !HasSingleRoot(document_->doc) || HasTextOutsideMarkup(text)) {
    FailParse(
        result ? -1 : static_cast<int>(result.status),
        result ? "A document has one root element and no text beside it"
               : std::string(result.description()) + " at offset " + std::to_string(result.offset));
    Raise(kXmlReadConfigurationError, kXmlReadConfigurationText);
  }
  RestoreTopLevelLayout(document_->doc);
  return true;
}

namespace {

// The lookup of the older program built an expression from the names as
// they are, so a double quote in one broke it; that still raises.
constexpr std::string_view kBrokenLookup = "Expected ']' in the lookup of a name with a quote";

bool BreaksLookup(std::string_view name) { return name.find('"') != std::string_view::npos; }

bool Named(const pugi::xml_node& node, std::string_view element, std::string_view name) {
  return node.type() == pugi::node_element && element == node.name() &&
         name == node.attribute("name").value();
}

// The first child of `parent` that is `element` with attribute name = `name`.
pugi::xml_node FindNamed(const pugi::xml_node& parent, std::string_view element,
                         std::string_view name) {
  for (const pugi::xml_node child : parent.children()) {
    if (Named(child, element, name)) return child;
  }
  return {};
}

}  // namespace

std::string XMLConfiguration::ReadValue(std::string_view section, std::string_view item) const {
  if (!document_) return {};
  const pugi::xml_node root = document_->Root();
  if (!root) return {};
  if (BreaksLookup(section) || BreaksLookup(item)) {
    Raise(vb_error::kInvalidProcedureCall, kBrokenLookup);
  }
  // The first item of that name in any section of that name, in file order.
  for (const pugi::xml_node section_node : root.children()) {
    if (!Named(section_node, "section", section)) continue;
    const pugi::xml_node node = FindNamed(section_node, "item", item);
    if (!node) continue;
    const pugi::xml_attribute value = node.attribute("value");
    return value ? value.value() : "";
  }
  return {};
}

void XMLConfiguration::WriteValue(std::string_view section, std::string_view item,
                                  std::string_view value, bool save) {
  if (!document_) return;
  pugi::xml_node root = document_->Root();
  if (!root) return;
  if (BreaksLookup(section) || BreaksLookup(item)) {
    Raise(vb_error::kInvalidProcedureCall, kBrokenLookup);
  }
  pugi::xml_node section_node = FindNamed(root, "section", section);
  if (!section_node) {
    AppendText(root, kBeforeSection);
    section_node = root.append_child("section");
    section_node.append_attribute("name") = std::string(section).c_str();
    AppendText(root, kAfterSection);
  }
  pugi::xml_node item_node = FindNamed(section_node, "item", item);
  if (!item_node) {
    const bool first = !section_node.child("item");
    AppendText(section_node, first ? kBeforeFirstItem : kBeforeItem);
    item_node = section_node.append_child("item");
    item_node.append_attribute("name") = std::string(item).c_str();
    AppendText(section_node, kAfterItem);
  }
  pugi::xml_attribute value_attribute = item_node.attribute("value");
  if (!value_attribute) value_attribute = item_node.append_attribute("value");
  value_attribute.set_value(std::string(value).c_str());
  if (save) SaveConfigurationFile();
}

std::string XMLConfiguration::DocumentText() const {
  if (!document_) return {};
  StringWriter writer;
  document_->doc.save(writer, "", kSaveFlags, pugi::encoding_utf8);
  return writer.text;
}

void XMLConfiguration::SaveConfigurationFile() {
  if (!document_ || !document_->Root()) return;
  std::string bytes = utf8_ ? DocumentText() : ConfigurationTextToBytes(DocumentText());
  if (encryption_) bytes = ScrambleConfigurationText(bytes, key_);
  struct stat existing {};
  const mode_t mode = ::stat(path_.c_str(), &existing) == 0 ? (existing.st_mode & 07777) : 0644;
  if (!ReplaceOptionFile(path_, bytes, mode)) {
    Raise(vb_error::kPathFileAccessError, "Path/File access error");
  }
}

}  // namespace tarnwick

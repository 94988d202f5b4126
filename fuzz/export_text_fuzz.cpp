// Random bytes as a file name through the exports' text conversions. The XML
// document made of the converted name must be well-formed UTF-8 XML 1.0 that
// gives the converted name back, the same from the section writer; a text export line must stay one line; a
// name that needs no conversion must come out as it went in.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "base/utf8.h"
#include "persist/xml_configuration.h"
#include "persist/xml_configuration_writer.h"
#include "tools/export_text.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

// Well-formed UTF-8 and only characters XML 1.0 allows.
bool XmlCharacters(std::string_view text) {
  for (tarnwick::utf8::Char c : tarnwick::utf8::Chars(text)) {
    if (!c.valid) return false;
    if (c.code_point < 0x20 && c.code_point != '\t' && c.code_point != '\n' &&
        c.code_point != '\r') {
      return false;
    }
    if (c.code_point == 0xFFFE || c.code_point == 0xFFFF) return false;
  }
  return true;
}

bool NeedsNoConversion(std::string_view text) {
  for (tarnwick::utf8::Char c : tarnwick::utf8::Chars(text)) {
    if (!c.valid || c.code_point < 0x20 || c.code_point == 0x7F || c.code_point == 0xFFFE ||
        c.code_point == 0xFFFF) {
      return false;
    }
  }
  return true;
}

void CheckXml(std::string_view name, bool convert) {
  const std::string value = tarnwick::XmlValueText(name, convert);
  Check(XmlCharacters(value));
  if (NeedsNoConversion(name)) Check(value == name);
  tarnwick::XMLConfiguration document;
  document.Utf8Text(true);
  document.StartNewFile("/nonexistent/export.xml");
  document.WriteValue("Item1", "Name", value);
  const std::string text = document.DocumentText();
  Check(XmlCharacters(text));
  // The export's section-by-section writer gives the same bytes.
  tarnwick::XmlConfigurationWriter writer;
  const tarnwick::XmlConfigurationWriter::Item item{"Name", value};
  writer.AddSection("Item1", {&item, 1});
  Check(writer.Text() == text);
  pugi::xml_document parsed;
  // The default parse is strict about what a document may hold.
  const pugi::xml_parse_result result =
      parsed.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  Check(static_cast<bool>(result));
  const pugi::xml_attribute read =
      parsed.child("configuration").child("section").child("item").attribute("value");
  // XML normalises line ends in attribute values unless they are references;
  // the writer must have written them as references.
  Check(std::string_view(read.value()) == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view name(reinterpret_cast<const char*>(data), size);
  CheckXml(name, true);
  CheckXml(name, false);
  const std::string line = tarnwick::EscapedLineText(name);
  Check(line.find('\n') == std::string::npos && line.find('\r') == std::string::npos);
  for (tarnwick::utf8::Char c : tarnwick::utf8::Chars(line)) {
    Check(c.valid && c.code_point >= 0x20 && c.code_point != 0x7F);
  }
  if (NeedsNoConversion(name)) Check(line == name);
  return 0;
}

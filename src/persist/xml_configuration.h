#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tarnwick {

// The number of the error raised when a configuration file cannot be parsed
// (a user-defined error in the program's own range), its source and its
// description.
inline constexpr int kXmlReadConfigurationError = -2147220991;
inline constexpr std::string_view kXmlReadConfigurationSource = "XMLReadConfiguration";
inline constexpr std::string_view kXmlReadConfigurationText =
    "Error occurred while opening configuration file.";

// A file of named values, section by section, in an XML document:
//
//   <?xml version="1.0"?>
//   <configuration>
//   	<section name="S">
//   		<item name="I" value="V"/>
//   	</section>
//   </configuration>
//
// The layout between the elements is made of text nodes that the class adds
// as it writes, so a saved file is predictable to the byte:
//   - after the declaration, in the document: CR LF; after the root: CR LF;
//   - a new section: CR LF + tab before it and CR LF after it, in the root;
//   - the first item of a section: CR LF + tab + tab before it, later items
//     tab + tab; each item is followed by CR LF + tab, in the section.
//   Kept: an item after the first thus stands after three tabs.
// A file that is read keeps its own layout: whitespace text nodes are kept
// and line ends are not normalised, so a value written again changes only the
// text of its attribute and nothing else of the file.
//
// Encoding. The file's bytes are the document's text in Windows-1252, the
// system's single-byte code page; a character that code page lacks is kept
// as its own UTF-8 bytes (the rule of SingleByteCodePage: a well-formed UTF-8
// sequence is read as UTF-8 only when its character has no Windows-1252
// byte). So every character typed survives, and a file that holds only
// Windows-1252 characters is what the older program wrote. The declaration
// names no encoding, as before. Characters in attribute values that XML
// would otherwise lose (line ends, tabs, "<", "&", double quotes) are
// written as character references by pugixml and read back as they were.
//
// Scrambling. With `Encryption` on, each byte i (counted from 1) of the
// file is combined by XOR with character ((i - 1) mod key length) + 1 of the
// built-in key; the same step unscrambles. The counter of the older program
// was a signed 16-bit integer: a text of more than 32767 bytes raises
// overflow (6), so a scrambled file is at most 32767 bytes long, on saving
// and on loading alike.
//
// Errors are raised as VbError: the description is put together by one
// formatter from the error's number and description and, after a failed
// parse, the parser's code and reason. The caller's handler reports them.
// The object is made for one file and dropped after it; there is no lock,
// the last saver wins.
class XMLConfiguration {
 public:
  XMLConfiguration();
  ~XMLConfiguration();
  XMLConfiguration(const XMLConfiguration&) = delete;
  XMLConfiguration& operator=(const XMLConfiguration&) = delete;

  bool Encryption() const { return encryption_; }
  void Encryption(bool on) { encryption_ = on; }

  // The file's bytes are the document's UTF-8 text as it stands, with no
  // Windows-1252 step: what an XML reader expects of a document whose
  // declaration names no encoding. The list export writes so; the settings
  // files keep the older bytes.
  bool Utf8Text() const { return utf8_; }
  void Utf8Text(bool on) { utf8_ = on; }

  // Remembers `path` and starts an empty document (the declaration and the
  // root) without reading or writing anything; the first save puts it in
  // place of whatever the file holds.
  void StartNewFile(std::string_view path);

  // Remembers `path`. When no file is there: without `create` returns false;
  // with it, makes a document of the declaration and an empty root, saves it
  // at once and returns true. When a file is there: reads it whole,
  // unscrambles it when `Encryption` is on and parses it; a parse error
  // raises kXmlReadConfigurationError. True when the document is usable.
  bool LoadConfigurationFile(std::string_view path, bool create);

  // The value of `item` in `section` (the first item of that name in a
  // section of that name, among the root's sections in file order); empty
  // when the document, the root, the section, the item or its value is
  // missing. A name holding a double quote
  // breaks the lookup expression and raises.
  std::string ReadValue(std::string_view section, std::string_view item) const;

  // Sets the value, adding the section and the item (with their layout) when
  // they are missing; a value written again keeps its place. Nothing happens
  // without a document or root. With `save`, saves at once.
  void WriteValue(std::string_view section, std::string_view item, std::string_view value,
                  bool save = false);

  // Writes the whole document (scrambled when `Encryption` is on) over the
  // file in one step: a new file is written and synced, then put in place of
  // the old one, so a failure leaves the old file whole.
  void SaveConfigurationFile();

  // The document's text as it would be saved before scrambling, in UTF-8.
  std::string DocumentText() const;

  // The path remembered at the last load.
  const std::string& path() const { return path_; }

 private:
  struct Document;

  [[noreturn]] void Raise(int number, std::string_view description) const;
  // A parse that failed: its code and reason go into the error, and the
  // document is dropped, so nothing is read from half a file.
  void FailParse(int status, std::string reason);

  std::string path_;
  std::string key_;
  bool encryption_ = false;
  bool utf8_ = false;
  std::unique_ptr<Document> document_;
  bool parse_failed_ = false;
  int parse_status_ = 0;
  std::string parse_reason_;
};

// The scrambling step, the same both ways: byte i XOR key character
// ((i - 1) mod key length) + 1. A text of more than 32767 bytes raises
// overflow (6). An empty key leaves the text as it is.
std::string ScrambleConfigurationText(std::string_view text, std::string_view key);

// The key built into the program: 127 upper-case letters and digits.
std::string_view ConfigurationKey();

// A file's text as it is kept in a configuration file (see above) and back.
std::string ConfigurationTextToBytes(std::string_view utf8_text);
std::string ConfigurationBytesToText(std::string_view file_bytes);

}  // namespace tarnwick

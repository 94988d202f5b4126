#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "persist/ini_names.h"

namespace tarnwick {

// The options file in memory: sections of `key=value` lines, found by name
// without regard to case, every line of the file kept as it stands.
//
// Reading: `[Name]` starts a section (text after the closing bracket is
// ignored); `key=value` is an entry, blanks around key and value dropped; a
// line whose first non-blank character is ";" or "#" is a comment. Names and
// values may be quoted (see ini_text_codec.h). A section that appears twice
// continues the first; a key that appears twice in a section counts the first
// time. Lines that are none of these (and entries before the first section or
// under an empty name) are kept untouched and mean nothing.
//
// Writing changes only the lines of entries that were set; every other line,
// comments and unknown ones included, comes back as it was read. Lines end in
// "\n" (a "\r" before it is read as part of the line end).
class IniDocument {
 public:
  IniDocument();

  static IniDocument Parse(std::string_view text);
  std::string Serialize() const;

  // The stored value, or nullptr when the section or the key is missing.
  const std::string* Find(std::string_view section, std::string_view key) const;

  // Section names in file order, spelled as first written.
  std::vector<std::string> SectionNames() const;
  // The entries of a section in file order, keys spelled as first written.
  std::vector<std::pair<std::string, std::string>> Entries(std::string_view section) const;

  // Sets a value, adding the key (and the section) when missing. Returns
  // false when nothing changed: same value, or an empty section or key name.
  bool Set(std::string_view section, std::string_view key, std::string_view value);
  // Removes every line of a section. Returns false when there was none.
  bool RemoveSection(std::string_view section);

 private:
  struct Line {
    std::string raw;  // as read; unused once `edited`
    std::string key;
    std::string value;
    bool entry = false;
    bool edited = false;
  };
  // A header with the lines up to the next header. The first block has no
  // header: the lines before the first section.
  struct Block {
    std::string header;
    std::string name;
    bool live = false;  // false for the first block and for empty names
    std::vector<Line> lines;
  };
  struct LineRef {
    std::size_t block;
    std::size_t line;
  };
  struct Section {
    std::string name;
    std::size_t first_block;
    IniNameMap<LineRef> keys;
    std::vector<LineRef> order;
  };

  void AddLine(std::string_view line);
  void Reindex();
  const Line& LineAt(LineRef ref) const { return blocks_[ref.block].lines[ref.line]; }
  static bool IsBlankLine(const Line& line);
  bool EndsWithBlankLine() const;
  void InsertEntry(std::size_t block, std::string_view key, std::string_view value);

  std::vector<Block> blocks_;
  IniNameMap<Section> sections_;
  std::vector<std::string> section_order_;
};

}  // namespace tarnwick

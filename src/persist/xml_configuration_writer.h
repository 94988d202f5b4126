#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tarnwick {

// A configuration document written section by section, for documents too
// large to hold as a tree (the list's XML export: some twenty nodes a file).
// The bytes are exactly those XMLConfiguration saves in UTF-8 mode after the
// same WriteValue calls (each section once, its items in order, names
// distinct): every section is laid out by an XMLConfiguration of its own and
// only its text is kept.
class XmlConfigurationWriter {
 public:
  using Item = std::pair<std::string_view, std::string_view>;  // name, value

  void AddSection(std::string_view section, std::span<const Item> items);
  // The whole document as it would be saved.
  std::string Text() const;
  // Puts the document in place of `path` in one step (an old file stays
  // whole should that fail); raises VbError 75 as SaveConfigurationFile does.
  void Save(const std::string& path) const;

 private:
  std::string head_;  // the declaration up to the root's opening tag
  std::string body_;  // the sections
  std::string tail_;  // the root's closing tag and what follows it
};

}  // namespace tarnwick

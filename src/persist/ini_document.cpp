#include "persist/ini_document.h"

#include <algorithm>

#include "persist/ini_text_codec.h"

namespace tarnwick {
namespace {

void AppendEntryLine(std::string& out, std::string_view key, std::string_view value) {
  out += EncodeIniText(key, IniTextRole::kKey);
  out += '=';
  out += EncodeIniText(value, IniTextRole::kValue);
}

}  // namespace

IniDocument::IniDocument() : blocks_(1) {}

std::string IniDocument::Serialize() const {
  std::string out;
  for (const Block& block : blocks_) {
    if (&block != &blocks_.front()) {
      out += block.header;
      out += '\n';
    }
    for (const Line& line : block.lines) {
      if (line.edited) {
        AppendEntryLine(out, line.key, line.value);
      } else {
        out += line.raw;
      }
      out += '\n';
    }
  }
  return out;
}

const std::string* IniDocument::Find(std::string_view section, std::string_view key) const {
  const auto found_section = sections_.find(section);
  if (found_section == sections_.end()) return nullptr;
  const auto found_key = found_section->second.keys.find(key);
  if (found_key == found_section->second.keys.end()) return nullptr;
  return &LineAt(found_key->second).value;
}

std::vector<std::string> IniDocument::SectionNames() const { return section_order_; }

std::vector<std::pair<std::string, std::string>> IniDocument::Entries(
    std::string_view section) const {
  std::vector<std::pair<std::string, std::string>> entries;
  const auto found = sections_.find(section);
  if (found == sections_.end()) return entries;
  entries.reserve(found->second.order.size());
  for (const LineRef ref : found->second.order) {
    entries.emplace_back(LineAt(ref).key, LineAt(ref).value);
  }
  return entries;
}

bool IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  if (section.empty() || key.empty()) return false;
  const auto found_section = sections_.find(section);
  if (found_section != sections_.end()) {
    const auto found_key = found_section->second.keys.find(key);
    if (found_key != found_section->second.keys.end()) {
      Line& line = blocks_[found_key->second.block].lines[found_key->second.line];
      if (line.value == value) return false;
      line.value = value;
      line.edited = true;
      return true;
    }
    InsertEntry(found_section->second.first_block, key, value);
    return true;
  }
  // A new section goes at the end, after a blank line.
  if (!EndsWithBlankLine()) blocks_.back().lines.push_back(Line{});
  Block block;
  block.header.append(1, '[').append(EncodeIniText(section, IniTextRole::kSection)).append(1, ']');
  block.name = section;
  block.live = true;
  blocks_.push_back(std::move(block));
  InsertEntry(blocks_.size() - 1, key, value);
  return true;
}

bool IniDocument::RemoveSection(std::string_view section) {
  const auto size_before = blocks_.size();
  const auto in_section = [section](const Block& block) {
    return block.live && IniNamesEqual(block.name, section);
  };
  blocks_.erase(std::remove_if(blocks_.begin() + 1, blocks_.end(), in_section), blocks_.end());
  if (blocks_.size() == size_before) return false;
  Reindex();
  return true;
}

bool IniDocument::IsBlankLine(const Line& line) {
  return !line.entry && line.raw.find_first_not_of(" \t\r") == std::string::npos;
}

bool IniDocument::EndsWithBlankLine() const {
  const Block& last = blocks_.back();
  if (last.lines.empty()) return blocks_.size() == 1;  // an empty file needs no blank line
  return IsBlankLine(last.lines.back());
}

// Puts a new entry after the last entry of the block, so that blank lines and
// comments that close the block stay at its end.
void IniDocument::InsertEntry(std::size_t block, std::string_view key, std::string_view value) {
  std::vector<Line>& lines = blocks_[block].lines;
  const auto last_entry =
      std::find_if(lines.rbegin(), lines.rend(), [](const Line& line) { return line.entry; });
  std::size_t at = static_cast<std::size_t>(lines.rend() - last_entry);
  if (at == 0) {
    // No entry yet: after the last line that is not blank.
    at = lines.size();
    while (at > 0 && IsBlankLine(lines[at - 1])) --at;
  }
  Line line;
  line.key = key;
  line.value = value;
  line.entry = true;
  line.edited = true;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), std::move(line));
  Reindex();
}

void IniDocument::Reindex() {
  sections_.clear();
  section_order_.clear();
  for (std::size_t b = 0; b < blocks_.size(); ++b) {
    const Block& block = blocks_[b];
    if (!block.live) continue;
    auto [it, added] = sections_.try_emplace(block.name);
    Section& section = it->second;
    if (added) {
      section.name = block.name;
      section.first_block = b;
      section_order_.push_back(block.name);
    }
    for (std::size_t l = 0; l < block.lines.size(); ++l) {
      if (!block.lines[l].entry) continue;
      const LineRef ref{b, l};
      if (section.keys.try_emplace(block.lines[l].key, ref).second) section.order.push_back(ref);
    }
  }
}

}  // namespace tarnwick

// Reading the strings out of a VS_VERSIONINFO block: a tree of nodes, each
// with its length, value length, type, a UTF-16 key, a value and children,
// every part aligned to four bytes.
#include <unicode/ustring.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include "placeholders/version_resource_detail.h"

namespace tarnwick::version_resource_detail {
namespace {

struct Node {
  std::u16string key;
  std::size_t value_begin = 0;   // first byte of the value
  std::size_t value_length = 0;  // as the node states it (bytes or characters)
  std::size_t children_begin = 0;
  std::size_t end = 0;
};

std::size_t Align4(std::size_t offset) { return (offset + 3) & ~std::size_t{3}; }

std::uint16_t U16At(std::string_view block, std::size_t at) {
  return static_cast<std::uint16_t>(static_cast<unsigned char>(block[at]) |
                                    static_cast<unsigned char>(block[at + 1]) << 8);
}

// UTF-16 characters from `at` up to a NUL or `end`; `at` moves behind the NUL.
std::u16string ReadUtf16(std::string_view block, std::size_t& at, std::size_t end) {
  std::u16string text;
  while (at + 2 <= end) {
    const char16_t c = U16At(block, at);
    at += 2;
    if (c == 0) break;
    text.push_back(c);
  }
  return text;
}

// The node at `at`, bounded by `limit`; nothing if it does not fit.
std::optional<Node> NodeAt(std::string_view block, std::size_t at, std::size_t limit) {
  if (at + 6 > limit) return std::nullopt;
  const std::size_t length = U16At(block, at);
  if (length < 6 || length > limit - at) return std::nullopt;
  Node node;
  node.end = at + length;
  node.value_length = U16At(block, at + 2);
  std::size_t cursor = at + 6;
  node.key = ReadUtf16(block, cursor, node.end);
  node.value_begin = std::min(Align4(cursor), node.end);
  return node;
}

// The children of a node whose value is `value_bytes` long.
std::vector<Node> ChildrenOf(std::string_view block, const Node& parent, std::size_t value_bytes) {
  std::vector<Node> children;
  std::size_t at = Align4(parent.value_begin + value_bytes);
  while (at < parent.end) {
    const auto child = NodeAt(block, at, parent.end);
    if (!child) break;
    children.push_back(*child);
    at = Align4(child->end);
  }
  return children;
}

bool KeyIs(const std::u16string& key, std::string_view ascii) {
  if (key.size() != ascii.size()) return false;
  for (std::size_t i = 0; i < key.size(); ++i) {
    const char16_t a = key[i] < 128 ? static_cast<char16_t>(std::tolower(key[i])) : key[i];
    if (a != static_cast<char16_t>(std::tolower(static_cast<unsigned char>(ascii[i])))) {
      return false;
    }
  }
  return true;
}

std::string ToUtf8(const std::u16string& text) {
  std::string out(text.size() * 3, '\0');
  int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8WithSub(out.data(), static_cast<int32_t>(out.size()), &length, text.data(),
                     static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
  if (U_FAILURE(status)) return {};
  out.resize(length);
  return out;
}

// The table key of the first translation of VarFileInfo, "040904b0" style.
std::optional<std::u16string> FirstTranslation(std::string_view block,
                                               const std::vector<Node>& sections) {
  for (const Node& section : sections) {
    if (!KeyIs(section.key, "VarFileInfo")) continue;
    for (const Node& var : ChildrenOf(block, section, section.value_length)) {
      if (!KeyIs(var.key, "Translation") || var.value_begin + 4 > var.end) continue;
      char hex[9];
      std::snprintf(hex, sizeof hex, "%04x%04x", U16At(block, var.value_begin),
                    U16At(block, var.value_begin + 2));
      return std::u16string(hex, hex + 8);
    }
  }
  return std::nullopt;
}

bool SameHexKey(const std::u16string& a, const std::u16string& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] >= 128 || b[i] >= 128 || std::tolower(a[i]) != std::tolower(b[i])) return false;
  }
  return true;
}

// The string table to read: the one of the first translation, else the first.
std::optional<Node> ChooseTable(std::string_view block, const std::vector<Node>& sections) {
  const auto wanted = FirstTranslation(block, sections);
  std::optional<Node> first;
  for (const Node& section : sections) {
    if (!KeyIs(section.key, "StringFileInfo")) continue;
    for (const Node& table : ChildrenOf(block, section, 0)) {
      if (!first) first = table;
      if (wanted && SameHexKey(table.key, *wanted)) return table;
    }
  }
  return first;
}

void Assign(VersionStrings& out, const std::u16string& key, std::string value) {
  if (KeyIs(key, "CompanyName")) out.company_name = std::move(value);
  if (KeyIs(key, "FileDescription")) out.file_description = std::move(value);
  if (KeyIs(key, "FileVersion")) out.file_version = std::move(value);
  if (KeyIs(key, "LegalCopyright")) out.legal_copyright = std::move(value);
}

}  // namespace

VersionStrings ParseVersionBlock(std::string_view block) {
  VersionStrings out;
  const auto root = NodeAt(block, 0, block.size());
  if (!root || !KeyIs(root->key, "VS_VERSION_INFO")) return out;
  const std::vector<Node> sections = ChildrenOf(block, *root, root->value_length);
  const auto table = ChooseTable(block, sections);
  if (!table) return out;
  for (const Node& string : ChildrenOf(block, *table, 0)) {
    // The stated value length is often wrong in the wild; the value runs to
    // its NUL or to the end of its node.
    std::size_t at = string.value_begin;
    Assign(out, string.key, ToUtf8(ReadUtf16(block, at, string.end)));
  }
  return out;
}

}  // namespace tarnwick::version_resource_detail

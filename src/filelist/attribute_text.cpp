#include "filelist/attribute_text.h"

#include <algorithm>
#include <array>

#include "platform/file_attributes.h"

namespace tarnwick {
namespace {

struct Letter {
  std::uint32_t bit;
  char letter;
};

namespace fa = file_attribute;

constexpr std::array<Letter, 7> kLetters = {{
    {fa::kTemporary, 'T'},
    {fa::kReadOnly, 'R'},
    {fa::kHidden, 'H'},
    {fa::kSystem, 'S'},
    {fa::kNormal, 'N'},
    {fa::kCompressed, 'C'},
    {fa::kArchive, 'A'},
}};

// Kept: the filter names whole words, so other mixes of the same bits pass.
constexpr std::array<std::uint32_t, 7> kSystemWords = {38, 39, 6, 22, 21, 20, 18};
constexpr std::uint32_t kHiddenWord = 34;

}  // namespace

std::string AttributeText(std::uint32_t attributes) {
  std::string text;
  for (const Letter& l : kLetters) {
    if (attributes & l.bit) text += l.letter;
  }
  return text;
}

bool RecordVisible(std::uint32_t attributes, bool show_system, bool show_hidden) {
  if (!show_system &&
      std::find(kSystemWords.begin(), kSystemWords.end(), attributes) != kSystemWords.end()) {
    return false;
  }
  return show_hidden || attributes != kHiddenWord;
}

}  // namespace tarnwick

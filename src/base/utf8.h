#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Characters of a UTF-8 text. A character is one well-formed code point, or
// one byte that does not start a well-formed sequence. Such a byte counts as
// one character everywhere and passes through unchanged, so a file name in any
// encoding survives every step that does not edit it.
namespace tarnwick::utf8 {

// One character of a text: its bytes and, when it is a well-formed code
// point, its value. An invalid byte has `valid` false and `code_point` equal
// to the byte's value.
struct Char {
  char32_t code_point = 0;
  std::uint8_t size = 1;  // bytes, 1 to 4
  bool valid = true;
};

// The character that starts at byte `at` (which must be below text.size()).
Char DecodeAt(std::string_view text, std::size_t at);

// The number of bytes of the well-formed sequence that starts at `at`, or 0
// when the byte there is invalid or `at` is at the end.
std::size_t ValidSequenceAt(std::string_view text, std::size_t at);

// The number of characters.
std::size_t CountChars(std::string_view text);

// The byte offset of the character with the 0-based index `index`; text.size()
// when the text has no more characters than that.
std::size_t ByteOffsetOf(std::string_view text, std::size_t index);

// Byte offset reached by stepping `count` characters from byte `from` (a
// character boundary); stops at text.size().
std::size_t Advance(std::string_view text, std::size_t from, std::size_t count);

// True when every byte is below 0x80.
bool IsAscii(std::string_view text);

// The characters of a text, each as its bytes (views into `text`).
std::vector<std::string_view> SplitChars(std::string_view text);

// The UTF-8 bytes of a code point; nothing for a surrogate or a value beyond
// U+10FFFF.
void AppendCodePoint(std::string& out, char32_t code_point);

// Walks the characters of a text: for (utf8::Char c : utf8::Chars(text)).
class CharIterator {
 public:
  CharIterator(std::string_view text, std::size_t at) : text_(text), at_(at) { Load(); }

  const Char& operator*() const { return current_; }
  CharIterator& operator++() {
    at_ += current_.size;
    Load();
    return *this;
  }
  bool operator==(const CharIterator& other) const { return at_ == other.at_; }

  // Byte offset and bytes of the current character.
  std::size_t offset() const { return at_; }
  std::string_view bytes() const { return text_.substr(at_, current_.size); }

 private:
  void Load() {
    if (at_ < text_.size()) current_ = DecodeAt(text_, at_);
  }

  std::string_view text_;
  std::size_t at_;
  Char current_;
};

class Chars {
 public:
  explicit Chars(std::string_view text) : text_(text) {}
  CharIterator begin() const { return CharIterator(text_, 0); }
  CharIterator end() const { return CharIterator(text_, text_.size()); }

 private:
  std::string_view text_;
};

}  // namespace tarnwick::utf8

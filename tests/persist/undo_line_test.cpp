#include "persist/undo_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(UndoLineTest, OrdinaryNamesGiveThePlainLines) {
  EXPECT_EQ(UndoEntryLine("/a/old name.txt", "/a/new name.txt", "move"),
            "move \"/a/new name.txt\" \"/a/old name.txt\"");
  EXPECT_EQ(UndoEntryLine("/a/x", "/a/copy", "del"), "del \"/a/copy\"");
  EXPECT_EQ(UndoEntryLine("/a/x", "/a/y", "rem"), "rem \"/a/y\" \"/a/x\"");
  EXPECT_EQ(UndoEntryLine("/a/x", "/a/y", ""), "? \"/a/y\" \"/a/x\"");
  // Printable UTF-8, "%", "&" and "^" are not special here.
  EXPECT_EQ(UndoEntryLine("/a/100% M\xC3\xBCller&^", "/b", "move"),
            "move \"/b\" \"/a/100% M\xC3\xBCller&^\"");
}

TEST(UndoLineTest, UnsafeNamesAreEscapedComments) {
  EXPECT_EQ(UndoEntryLine("/a/x", "/a/q\"uote", "move"),
            "rem tarnwick-escaped move /a/q=22uote /a/x");
  EXPECT_EQ(UndoEntryLine("/a/x", "/a/tab\there", "del"), "rem tarnwick-escaped del /a/tab=09here");
  EXPECT_EQ(UndoEntryLine("/a/bad\xFF", "/a/y", "move"),
            "rem tarnwick-escaped move /a/y /a/bad=FF");
  EXPECT_EQ(UndoEntryLine("/a/x\x7F", "/a/y", "rem"), "rem tarnwick-escaped rem /a/y /a/x=7F");
  EXPECT_FALSE(IsSafeInUndoLine("a\nb"));
  EXPECT_FALSE(IsSafeInUndoLine("\xC3"));  // a cut-off sequence
  EXPECT_TRUE(IsSafeInUndoLine("M\xC3\xBCller \xE2\x82\xAC"));
}

TEST(UndoLineTest, EscapedLinesHoldOnlyHarmlessCharacters) {
  std::string every_byte;
  for (int byte = 1; byte < 256; ++byte) every_byte += static_cast<char>(byte);
  const std::string line = UndoEntryLine(every_byte, every_byte, "move");
  const std::string body = line.substr(std::string("rem ").size());
  for (const char c : body) {
    const bool harmless = std::isalnum(static_cast<unsigned char>(c)) || c == '/' || c == '.' ||
                          c == '_' || c == '-' || c == '=' || c == ' ';
    EXPECT_TRUE(harmless) << "byte " << static_cast<int>(static_cast<unsigned char>(c));
  }
  const std::optional<UndoLine> parsed = ParseUndoLine(line);
  ASSERT_TRUE(parsed.has_value());
  EXPECT_EQ(parsed->new_path, every_byte);
  EXPECT_EQ(parsed->old_path, every_byte);
  EXPECT_TRUE(parsed->escaped);
}

TEST(UndoLineTest, ParsesWhatItWrites) {
  for (const std::string command : {"move", "del", "rem"}) {
    for (const std::string name : {"/p/plain.txt", "/p/q\"x", "/p/nl\r\n", "/p/\xFE\xFF ="}) {
      const std::optional<UndoLine> line =
          ParseUndoLine(UndoEntryLine("/p/old " + name, name, command));
      ASSERT_TRUE(line.has_value()) << command << " " << name;
      EXPECT_EQ(line->command, command);
      EXPECT_EQ(line->new_path, name);
      EXPECT_EQ(line->old_path, command == "del" ? "" : "/p/old " + name);
    }
  }
}

TEST(UndoLineTest, OtherLinesAreNotEntries) {
  for (const char* text :
       {"", " ", "@echo off", "cls", "pause", "echo on", "echo Selected files: 2", "move",
        "move \"/a\"", "move \"/a\" \"/b", "move \"/a\" \"/b\" \"/c\"", "del \"/a\" \"/b\"",
        "move \"/a\"\"/b\"", "rem tarnwick-escaped", "rem tarnwick-escaped move /a=Z1 /b",
        "rem tarnwick-escaped move /a=4", "rem tarnwick-escaped move /a /b /c",
        "rem tarnwick-escaped del /a /b", "rem just a comment"}) {
    EXPECT_FALSE(ParseUndoLine(text).has_value()) << text;
  }
}

TEST(UndoLineTest, EscapeRoundTrip) {
  EXPECT_EQ(EscapeUndoName("a b=c"), "a=20b=3Dc");
  EXPECT_EQ(UnescapeUndoName("a=20b=3Dc"), "a b=c");
  EXPECT_FALSE(UnescapeUndoName("a=2").has_value());
  EXPECT_FALSE(UnescapeUndoName("a=2g").has_value());
  EXPECT_FALSE(UnescapeUndoName("a b").has_value());
}

}  // namespace
}  // namespace tarnwick

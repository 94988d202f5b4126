// Reading files written by hand, and what a rewrite keeps.
#include "persist/ini_document.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

std::string ValueOf(const IniDocument& document, std::string_view section, std::string_view key) {
  const std::string* value = document.Find(section, key);
  return value == nullptr ? "<missing>" : *value;
}

TEST(IniDocumentTest, HandWrittenEntries) {
  const IniDocument document = IniDocument::Parse(
      "[Options]\r\n"
      "Plain=value\r\n"
      "  Spaced  =  a value with blanks inside  \n"
      "\tTabbed\t=\t1\t\n"
      "Empty=\n"
      "Equals=a=b\n"
      "Semicolon=x ; not a comment\n"
      "Backslash=C:\\temp\\new\n"
      "Quoted=\"  kept  \"\n"
      "Escapes=\"a\\tb\\nc\\\\d\\\"e\\x41\\x7a\"\n"
      "UnknownEscape=\"C:\\path\\x4\"\n"
      "Unbalanced=\"open\n"
      "Trailing=\"a\" b\n"
      "\"Quoted Key\" = q\n"
      "\"a=b\"=c\n"
      "Plain=second one does not count\n");
  EXPECT_EQ(ValueOf(document, "Options", "Plain"), "value");
  EXPECT_EQ(ValueOf(document, "Options", "Spaced"), "a value with blanks inside");
  EXPECT_EQ(ValueOf(document, "Options", "Tabbed"), "1");
  EXPECT_EQ(ValueOf(document, "Options", "Empty"), "");
  EXPECT_EQ(ValueOf(document, "Options", "Equals"), "a=b");
  EXPECT_EQ(ValueOf(document, "Options", "Semicolon"), "x ; not a comment");
  EXPECT_EQ(ValueOf(document, "Options", "Backslash"), "C:\\temp\\new");
  EXPECT_EQ(ValueOf(document, "Options", "Quoted"), "  kept  ");
  EXPECT_EQ(ValueOf(document, "Options", "Escapes"), "a\tb\nc\\d\"eAz");
  EXPECT_EQ(ValueOf(document, "Options", "UnknownEscape"), "C:\\path\\x4");
  EXPECT_EQ(ValueOf(document, "Options", "Unbalanced"), "\"open");
  EXPECT_EQ(ValueOf(document, "Options", "Trailing"), "\"a\" b");
  EXPECT_EQ(ValueOf(document, "Options", "Quoted Key"), "q");
  EXPECT_EQ(ValueOf(document, "Options", "a=b"), "c");
  EXPECT_EQ(document.Entries("Options").size(), 14u);
}

// A blank or tab at either end of a key or value is data: written, then read
// back by a new parse of the text, as the next start reads it, it is kept
// (around a plain hand-written entry the same blanks are layout, see above).
TEST(IniDocumentTest, BlanksAndTabsAtTheEndsOfKeysAndValuesSurviveAWriteAndARead) {
  const std::vector<std::string> decoded = {" lead", "trail ", "  both  ", "\tlead",
                                            "trail\t", "\t mixed \t", " ", "\t"};
  IniDocument written;
  for (std::size_t i = 0; i < decoded.size(); ++i) {
    ASSERT_TRUE(written.Set("Options", "Value" + std::to_string(i), decoded[i]));
    ASSERT_TRUE(written.Set("Options", decoded[i], "key " + std::to_string(i)));
  }
  const IniDocument read = IniDocument::Parse(written.Serialize());
  for (std::size_t i = 0; i < decoded.size(); ++i) {
    EXPECT_EQ(ValueOf(read, "Options", "Value" + std::to_string(i)), decoded[i]) << i;
    EXPECT_EQ(ValueOf(read, "Options", decoded[i]), "key " + std::to_string(i)) << i;
  }
}

TEST(IniDocumentTest, HandWrittenSections) {
  const IniDocument document = IniDocument::Parse(
      "orphan=before any section\n"
      "[ First ] trailing words\n"
      "a=1\n"
      "[]\n"
      "lost=under an empty name\n"
      "[\"with ] bracket\"]\n"
      "b=2\n"
      "[no closing bracket\n"
      "c=3\n"
      "  [first]\n"
      "d=4\n"
      "a=shadowed\n");
  EXPECT_EQ(document.SectionNames(), (std::vector<std::string>{"First", "with ] bracket"}));
  EXPECT_EQ(document.Entries("FIRST"), (Entries{{"a", "1"}, {"d", "4"}}));
  // "[no closing bracket" is no header, so c stays in the section above.
  EXPECT_EQ(document.Entries("with ] bracket"), (Entries{{"b", "2"}, {"c", "3"}}));
  EXPECT_EQ(document.Find("", "lost"), nullptr);
}

TEST(IniDocumentTest, CommentsAndBlankLinesAreNoEntries) {
  const IniDocument document =
      IniDocument::Parse("[S]\n; a=1\n  # b=2\n\n   \nno equals sign\n=no key\n");
  EXPECT_TRUE(document.Entries("S").empty());
  EXPECT_EQ(document.SectionNames(), std::vector<std::string>{"S"});
}

TEST(IniDocumentTest, UnchangedDocumentWritesBackWhatWasRead) {
  const std::string text =
      "\xef\xbb\xbf; bom and comment\r\n[S]\r\n  a = 1 \r\n\x01\xff junk\n[T]\nb=\"x\"\n";
  EXPECT_EQ(IniDocument::Parse(text).Serialize(), text);
  EXPECT_EQ(IniDocument::Parse("[S]\na=1").Serialize(), "[S]\na=1\n");
  EXPECT_EQ(IniDocument::Parse("").Serialize(), "");
}

TEST(IniDocumentTest, SetAddsAfterTheLastEntryOfTheFirstBlock) {
  IniDocument document = IniDocument::Parse("[S]\na=1\n; closing comment\n\n[T]\n[s]\nb=2\n");
  EXPECT_TRUE(document.Set("s", "c", "3"));
  EXPECT_FALSE(document.Set("S", "C", "3"));  // same value: no change
  EXPECT_TRUE(document.Set("S", "B", "two"));
  EXPECT_EQ(document.Serialize(), "[S]\na=1\nc=3\n; closing comment\n\n[T]\n[s]\nb=two\n");
  EXPECT_TRUE(document.Set("T", "x", "y"));
  EXPECT_EQ(document.Entries("T"), (Entries{{"x", "y"}}));
  EXPECT_FALSE(document.Set("", "x", "y"));
  EXPECT_FALSE(document.Set("T", "", "y"));
}

}  // namespace
}  // namespace tarnwick

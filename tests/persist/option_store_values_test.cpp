// Values and names of any content come back from the file as they were saved.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "persist/option_store.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

std::vector<std::string> NastyTexts() {
  std::string all_bytes;
  for (int c = 1; c < 256; ++c) all_bytes += static_cast<char>(c);
  return {
      " ",
      "  leading and trailing  ",
      "\tTab\t",
      "a=b=c",
      "=starts with equals",
      ";looks like a comment",
      "#also a comment",
      "[Section]",
      "]",
      "\"quoted\"",
      "\"",
      "'single'",
      "back\\slash\\",
      "\\x41 is not A",
      "\\n is not a line break",
      "line\nbreak",
      "cr\rlf\r\n",
      "\n",
      "Größe ☃ 日本語 😀",
      "\xff\xfe invalid \xc3\x28 utf8 \xed\xa0\x80 surrogate \xc0\xaf overlong",
      "\x80",
      "\x01\x02\x1b\x7f",
      "x\\",
      "\"unbalanced",
      "ends with quote\"",
      all_bytes,
  };
}

TEST(OptionStoreValuesTest, AnyValueSurvivesTheFile) {
  TempDir dir;
  const auto file = dir.path() / "Tarnwick.ini";
  OptionStore writer(file);
  const std::vector<std::string> values = NastyTexts();
  for (size_t i = 0; i < values.size(); ++i) {
    ASSERT_TRUE(writer.SaveOption("Key" + std::to_string(i), "Options", values[i]));
  }
  const OptionStore reader(file);
  for (size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(reader.GetOption("Key" + std::to_string(i), "Options", "?"), values[i])
        << "value " << i;
  }
  // One entry per line: no value breaks the line structure.
  const std::string text = ReadWholeFile(file);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), static_cast<long>(values.size()) + 1);
}

TEST(OptionStoreValuesTest, AnyNameSurvivesTheFile) {
  TempDir dir;
  const auto file = dir.path() / "Tarnwick.ini";
  OptionStore writer(file);
  const std::vector<std::string> names = NastyTexts();
  for (size_t i = 0; i < names.size(); ++i) {
    ASSERT_TRUE(writer.SaveOption(names[i], names[i], "v" + std::to_string(i)));
  }
  const OptionStore reader(file);
  EXPECT_EQ(reader.Sections(), names);
  for (size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(reader.GetOption(names[i], names[i], "?"), "v" + std::to_string(i)) << "name " << i;
    EXPECT_EQ(reader.ListSection(names[i]).at(0).first, names[i]);
  }
}

TEST(OptionStoreValuesTest, PlainValuesAreWrittenAsTheyStand) {
  TempDir dir;
  const auto file = dir.path() / "Tarnwick.ini";
  OptionStore store(file);
  store.SaveOption("LogFilePath", "Options", "C:\\Logs\\Tarnwick.log");
  store.SaveOption("Mixed", "Options", "a = b ; c # d [e]");
  store.SaveOption("Umlaut", "Options", "Grüße");
  store.SaveOption("Blank", "Options", " ");
  store.SaveOption("Break", "Options", "a\nb");
  store.SaveOption("Raw", "Options", "\xff");
  EXPECT_EQ(ReadWholeFile(file),
            "[Options]\n"
            "LogFilePath=C:\\Logs\\Tarnwick.log\n"
            "Mixed=a = b ; c # d [e]\n"
            "Umlaut=Grüße\n"
            "Blank=\" \"\n"
            "Break=\"a\\nb\"\n"
            "Raw=\"\\xFF\"\n");
}

TEST(OptionStoreValuesTest, ChangingAValueRewritesOnlyItsLine) {
  TempDir dir;
  const auto file = dir.WriteFile("Tarnwick.ini", "[Options]\nA = \"x\\qy\"\nB=  two words  \n");
  OptionStore store(file);
  EXPECT_EQ(store.GetOption("A", "Options", ""), "x\\qy");
  EXPECT_EQ(store.GetOption("B", "Options", ""), "two words");
  store.SaveOption("B", "Options", "\"");
  EXPECT_EQ(ReadWholeFile(file), "[Options]\nA = \"x\\qy\"\nB=\"\\\"\"\n");
}

}  // namespace
}  // namespace tarnwick

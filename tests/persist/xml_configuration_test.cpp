#include "persist/xml_configuration.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "base/vb_error.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

class XmlConfigurationTest : public ::testing::Test {
 protected:
  std::string PathOf(const std::string& name) const { return (dir_.path() / name).string(); }
  TempDir dir_;
};

TEST_F(XmlConfigurationTest, NewFileAndItsLayoutAreExactToTheByte) {
  const std::string path = PathOf("a.xml");
  XMLConfiguration config;
  ASSERT_TRUE(config.LoadConfigurationFile(path, true));
  EXPECT_EQ(ReadWholeFile(path), "<?xml version=\"1.0\"?>\r\n<configuration/>\r\n");
  config.WriteValue("S", "a", "1");
  config.WriteValue("S", "b", "2");
  config.WriteValue("T", "c", "3");
  config.SaveConfigurationFile();
  EXPECT_EQ(ReadWholeFile(path),
            "<?xml version=\"1.0\"?>\r\n<configuration>"
            "\r\n\t<section name=\"S\">\r\n\t\t<item name=\"a\" value=\"1\"/>\r\n\t"
            "\t\t<item name=\"b\" value=\"2\"/>\r\n\t</section>\r\n"
            "\r\n\t<section name=\"T\">\r\n\t\t<item name=\"c\" value=\"3\"/>\r\n\t</section>\r\n"
            "</configuration>\r\n");
}

TEST_F(XmlConfigurationTest, ValuesSurviveScrambledRoundTripsAndKeepTheirPlace) {
  const std::string path = PathOf("s.twr");
  const std::string tricky = "  <a & \"b\" 'c'> Grüße ₤ 𝄞 \t tab\r\nline  ";
  {
    XMLConfiguration config;
    config.Encryption(true);
    ASSERT_TRUE(config.LoadConfigurationFile(path, true));
    config.WriteValue("Defaults", "first", "old");
    config.WriteValue("Defaults", "second", tricky);
    config.WriteValue("Defaults", "first", "new", true);
  }
  const std::string bytes = ReadWholeFile(path);
  EXPECT_EQ(bytes.find("configuration"), std::string::npos) << "the file is scrambled";
  XMLConfiguration config;
  config.Encryption(true);
  ASSERT_TRUE(config.LoadConfigurationFile(path, false));
  EXPECT_EQ(config.ReadValue("Defaults", "first"), "new");
  EXPECT_EQ(config.ReadValue("Defaults", "second"), tricky);
  EXPECT_LT(config.DocumentText().find("\"first\""), config.DocumentText().find("\"second\""));
  // Missing pieces read as empty, without an error.
  EXPECT_EQ(config.ReadValue("Nowhere", "first"), "");
  EXPECT_EQ(config.ReadValue("Defaults", "third"), "");
  // A saved file is read back to the same text, byte for byte.
  const std::string before = config.DocumentText();
  config.SaveConfigurationFile();
  EXPECT_EQ(ReadWholeFile(path), bytes);
  EXPECT_EQ(config.DocumentText(), before);
}

TEST_F(XmlConfigurationTest, TextIsWindows1252WithForeignCharactersAsUtf8) {
  const std::string path = PathOf("p.xml");
  XMLConfiguration config;
  ASSERT_TRUE(config.LoadConfigurationFile(path, true));
  config.WriteValue("S", "v", "ü€₤", true);
  const std::string bytes = ReadWholeFile(path);
  EXPECT_NE(bytes.find("\xFC\x80\xE2\x82\xA4"), std::string::npos);
  XMLConfiguration again;
  ASSERT_TRUE(again.LoadConfigurationFile(path, false));
  EXPECT_EQ(again.ReadValue("S", "v"), "ü€₤");
}

TEST_F(XmlConfigurationTest, WrongScramblingAndBrokenFilesRaiseTheReadError) {
  const std::string plain = PathOf("plain.xml");
  const std::string scrambled = PathOf("scrambled.twr");
  for (const bool on : {false, true}) {
    XMLConfiguration config;
    config.Encryption(on);
    config.LoadConfigurationFile(on ? scrambled : plain, true);
    config.WriteValue("S", "v", "1", true);
  }
  const auto expect_read_error = [](const std::string& path, bool on) {
    XMLConfiguration config;
    config.Encryption(on);
    try {
      config.LoadConfigurationFile(path, false);
      ADD_FAILURE() << path << " loaded";
    } catch (const VbError& error) {
      EXPECT_EQ(error.number(), kXmlReadConfigurationError);
      EXPECT_NE(error.description().find(kXmlReadConfigurationText), std::string::npos);
    }
  };
  expect_read_error(plain, true);
  expect_read_error(scrambled, false);
  expect_read_error(dir_.WriteFile("two.xml", "<a/><b/>").string(), false);
  expect_read_error(dir_.WriteFile("text.xml", "junk<configuration/>").string(), false);
  expect_read_error(dir_.WriteFile("open.xml", "<configuration><section>").string(), false);
  XMLConfiguration missing;
  EXPECT_FALSE(missing.LoadConfigurationFile(PathOf("none.xml"), false));
  EXPECT_EQ(missing.ReadValue("S", "v"), "");
  missing.WriteValue("S", "v", "1", true);
  EXPECT_FALSE(std::filesystem::exists(PathOf("none.xml")));
}

TEST_F(XmlConfigurationTest, ScramblingIsSymmetricAndLimitedTo32767Bytes) {
  const std::string_view key = ConfigurationKey();
  EXPECT_EQ(key.size(), 127u);
  for (const char c : key) EXPECT_TRUE(std::isupper(c) || std::isdigit(c)) << c;
  const std::string text(300, 'x');
  EXPECT_EQ(ScrambleConfigurationText(ScrambleConfigurationText(text, "AB7"), "AB7"), text);
  EXPECT_EQ(ScrambleConfigurationText("ab", "A")[1], static_cast<char>('b' ^ 'A'));
  EXPECT_NO_THROW(ScrambleConfigurationText(std::string(32767, 'a'), key));
  EXPECT_THROW(ScrambleConfigurationText(std::string(32768, 'a'), key), VbError);

  const std::string path = PathOf("big.twr");
  XMLConfiguration config;
  config.Encryption(true);
  ASSERT_TRUE(config.LoadConfigurationFile(path, true));
  const std::string before = ReadWholeFile(path);
  config.WriteValue("S", "v", std::string(40000, 'a'));
  try {
    config.SaveConfigurationFile();
    ADD_FAILURE() << "saved";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), vb_error::kOverflow);
  }
  EXPECT_EQ(ReadWholeFile(path), before) << "a failed save leaves the old file";
}

TEST_F(XmlConfigurationTest, ANameWithADoubleQuoteBreaksTheLookup) {
  XMLConfiguration config;
  ASSERT_TRUE(config.LoadConfigurationFile(PathOf("q.xml"), true));
  EXPECT_THROW(config.ReadValue("a\"b", "v"), VbError);
  EXPECT_THROW(config.WriteValue("S", "x\"", "1"), VbError);
}

}  // namespace
}  // namespace tarnwick

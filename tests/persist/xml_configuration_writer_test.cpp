// The section writer against the configuration class it stands in for.
#include "persist/xml_configuration_writer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/vb_error.h"
#include "persist/xml_configuration.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using Item = XmlConfigurationWriter::Item;

TEST(XmlConfigurationWriterTest, GivesTheBytesOfTheConfigurationClassAndSavesThem) {
  const std::vector<std::pair<std::string, std::vector<Item>>> sections = {
      {"Tarnwick", {{"Version", "v2.97.0"}}},
      {"Item1", {{"Name", "a&b<c>\"d'e.txt"}, {"Size", "3 bytes"}, {"Path", "/tmp/x\ty\r\nz"}}},
      {"Item2", {{"Name", "Müller ☃.jpg"}, {"Attribut", ""}}},
  };
  XMLConfiguration tree;
  tree.Utf8Text(true);
  tree.StartNewFile("");
  XmlConfigurationWriter writer;
  for (const auto& [section, items] : sections) {
    for (const auto& [name, value] : items) tree.WriteValue(section, name, value);
    writer.AddSection(section, items);
  }
  EXPECT_EQ(writer.Text(), tree.DocumentText());

  testing::TempDir dir;
  const std::string path = (dir.path() / "list.xml").string();
  dir.WriteFile("list.xml", "old");
  writer.Save(path);
  EXPECT_EQ(testing::ReadWholeFile(path), tree.DocumentText());
  EXPECT_THROW(writer.Save((dir.path() / "no" / "such" / "list.xml").string()), VbError);
}

TEST(XmlConfigurationWriterTest, ADocumentWithoutSectionsIsTheEmptyDocument) {
  XMLConfiguration tree;
  tree.Utf8Text(true);
  tree.StartNewFile("");
  EXPECT_EQ(XmlConfigurationWriter().Text(), tree.DocumentText());
}

}  // namespace
}  // namespace tarnwick

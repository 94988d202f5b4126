#include "placeholders/version_resource.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

void Put16(std::string& out, std::size_t at, std::uint32_t v) {
  out[at] = static_cast<char>(v & 0xFF);
  out[at + 1] = static_cast<char>(v >> 8 & 0xFF);
}
void Put32(std::string& out, std::size_t at, std::uint32_t v) {
  Put16(out, at, v & 0xFFFF);
  Put16(out, at + 2, v >> 16);
}
void Pad4(std::string& out) { out.resize((out.size() + 3) & ~std::size_t{3}, '\0'); }

std::string Utf16z(std::u16string_view text) {
  std::string out;
  for (char16_t c : text) {
    out.push_back(static_cast<char>(c & 0xFF));
    out.push_back(static_cast<char>(c >> 8));
  }
  out.append(2, '\0');
  return out;
}

// One node of a version block: length, value length, type, key, value, children.
std::string Node(std::u16string_view key, const std::string& value, std::uint16_t value_length,
                 std::uint16_t type, const std::vector<std::string>& children = {}) {
  std::string out(6, '\0');
  out += Utf16z(key);
  Pad4(out);
  out += value;
  for (const std::string& child : children) {
    Pad4(out);
    out += child;
  }
  Put16(out, 0, static_cast<std::uint32_t>(out.size()));
  Put16(out, 2, value_length);
  Put16(out, 4, type);
  return out;
}

std::string StringNode(std::u16string_view key, std::u16string_view text) {
  return Node(key, Utf16z(text), static_cast<std::uint16_t>(text.size() + 1), 1);
}

std::string VersionBlock(const std::vector<std::string>& tables, std::uint16_t language,
                         std::uint16_t code_page) {
  std::string translation(4, '\0');
  Put16(translation, 0, language);
  Put16(translation, 2, code_page);
  const std::string var = Node(u"VarFileInfo", "", 0, 1, {Node(u"Translation", translation, 4, 0)});
  const std::string fixed(52, '\x01');
  return Node(u"VS_VERSION_INFO", fixed, 52, 0, {Node(u"StringFileInfo", "", 0, 1, tables), var});
}

// A PE32 image with one .rsrc section that holds `block` as RT_VERSION 1/0x409.
std::string PeImage(const std::string& block) {
  std::string rsrc(0x58, '\0');
  Put16(rsrc, 0x0E, 1);  // root: one id entry
  Put32(rsrc, 0x10, 16);
  Put32(rsrc, 0x14, 0x80000000u | 0x18);
  Put16(rsrc, 0x18 + 0x0E, 1);
  Put32(rsrc, 0x28, 1);
  Put32(rsrc, 0x2C, 0x80000000u | 0x30);
  Put16(rsrc, 0x30 + 0x0E, 1);
  Put32(rsrc, 0x40, 0x409);
  Put32(rsrc, 0x44, 0x48);
  Put32(rsrc, 0x48, 0x1000 + 0x58);
  Put32(rsrc, 0x4C, static_cast<std::uint32_t>(block.size()));
  rsrc += block;

  std::string image(0x200, '\0');
  image[0] = 'M';
  image[1] = 'Z';
  Put32(image, 0x3C, 0x40);
  image.replace(0x40, 4, std::string("PE\0\0", 4));
  Put16(image, 0x44, 0x14c);
  Put16(image, 0x46, 1);    // sections
  Put16(image, 0x54, 224);  // optional header size
  const std::size_t optional = 0x58;
  Put16(image, optional, 0x10b);
  Put32(image, optional + 92, 16);
  Put32(image, optional + 112, 0x1000);
  Put32(image, optional + 116, static_cast<std::uint32_t>(rsrc.size()));
  const std::size_t section = optional + 224;
  image.replace(section, 5, ".rsrc");
  Put32(image, section + 8, static_cast<std::uint32_t>(rsrc.size()));
  Put32(image, section + 12, 0x1000);
  Put32(image, section + 16, static_cast<std::uint32_t>(rsrc.size()));
  Put32(image, section + 20, 0x200);
  return image + rsrc;
}

std::string EnglishTable() {
  return Node(
      u"040904b0", "", 0, 1,
      {StringNode(u"CompanyName", u"Oakhollow Ltd"),
       StringNode(u"FileDescription", u"Bulk renamer"), StringNode(u"FileVersion", u"2.97.0.1"),
       StringNode(u"LegalCopyright", u"\u00A9 2004 Oakhollow")});
}

TEST(VersionResourceTest, ReadsTheFourStringsOfAProgram) {
  const VersionStrings strings =
      ParseVersionStrings(PeImage(VersionBlock({EnglishTable()}, 0x409, 0x4b0)));
  EXPECT_EQ(strings.company_name, "Oakhollow Ltd");
  EXPECT_EQ(strings.file_description, "Bulk renamer");
  EXPECT_EQ(strings.file_version, "2.97.0.1");
  EXPECT_EQ(strings.legal_copyright, "\u00A9 2004 Oakhollow");
}

TEST(VersionResourceTest, PrefersTheTableOfTheFirstTranslation) {
  const std::string german =
      Node(u"040704E4", "", 0, 1, {StringNode(u"CompanyName", u"Eichenhain")});
  const std::string block = VersionBlock({EnglishTable(), german}, 0x407, 0x4e4);
  EXPECT_EQ(ParseVersionStrings(PeImage(block)).company_name, "Eichenhain");
  // Without a matching translation the first table counts.
  EXPECT_EQ(
      ParseVersionStrings(PeImage(VersionBlock({EnglishTable(), german}, 0x40c, 0))).company_name,
      "Oakhollow Ltd");
}

TEST(VersionResourceTest, AbsentStringIsEmpty) {
  const std::string table = Node(u"040904b0", "", 0, 1, {StringNode(u"FileVersion", u"1.0")});
  const VersionStrings strings = ParseVersionStrings(PeImage(VersionBlock({table}, 0x409, 0x4b0)));
  EXPECT_EQ(strings.file_version, "1.0");
  EXPECT_EQ(strings.company_name, "");
  EXPECT_EQ(strings.legal_copyright, "");
}

TEST(VersionResourceTest, EveryTruncationOrDamageGivesEmptyOrPartialNeverAFault) {
  const std::string image = PeImage(VersionBlock({EnglishTable()}, 0x409, 0x4b0));
  for (std::size_t size = 0; size < image.size(); ++size) {
    const VersionStrings strings = ParseVersionStrings(std::string_view(image).substr(0, size));
    EXPECT_TRUE(strings.company_name.empty() || strings.company_name == "Oakhollow Ltd");
  }
  for (std::size_t at = 0; at < image.size(); ++at) {
    std::string damaged = image;
    damaged[at] = static_cast<char>(0xFF);
    ParseVersionStrings(damaged);  // must not crash or hang
  }
}

TEST(VersionResourceTest, FilesWithoutAResourceGiveEmptyStrings) {
  testing::TempDir dir;
  EXPECT_EQ(ReadVersionStrings(dir.WriteFile("plain.exe", "MZ just text")).company_name, "");
  EXPECT_EQ(ReadVersionStrings(dir.path() / "missing.dll").company_name, "");
  EXPECT_EQ(ReadVersionStrings(dir.path()).company_name, "");
  const auto program =
      dir.WriteFile("tool.exe", PeImage(VersionBlock({EnglishTable()}, 0x409, 0x4b0)));
  EXPECT_EQ(ReadVersionStrings(program).file_description, "Bulk renamer");
}

}  // namespace
}  // namespace tarnwick

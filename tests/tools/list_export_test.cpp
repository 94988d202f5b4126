// The text and XML exports of the list, compared with documents written by
// hand, and their treatment of names no line or document can hold as they are.
#include <fcntl.h>
#include <sys/stat.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "base/vb_date_text.h"
#include "core/run_test_fixture.h"
#include "platform/files.h"
#include "tools/export_text.h"
#include "tools/list_export.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

// 8 March 2004, 10:15:05 local time.
void SetFixedDate(const fs::path& file) {
  std::tm local{};
  local.tm_year = 104;
  local.tm_mon = 2;
  local.tm_mday = 8;
  local.tm_hour = 10;
  local.tm_min = 15;
  local.tm_sec = 5;
  local.tm_isdst = -1;
  const std::time_t when = std::mktime(&local);
  const struct timespec times[2] = {{when, 0}, {when, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

bool WellFormed(const std::string& path) {
  const std::string command = "xmllint --noout '" + path + "' 2>/dev/null";
  return std::system(command.c_str()) == 0;
}

class ListExportTest : public RunTest {
 protected:
  ListExportTest() { SetOption("LogOnlyRename", "0"); }
  RenameRunEnv Env() {
    return {app, settings, list, options, interaction, messages, clock, log_undo, {}, &loader};
  }
  void AddDated(const std::string& name, const std::string& content) {
    AddFile(name, content);
    SetFixedDate(files() / name);
  }
  // Five files of 1 to 5 bytes, every date the same.
  void FiveFiles() {
    for (int i = 1; i <= 5; ++i) {
      AddDated("file" + std::to_string(i) + ".txt", std::string(static_cast<std::size_t>(i), 'x'));
    }
    SetOption("FileDateType", "Last Modified");
    Fill();
  }
  std::string ReadOut(const fs::path& path) { return ReadWholeFile(path); }

  FileListLoader loader{{options, app, interaction, fill_log, media, messages}};
};

ExportColumns AllColumns() {
  ExportColumns columns;
  columns.chosen.fill(true);
  return columns;
}

TEST_F(ListExportTest, TextOfFiveFilesWithAllColumnsAndSemicolons) {
  FiveFiles();
  TextExportChoices choices;
  choices.columns = AllColumns();
  choices.delimiter = ExportDelimiter::kSemicolon;
  choices.date_time = false;
  const TextExportResult out = ExportListText(Env(), choices);
  std::string expected = "Name;Size;Type;Last Modified;Attributes;Path;Mediainfo;Foldername\r\n";
  for (int i = 1; i <= 5; ++i) {
    expected += "file" + std::to_string(i) + ".txt;" + std::to_string(i) +
                " bytes;TXT File;08.03.2004 10:15:05;A;" + files().string() + ";;files\r\n";
  }
  expected += "\r\nFile(s):5;Folders:0\r\n";
  EXPECT_EQ(out.text, expected);
  EXPECT_EQ(out.files, 5u);
  EXPECT_EQ(out.result.done, 5);
  EXPECT_TRUE(out.title.starts_with("Create textfile - 5 files in ")) << out.title;
}

TEST_F(ListExportTest, TextDelimitersSelectionAndClosingDate) {
  FiveFiles();
  list.DeselectAll();
  list.Select(1);
  list.Select(3);
  TextExportChoices choices;  // name and size, only the selected, tabs
  choices.tabs = 2;
  choices.number_of_files = false;
  std::string text = ExportListText(Env(), choices).text;
  EXPECT_EQ(text,
            "Name\t\tSize\r\nfile2.txt\t\t2 bytes\r\nfile4.txt\t\t4 bytes\r\n\r\n" +
                vb::FormatDate(clock.Now(), "Short Date") + " @ 10:15:05\r\n");
  choices.only_selected = false;
  choices.date_time = false;
  choices.delimiter = ExportDelimiter::kOther;
  choices.other = " | ";
  text = ExportListText(Env(), choices).text;
  EXPECT_TRUE(text.starts_with("Name | Size\r\nfile1.txt | 1 bytes\r\n")) << text;
  EXPECT_NE(text.find("file5.txt | 5 bytes\r\n"), std::string::npos);
}

TEST_F(ListExportTest, TextWithSubfoldersPutsEachFolderUnderItsLine) {
  AddFile("top.txt", "t");
  AddFile("b/inner.txt", "i");
  AddFile("b/c/deep.txt", "d");
  Fill();
  TextExportChoices choices;
  choices.columns.chosen = {true, false, false, false, false, false, false, false};
  choices.include_subfolders = true;
  choices.date_time = false;
  const TextExportResult out = ExportListText(Env(), choices);
  const std::string top = files().string();
  EXPECT_EQ(out.text, "Name\r\n[Folder] " + top + "\r\ntop.txt\r\n[Folder] " + top +
                          "/b\r\ninner.txt\r\n[Folder] " + top + "/b/c\r\ndeep.txt\r\n\r\n" +
                          "File(s):3\tFolders:3\r\n");
}

TEST_F(ListExportTest, EscKeepsThePartialTextAndSaysSo) {
  FiveFiles();
  interaction.PressCancelAtPoll(3);
  TextExportChoices choices;
  choices.date_time = choices.number_of_files = false;
  const TextExportResult out = ExportListText(Env(), choices);
  EXPECT_TRUE(out.result.cancelled);
  EXPECT_EQ(out.text, "Name\tSize\r\nfile1.txt\t1 bytes\r\nfile2.txt\t2 bytes\r\n");
  EXPECT_TRUE(WasAsked("Process canceled."));
}

TEST_F(ListExportTest, XmlOfFiveFilesHoldsOnlyTheChosenItems) {
  FiveFiles();
  XmlExportChoices choices;  // name and size
  const std::string path = (dir.path() / "list.xml").string();
  const ToolJobResult result = ExportListXml(Env(), choices, path);
  EXPECT_EQ(result.done, 5);
  std::string expected =
      "<?xml version=\"1.0\"?>\r\n<configuration>\r\n"
      "\t<section name=\"Tarnwick\">\r\n\t\t<item name=\"Version\" value=\"v2.97.0\"/>\r\n\t"
      "</section>\r\n\r\n"
      "\t<section name=\"Copyright\">\r\n\t\t<item name=\"Copyright\" value=\"(c) 2001-2026 "
      "Oakhollow\"/>\r\n\t</section>\r\n\r\n"
      "\t<section name=\"Internet\">\r\n\t\t<item name=\"Internet\" "
      "value=\"https://www.oakhollow.example/tarnwick\"/>\r\n\t</section>\r\n\r\n"
      "\t<section name=\"FileLastModified\">\r\n\t\t<item name=\"FileLastModified\" value=\"" +
      vb::FormatDate(clock.Now(), "Short Date") + " 10:15:05\"/>\r\n\t</section>\r\n";
  for (int i = 1; i <= 5; ++i) {
    const std::string n = std::to_string(i);
    expected += "\r\n\t<section name=\"Item" + n + "\">\r\n\t\t<item name=\"Name\" value=\"file" +
                n + ".txt\"/>\r\n\t\t\t<item name=\"Size\" value=\"" + n +
                " bytes\"/>\r\n\t</section>\r\n";
  }
  expected += "</configuration>\r\n";
  EXPECT_EQ(ReadOut(path), expected);
  EXPECT_TRUE(WellFormed(path));
}

TEST_F(ListExportTest, EscSavesThePartialXmlDocumentAndSaysSo) {
  FiveFiles();
  interaction.PressCancelAtPoll(3);
  const std::string path = (dir.path() / "partial.xml").string();
  const ToolJobResult result = ExportListXml(Env(), XmlExportChoices{}, path);
  EXPECT_TRUE(result.cancelled);
  const std::string text = ReadOut(path);
  EXPECT_NE(text.find("<section name=\"Item2\">"), std::string::npos);
  EXPECT_EQ(text.find("Item3"), std::string::npos);
  EXPECT_TRUE(WellFormed(path));
  EXPECT_TRUE(WasAsked("Process canceled."));
}

TEST_F(ListExportTest, XmlOfAnEmptyListHasOnlyTheHead) {
  Fill();
  const std::string path = (dir.path() / "empty.xml").string();
  ExportListXml(Env(), XmlExportChoices{}, path);
  const std::string text = ReadOut(path);
  EXPECT_EQ(text.find("Item"), std::string::npos);
  EXPECT_NE(text.find("FileLastModified"), std::string::npos);
  EXPECT_TRUE(WellFormed(path));
}

TEST_F(ListExportTest, AwkwardNamesKeepBothDocumentsSound) {
  AddFile("a&b<c>.txt", "1");
  AddFile("quote\"d'.txt", "2");
  AddFile("ctl\001x.txt", "3");
  AddFile("bad\377name", "4");
  AddFile("Müller ☃.txt", "5");
  AddFile("line\nbreak.txt", "6");
  Fill();
  for (const bool convert : {true, false}) {
    SCOPED_TRACE(convert);
    XmlExportChoices choices;
    choices.columns = AllColumns();
    choices.convert_invalid = convert;
    const std::string path = (dir.path() / "odd.xml").string();
    ExportListXml(Env(), choices, path);
    EXPECT_TRUE(WellFormed(path));
    EXPECT_NE(ReadOut(path).find("Müller ☃.txt"), std::string::npos);
  }
  TextExportChoices choices;
  choices.date_time = choices.number_of_files = false;
  const std::string text = ExportListText(Env(), choices).text;
  EXPECT_NE(text.find("ctl\\x01x.txt\t1 bytes"), std::string::npos) << text;
  EXPECT_NE(text.find("line\\x0Abreak.txt\t1 bytes"), std::string::npos);
  EXPECT_NE(text.find("bad\\xFFname\t1 bytes"), std::string::npos);
  // Header, six files, nothing split.
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 7);
}

TEST(ExportTextTest, ConversionOfWhatXmlCannotHold) {
  EXPECT_EQ(XmlValueText("a\001b\tc\377", true), "a\\x01b\\x09c\\xFF");
  EXPECT_EQ(XmlValueText("a\001b\tc\377", false), "a\xEF\xBF\xBD" "b\tc\xEF\xBF\xBD");
  EXPECT_EQ(XmlValueText("\xEF\xBF\xBE", true), "\xEF\xBF\xBD");  // U+FFFE
  EXPECT_EQ(XmlValueText("Grüße &<>\"", true), "Grüße &<>\"");
  EXPECT_EQ(EscapedLineText("x\x7Fy\r\n"), "x\\x7Fy\\x0D\\x0A");
}

TEST_F(ListExportTest, ChoicesAreKeptInTheirSections) {
  TextExportChoices text = ReadTextExportChoices(options);
  EXPECT_TRUE(text.only_selected);
  EXPECT_EQ(text.DelimiterText(), "\t");
  text.columns.chosen[5] = true;
  text.delimiter = ExportDelimiter::kOther;
  text.other = "##";
  SaveTextExportChoices(options, text);
  EXPECT_EQ(options.GetOption("setPath", "Options", ""), "1");
  EXPECT_EQ(options.GetOption("setOther", "Options", ""), "1");
  EXPECT_EQ(options.GetOption("setTabstop", "Options", ""), "0");
  EXPECT_EQ(ReadTextExportChoices(options).DelimiterText(), "##");
  XmlExportChoices xml = ReadXmlExportChoices(options);
  EXPECT_FALSE(xml.only_selected);
  EXPECT_FALSE(xml.columns.chosen[5]);  // the XML section is its own
  xml.convert_invalid = false;
  SaveXmlExportChoices(options, xml);
  EXPECT_EQ(options.GetOption("setParseUmlauts", "XML", ""), "0");
}

}  // namespace
}  // namespace tarnwick::testing

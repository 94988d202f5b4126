// The tag editor, the MP3 and EXIF viewers, the list's exports and the
// report window, driven as a user drives them.
#include <unistd.h>

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "export_dialogs.h"
#include "gui/gui_test_support.h"
#include "main_window.h"
#include "base/text.h"
#include "media/id3_tags.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/mpeg_info.h"
#include "media_viewers.h"
#include "persist/option_store.h"
#include "platform/files.h"
#include "report_window.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"
#include "tag_editor_dialog.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using gui::ExifViewerDialog;
using gui::MainWindow;
using gui::MediaInfoDialog;
using gui::TagEditorDialog;

std::string Bytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The bytes behind the version 2 tag and before a version 1 tag: the audio.
std::string Audio(const std::string& path) {
  const std::string bytes = Bytes(path);
  std::size_t start = 0;
  if (bytes.compare(0, 3, "ID3") == 0) {
    std::size_t size = 0;
    for (int i = 6; i < 10; ++i) size = (size << 7) | (static_cast<unsigned char>(bytes[i]) & 0x7F);
    start = 10 + size;
  }
  std::size_t end = bytes.size();
  if (end >= 128 && bytes.compare(end - 128, 3, "TAG") == 0) end -= 128;
  // The writers pad a tag with zeros; the audio starts at the first frame.
  while (start < end && bytes[start] == '\0') ++start;
  return bytes.substr(start, end - start);
}

class MediaDialogsTest : public GuiTest {
 protected:
  MediaDialogsTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    options.SaveOption("ReadySound", "Options", "0");
    fs::create_directories(dir.path() / "files");
    interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  }
  std::string Fixture(const std::string& fixture, const std::string& name) {
    const fs::path target = dir.path() / "files" / name;
    fs::copy_file(fs::path(TW_FIXTURE_DIR) / fixture, target);
    return target.string();
  }
  template <typename T>
  static T* Child(QWidget* parent, const char* name) {
    T* child = parent->findChild<T*>(name);
    EXPECT_NE(child, nullptr) << name;
    return child;
  }
  std::string LastMessage() const {
    return interaction.asked().empty() ? std::string() : interaction.asked().back().text;
  }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
};

TEST_F(MediaDialogsTest, TheTagEditorWritesVersionsAndRemovesATagWithoutTouchingTheAudio) {
  const std::string song = Fixture("mp3/v23_latin1.mp3", "song.mp3");
  const std::string audio = Audio(song);
  TagEditorDialog editor({song}, options, messages, interaction);
  ASSERT_TRUE(editor.file().has_v2);
  // A version 1 tag from the version 2 boxes, then both written.
  Child<QCheckBox>(&editor, "chkv1")->setChecked(true);
  Child<QPushButton>(&editor, "cmdCopyV2toV1")->click();
  editor.box("v2TNR")->setText("7");
  editor.box("v1TNR")->setText("7");
  editor.box("v2Artist")->setText("Neue Band");
  editor.box("v2Year")->setText("2024");
  Child<QComboBox>(&editor, "cmbVersion")->setCurrentIndex(1);
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  ASSERT_TRUE(interaction.asked().empty()) << LastMessage();

  ID3v2Tag v2;
  ASSERT_TRUE(ReadID3v2(song, v2));
  EXPECT_EQ(StripAtNull(v2.artist), "Neue Band");
  EXPECT_EQ(StripAtNull(v2.year), "2024");
  EXPECT_EQ(StripAtNull(v2.title), "Café Title");  // kept
  MPEGInfo info;
  ReadMPEGInfo(song, info);
  EXPECT_EQ(info.ID3v2Version, 4);
  const std::string bytes = Bytes(song);
  EXPECT_NE(bytes.find("TDRC"), std::string::npos);
  EXPECT_EQ(bytes.find("TYER"), std::string::npos);
  ID3v1Tag v1;
  ASSERT_TRUE(ReadID3v1(song, v1));
  EXPECT_EQ(v1.artist, "Latin Artist");
  EXPECT_EQ(v1.track, "7");
  // The editor shows the file as written.
  EXPECT_EQ(editor.box("v2Artist")->text(), "Neue Band");
  EXPECT_EQ(Child<QLabel>(&editor, "lblv2Vers")->text(), "ID3 v2 tag: version 2.4");

  Child<QCheckBox>(&editor, "chkv1")->setChecked(false);
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  EXPECT_FALSE(ReadID3v1(song, v1));
  EXPECT_EQ(Audio(song), audio);
  Child<QCheckBox>(&editor, "chkv2")->setChecked(false);
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  EXPECT_EQ(Bytes(song).substr(0, 3) == "ID3", false);
  EXPECT_EQ(Audio(song), audio);
}

TEST_F(MediaDialogsTest, TheTagEditorRefusesWhatItCannotWriteAndWritesNothing) {
  const std::string song = Fixture("mp3/v23_latin1.mp3", "song.mp3");
  const std::string before = Bytes(song);
  TagEditorDialog editor({song}, options, messages, interaction);
  editor.box("v2TNR")->setText("7/12");
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  EXPECT_EQ(LastMessage(), "Illegal chars in ID v2 Tags");
  editor.box("v2TNR")->setText("7");
  Child<QCheckBox>(&editor, "chkv1")->setChecked(true);
  editor.box("v1TNR")->setText("");
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  EXPECT_EQ(LastMessage(), "Illegal chars in ID v1 Tags");
  editor.box("v1TNR")->setText("3");
  editor.box("v2Composer")->setText("Чайковский");
  Child<QPushButton>(&editor, "cmdUpdate")->click();
  EXPECT_NE(LastMessage().find("\"Ч\" in the box \"Composer\" (ID3 v2 tag)"),
            std::string::npos)
      << LastMessage();
  EXPECT_EQ(Bytes(song), before);
}

TEST_F(MediaDialogsTest, TheTagEditorStepsThroughFilesAndKnowsWhatItCannotEdit) {
  const std::string first = Fixture("mp3/v1_track.mp3", "a.mp3");
  const std::string second = Fixture("exif/full_intel.jpg", "b.jpg");
  // A version 2 tag that promises more bytes than the file has.
  std::string cut = Bytes(Fixture("mp3/v23_latin1.mp3", "c.mp3")).substr(0, 60);
  std::ofstream(dir.path() / "files" / "c.mp3", std::ios::binary | std::ios::trunc) << cut;
  TagEditorDialog editor({first, second, (dir.path() / "files" / "c.mp3").string()}, options,
                         messages, interaction);
  EXPECT_EQ(editor.box("v1Artist")->text(), "Lame Artist");
  EXPECT_TRUE(Child<QPushButton>(&editor, "cmdUpdate")->isEnabled());
  EXPECT_FALSE(Child<QPushButton>(&editor, "cmdPrevious")->isEnabled());
  Child<QPushButton>(&editor, "cmdNext")->click();
  EXPECT_FALSE(Child<QPushButton>(&editor, "cmdUpdate")->isEnabled());
  EXPECT_FALSE(Child<QCheckBox>(&editor, "chkv1")->isEnabled());
  EXPECT_FALSE(Child<QLabel>(&editor, "lblNoInfov1")->isHidden());
  Child<QPushButton>(&editor, "cmdNext")->click();
  EXPECT_THAT(editor.file().damage, ::testing::HasSubstr("damaged"));
  EXPECT_FALSE(Child<QLabel>(&editor, "lblDamage")->isHidden());
  EXPECT_FALSE(Child<QPushButton>(&editor, "cmdNext")->isEnabled());
  Child<QPushButton>(&editor, "cmdCancel")->click();
  EXPECT_FALSE(options.GetOption("MP3TaggerTop", "Options", "").empty());
}

TEST_F(MediaDialogsTest, TheViewersShowTagsAndPictureFacts) {
  const std::string song = Fixture("mp3/ffmpeg_v23.mp3", "song.mp3");
  MediaInfoDialog info(song, options, messages, interaction);
  const std::string text = info.text_field()->toPlainText().toStdString();
  EXPECT_THAT(text, ::testing::HasSubstr("MP3 ID TAG v2 information:\nAlbum: "));
  EXPECT_THAT(text, ::testing::HasSubstr("Title: FF Title\n"));
  EXPECT_EQ(text.find('\0'), std::string::npos);
  EXPECT_THAT(text, ::testing::HasSubstr("Bitrate: "));

  std::ofstream(dir.path() / "files" / "plain.mp3") << "no frames here";
  MediaInfoDialog none((dir.path() / "files" / "plain.mp3").string(), options, messages,
                       interaction);
  EXPECT_THAT(none.text_field()->toPlainText().toStdString(),
              ::testing::HasSubstr("No MP3 information found in file"));

  const std::string photo = Fixture("exif/full_intel.jpg", "photo.jpg");
  ExifViewerDialog exif(photo, options, messages, interaction);
  EXPECT_EQ(exif.windowTitle().toStdString(), "JPEG - EXIF Metatag Reader (" + photo + ")");
  EXPECT_THAT(exif.text_field()->toPlainText().toStdString(),
              ::testing::HasSubstr("Make: Oakhollow Optics"));
  EXPECT_FALSE(exif.picture()->pixmap().isNull());
  // A picture without EXIF data.
  const std::string bare = (dir.path() / "files" / "bare.jpg").string();
  std::ofstream(bare, std::ios::binary) << "\xFF\xD8\xFF\xD9";
  ExifViewerDialog no_exif(bare, options, messages, interaction);
  EXPECT_THAT(no_exif.text_field()->toPlainText().toStdString(),
              ::testing::HasSubstr("File has no EXIF Metainformation."));

  // The copy button: into a folder, remembered, never over a file.
  const fs::path copies = dir.path() / "copies";
  fs::create_directories(copies);
  EXPECT_TRUE(exif.CopyFileTo(copies.string()));
  EXPECT_EQ(Bytes((copies / "photo.jpg").string()), Bytes(photo));
  EXPECT_EQ(options.GetOption("CopyPicDir", "Options", ""), copies.string());
  EXPECT_FALSE(exif.CopyFileTo(copies.string()));
}

TEST_F(MediaDialogsTest, TheWindowsExportsAndReportWindowPrintAndSave) {
  dir.WriteFile("files/one.txt", "1");
  dir.WriteFile("files/two & three.txt", "23");
  auto window = std::make_unique<MainWindow>(options, messages, &interaction);
  window->ShowFolder(QString::fromStdString((dir.path() / "files").string()));
  window->SelectAll();
  QTimer::singleShot(0, [] {
    gui::SelectTextDialog* dialog = nullptr;
    ASSERT_TRUE(WaitFor([&] {
      return (dialog = qobject_cast<gui::SelectTextDialog*>(QApplication::activeModalWidget()));
    }));
    Child<QCheckBox>(dialog, "chkTextToCreate_5")->setChecked(true);  // path
    Child<QPushButton>(dialog, "cmdOK")->click();
  });
  window->findChild<QAction*>(QString("mnuExportText"))->trigger();
  auto* report = window->findChild<gui::ReportWindow*>();
  ASSERT_NE(report, nullptr);
  const std::string text = report->text_field()->toPlainText().toStdString();
  EXPECT_THAT(text, ::testing::HasSubstr("Name\tSize\tPath\n"));
  EXPECT_THAT(text, ::testing::HasSubstr("two & three.txt\t2 bytes\t" +
                                         (dir.path() / "files").string() + "\n"));
  EXPECT_EQ(options.GetOption("setPath", "Options", ""), "1");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString((dir.path() / "report.pdf").string()));
  report->PrintTo(printer);
  EXPECT_EQ(Bytes((dir.path() / "report.pdf").string()).substr(0, 4), "%PDF");
  ASSERT_TRUE(report->SaveTo((dir.path() / "report.txt").string()));
  EXPECT_THAT(Bytes((dir.path() / "report.txt").string()),
              ::testing::HasSubstr("one.txt\t1 bytes\t"));

  XmlExportChoices xml;
  const std::string xml_path = (dir.path() / "list.xml").string();
  EXPECT_EQ(window->ExportListAsXmlTo(xml, xml_path).done, 2);
  EXPECT_THAT(Bytes(xml_path), ::testing::HasSubstr("value=\"two &amp; three.txt\""));
}

TEST_F(MediaDialogsTest, ADoubleClickOpensTheViewerWhenTheOptionSaysSo) {
  Fixture("mp3/ffmpeg_v23.mp3", "song.mp3");
  auto window = std::make_unique<MainWindow>(options, messages, &interaction);
  std::vector<std::string> opened;
  window->SetDesktopOpener([&](const std::string& path) {
    opened.push_back(path);
    return true;
  });
  window->ShowFolder(QString::fromStdString((dir.path() / "files").string()));
  window->RowActivated(0);
  EXPECT_EQ(opened.size(), 1u);
  EXPECT_EQ(window->findChild<MediaInfoDialog*>(), nullptr);
  options.SaveOption("DoubleClickShowsInfo", "Options", "1");
  window->RowActivated(0);
  EXPECT_EQ(opened.size(), 1u);
  EXPECT_NE(window->findChild<MediaInfoDialog*>(), nullptr);
}

}  // namespace
}  // namespace tarnwick::testing

// The picture tools in the window: the compress and resize dialogues, the
// preview, and the Tools menu entries end to end.
#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <filesystem>

#include "compress_dialog.h"
#include "gui/gui_test_support.h"
#include "main_window.h"
#include "persist/option_store.h"
#include "picture/bmp_codec.h"
#include "picture/jpeg_encoder.h"
#include "picture/picture_file.h"
#include "resize_dialog.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using gui::CompressDialog;
using gui::MainWindow;
using gui::ResizeDialog;

class PictureDialogsTest : public GuiTest {
 protected:
  PictureDialogsTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    options.SaveOption("ReadySound", "Options", "0");
    cImage wide;
    wide.Create(40, 20, 24);
    const std::vector<std::uint8_t> bmp = EncodeBmp(wide);
    dir.WriteFile("files/wide.bmp", std::string(bmp.begin(), bmp.end()));
    dir.WriteFile("files/notes.txt", "text");
  }

  template <typename T>
  static T* Child(QWidget* parent, const char* name) {
    T* child = parent->findChild<T*>(name);
    EXPECT_NE(child, nullptr) << name;
    return child;
  }

  std::string File(const std::string& name) const { return (dir.path() / "files" / name).string(); }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
};

TEST_F(PictureDialogsTest, ControlsGiveTheChoicesAndThePreviewTurns) {
  CompressDialog dialog(File("wide.bmp"), messages, interaction);
  EXPECT_EQ(Child<QComboBox>(&dialog, "cboSubSample")->currentText(), "2:2   [Default]");
  EXPECT_EQ(dialog.choices().quality, 75);
  EXPECT_EQ(dialog.choices().h, 2);
  Child<QSlider>(&dialog, "hscQuality")->setValue(40);
  EXPECT_EQ(Child<QLabel>(&dialog, "lblQuality")->text(), "40");
  Child<QComboBox>(&dialog, "cboSubSample")->setCurrentIndex(7);  // "3:2"
  Child<QCheckBox>(&dialog, "chkGreyscale")->setChecked(true);
  EXPECT_FALSE(Child<QComboBox>(&dialog, "cboSubSample")->isEnabled());
  Child<QLineEdit>(&dialog, "txtComment")->setText("Hafen");
  const QPixmap before = dialog.preview()->pixmap();
  EXPECT_GT(before.width(), before.height());
  Child<QRadioButton>(&dialog, "Option1_1")->click();
  Child<QRadioButton>(&dialog, "Option2_2")->click();
  const QPixmap turned = dialog.preview()->pixmap();
  EXPECT_LT(turned.width(), turned.height());  // a quarter turn stands it up
  const CompressChoices choices = dialog.choices();
  EXPECT_EQ(choices.quality, 40);
  EXPECT_EQ(choices.h, 3);
  EXPECT_EQ(choices.v, 2);
  EXPECT_TRUE(choices.greyscale);
  EXPECT_EQ(choices.comment, "Hafen");
  EXPECT_EQ(choices.rotation, 1);
  EXPECT_EQ(choices.mirror, 2);
  EXPECT_TRUE(choices.keep_exif);

  // Another folder that is not there keeps the dialogue open.
  Child<QCheckBox>(&dialog, "chkDifferentDestinationDir")->setChecked(true);
  Child<QLineEdit>(&dialog, "txtDestinationDir")->setText(QString::fromStdString(File("nowhere")));
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  EXPECT_FALSE(dialog.Start());
  EXPECT_EQ(interaction.asked().back().title, "Error");

  // A file that is no picture: the preview says so.
  CompressDialog text(File("notes.txt"), messages, interaction);
  EXPECT_EQ(text.preview()->text(), "No preview");
}

TEST_F(PictureDialogsTest, TheToolsMenuWritesTheJpegAndNamesWhatFailed) {
  auto window = std::make_unique<MainWindow>(options, messages, &interaction);
  window->ShowFolder(QString::fromStdString((dir.path() / "files").string()));
  window->SelectAll();
  QTimer::singleShot(0, [] {
    CompressDialog* dialog = nullptr;
    ASSERT_TRUE(WaitFor([&] {
      return (dialog = qobject_cast<CompressDialog*>(QApplication::activeModalWidget()));
    }));
    Child<QPushButton>(dialog, "cmdStart")->click();
  });
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  window->findChild<QAction*>(QString("mnuCompressToJPG"))->trigger();
  const LoadedPicture written = LoadPicture(File("wide.jpg"));
  ASSERT_TRUE(written.ok()) << written.error;
  EXPECT_EQ(written.picture.width, 40);
  // The count of message 655, then the failed file by name.
  bool told_count = false, named = false;
  for (const auto& asked : interaction.asked()) {
    told_count |= asked.text.find("1 files couldn't be processed") != std::string::npos;
    named |= asked.text.find("notes.txt") != std::string::npos &&
             asked.title == "Compress picture files to JPEG";
  }
  EXPECT_TRUE(told_count);
  EXPECT_TRUE(named);
}

// Qt's own JPEG reader takes what our encoder writes, at every layout.
TEST_F(PictureDialogsTest, QtReadsOurJpegFiles) {
  RgbPicture picture(17, 33);
  for (std::size_t i = 0; i < picture.rgb.size(); ++i)
    picture.rgb[i] = static_cast<std::uint8_t>(i * 7);
  for (const std::array<int, 6>& f : {std::array{1, 1, 0, 0, 0, 0}, std::array{2, 2, 1, 1, 1, 1},
                                      std::array{3, 2, 1, 1, 1, 1}, std::array{4, 4, 4, 4, 4, 4}}) {
    cJPEG encoder;
    encoder.SetSamplingFrequencies(f[0], f[1], f[2], f[3], f[4], f[5]);
    ASSERT_EQ(encoder.SampleHDC(picture), 0);
    const std::vector<std::uint8_t> bytes = encoder.Encode();
    QByteArray data(reinterpret_cast<const char*>(bytes.data()),
                    static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer, "jpeg");
    const QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << f[0] << ":" << f[1] << " "
                                 << reader.errorString().toStdString();
    EXPECT_EQ(image.width(), 17);
    EXPECT_EQ(image.height(), 33);
  }
}

TEST_F(PictureDialogsTest, TheResizeDialogueShowsTheControlsOfItsModeAndFormat) {
  ResizeDialog dialog(messages, interaction);
  dialog.show();
  QLineEdit* percent = Child<QLineEdit>(&dialog, "txtPercent");
  EXPECT_TRUE(percent->isVisible());
  EXPECT_FALSE(Child<QLineEdit>(&dialog, "txtWidth")->isVisible());
  percent->setText("abc");
  emit percent->editingFinished();
  EXPECT_EQ(percent->text(), "25");
  Child<QScrollBar>(&dialog, "VSPercent")->setValue(60);
  EXPECT_EQ(percent->text(), "60");
  Child<QRadioButton>(&dialog, "optMode_1")->click();
  EXPECT_FALSE(percent->isVisible());
  Child<QLineEdit>(&dialog, "txtWidth")->setText("640");
  EXPECT_TRUE(Child<QSlider>(&dialog, "hscQuality")->isVisible());
  EXPECT_FALSE(Child<QComboBox>(&dialog, "cboCompressionTIF")->isVisible());
  Child<QRadioButton>(&dialog, "optSaveFormat_2")->click();
  EXPECT_FALSE(Child<QSlider>(&dialog, "hscQuality")->isVisible());
  Child<QComboBox>(&dialog, "cboCompressionTIF")->setCurrentIndex(4);  // "None"
  const ResizeChoices choices = dialog.choices();
  EXPECT_FALSE(choices.by_percent);
  EXPECT_EQ(choices.width, 640);
  EXPECT_EQ(choices.height, 0);
  EXPECT_EQ(choices.format, ResizeFormat::kTiff);
  EXPECT_EQ(choices.tiff, TiffCompression::kNone);
}

TEST_F(PictureDialogsTest, TheToolsMenuResizes) {
  auto window = std::make_unique<MainWindow>(options, messages, &interaction);
  window->ShowFolder(QString::fromStdString((dir.path() / "files").string()));
  window->SelectAll();
  QTimer::singleShot(0, [] {
    ResizeDialog* dialog = nullptr;
    ASSERT_TRUE(WaitFor(
        [&] { return (dialog = qobject_cast<ResizeDialog*>(QApplication::activeModalWidget())); }));
    Child<QRadioButton>(dialog, "optSaveFormat_3")->click();  // PNG
    Child<QPushButton>(dialog, "cmdStart")->click();
  });
  interaction.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  window->findChild<QAction*>(QString("mnuResizeJPEG"))->trigger();
  const LoadedPicture written = LoadPicture(File("wide.png"));
  ASSERT_TRUE(written.ok()) << written.error;
  EXPECT_EQ(written.picture.width, 10 + 3);  // a quarter, and the strip
}

}  // namespace
}  // namespace tarnwick::testing

// Every dialogue of the `--dialog` screenshot table can be made and drawn,
// in both languages, with and without a FILE; the names are unique.
#include "dialog_screenshot.h"

#include <QPixmap>
#include <set>

#include "gui/gui_test_support.h"
#include "main_window.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

using gui::DialogShot;
using gui::DialogShotContext;
using gui::DialogShots;
using gui::MainWindow;

class DialogScreenshotTest : public GuiTest {
 protected:
  DialogScreenshotTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
    dir.WriteFile("holiday.jpg", "not really a picture");
  }

  // Draws every dialogue once; returns the names that could not be drawn.
  std::vector<std::string> DrawAll(Language language, const std::string& file) {
    MainWindow window(options, MessageTable::Get(language), &interaction);
    window.ShowFolder(QString::fromStdString(dir.str()));
    std::vector<std::string> failed;
    for (const DialogShot& shot : DialogShots()) {
      DialogShotContext context{options, MessageTable::Get(language), window, file};
      std::unique_ptr<QDialog> dialog = shot.make(context);
      if (!dialog) {
        failed.emplace_back(shot.name);
        continue;
      }
      dialog->adjustSize();
      const QPixmap picture = dialog->grab();
      if (picture.isNull() || picture.width() < 50 || picture.height() < 30) {
        failed.emplace_back(shot.name);
      }
    }
    return failed;
  }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
};

TEST_F(DialogScreenshotTest, NamesAreUniqueAndDescribed) {
  std::set<std::string_view> names;
  for (const DialogShot& shot : DialogShots()) {
    EXPECT_TRUE(names.insert(shot.name).second) << shot.name;
    EXPECT_FALSE(shot.what.empty()) << shot.name;
    EXPECT_EQ(shot.name.find(' '), std::string_view::npos) << shot.name;
  }
}

TEST_F(DialogScreenshotTest, EveryDialogueDrawsInBothLanguagesWithAndWithoutFile) {
  const std::string file = (dir.path() / "holiday.jpg").string();
  EXPECT_TRUE(DrawAll(Language::kEnglish, file).empty());
  EXPECT_TRUE(DrawAll(Language::kGerman, file).empty());
  EXPECT_TRUE(DrawAll(Language::kEnglish, "").empty());
}

}  // namespace
}  // namespace tarnwick::testing

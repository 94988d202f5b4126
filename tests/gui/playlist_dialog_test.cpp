// The playlist editor in the window: check, correct, shuffle, saving,
// closing, and how the main window opens it.
#include "playlist_dialog.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QTreeWidget>
#include <filesystem>

#include "gui/gui_test_support.h"
#include "main_window.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

using gui::MainWindow;
using gui::PlaylistDialog;

class PlaylistDialogTest : public GuiTest {
 protected:
  PlaylistDialogTest() : options(config.path() / "Tarnwick.ini") {
    options.SaveOption("LogFilePath", "Options", (config.path() / "Tarnwick.log").string());
    options.SaveOption("UndoFilePath", "Options", config.str());
  }

  std::string Fixture(const std::string& name, const std::string& as) {
    std::filesystem::copy_file(std::filesystem::path(TW_FIXTURE_DIR) / "mp3" / name,
                               dir.path() / as);
    return (dir.path() / as).string();
  }

  std::unique_ptr<PlaylistDialog> Editor() {
    return std::make_unique<PlaylistDialog>(options, MessageTable::Get(Language::kEnglish),
                                            interaction);
  }

  QAction* Action(PlaylistDialog& editor, const QString& name) {
    for (QAction* action : editor.menu_actions()) {
      if (action->objectName() == name) return action;
    }
    ADD_FAILURE() << name.toStdString();
    return nullptr;
  }

  TempDir dir;
  TempDir config;
  OptionStore options;
  ScriptedInteraction interaction;
};

TEST_F(PlaylistDialogTest, CheckRemovesOnlyTheRedRowsAndTheTimeFollows) {
  const std::string song = Fixture("v1_plain.mp3", "a.mp3");
  dir.WriteFile("list.m3u", "#EXTM3U\n#EXTINF:215,Here\na.mp3\n#EXTINF:100,Gone\nnone.mp3\n");
  auto editor = Editor();
  ASSERT_TRUE(editor->LoadFile((dir.path() / "list.m3u").string()));
  QTreeWidget* list = editor->list();
  ASSERT_EQ(list->topLevelItemCount(), 2);
  EXPECT_EQ(list->topLevelItem(0)->text(2).toStdString(), song);
  EXPECT_EQ(editor->play_time()->text(), "Time: 05:15");
  list->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
  EXPECT_FALSE(editor->rows()[0].checked);

  interaction.Then(Answer::kNo);
  editor->CheckAll();
  EXPECT_EQ(list->topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
  EXPECT_NE(list->topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
  interaction.Then(Answer::kYes).Then(Answer::kOk);
  editor->CheckAll();
  ASSERT_EQ(list->topLevelItemCount(), 1);
  EXPECT_EQ(list->topLevelItem(0)->text(0), "Here");
  EXPECT_EQ(list->topLevelItem(0)->checkState(0), Qt::Unchecked);
  EXPECT_EQ(editor->play_time()->text(), "Time: 03:35");
  EXPECT_TRUE(editor->dirty());
  EXPECT_TRUE(interaction.failures().empty());
}

TEST_F(PlaylistDialogTest, AddedFilesAreCorrectedAndAWaveCountsOneFailure) {
  auto editor = Editor();
  editor->AddFiles({QString::fromStdString(Fixture("v1_plain.mp3", "x.mp3")),
                    QString::fromStdString(Fixture("tone.wav", "tone.wav")),
                    QString::fromStdString(dir.WriteFile("notes.txt", "x").string())});
  ASSERT_EQ(editor->list()->topLevelItemCount(), 2);
  EXPECT_EQ(editor->list()->topLevelItem(0)->text(0), "Plain Artist - Plain Title");
  EXPECT_EQ(editor->list()->topLevelItem(1)->text(0), "tone");

  interaction.Then(Answer::kYes).Then(Answer::kOk);
  editor->CorrectAll();
  EXPECT_EQ(interaction.asked().back().text, "1 Titles could not be corrected.");
  EXPECT_EQ(interaction.asked().back().icon, MessageIcon::kExclamation);
}

TEST_F(PlaylistDialogTest, AShuffleOfOneRowChangesNothing) {
  dir.WriteFile("one.pls", "[playlist]\nFile1=/a.mp3\nTitle1=Only\nNumberOfEntries=1\n");
  auto editor = Editor();
  ASSERT_TRUE(editor->LoadFile((dir.path() / "one.pls").string()));
  interaction.Then(Answer::kYes);
  editor->Shuffle();
  EXPECT_EQ(editor->list()->topLevelItem(0)->text(0), "Only");
  EXPECT_FALSE(editor->dirty());
  EXPECT_EQ(interaction.asked()[0].title, "Zufallsliste");
}

TEST_F(PlaylistDialogTest, SavingRefusesAnEmptyListAndClosingAsksAboutChanges) {
  auto editor = Editor();
  interaction.Then(Answer::kOk);
  EXPECT_FALSE(editor->Save());
  EXPECT_EQ(interaction.asked()[0].text, "Can't save empty playlist.");

  editor->AddFiles({QString::fromStdString(Fixture("tone.wav", "t.wav"))});
  EXPECT_TRUE(editor->dirty());
  editor->show();
  interaction.Then(Answer::kNo);
  EXPECT_FALSE(editor->close());
  EXPECT_EQ(interaction.asked().back().text, "Close dialog and discard changes?");

  const std::string saved = (dir.path() / "saved").string();
  interaction.Then(TextAnswer{saved});
  EXPECT_TRUE(editor->Save());
  EXPECT_EQ(ReadWholeFile(saved + ".m3u"),
            "#EXTM3U\n#EXTINF:2,t\n" + (dir.path() / "t.wav").string() + "\n");
  EXPECT_FALSE(editor->dirty());
  EXPECT_TRUE(editor->close());
  EXPECT_TRUE(interaction.failures().empty());
}

TEST_F(PlaylistDialogTest, CopyFilesPutsTheTickedTitlesIntoTheChosenFolder) {
  auto editor = Editor();
  editor->AddFiles({QString::fromStdString(Fixture("tone.wav", "t.wav")),
                    QString::fromStdString(Fixture("v1_plain.mp3", "p.mp3"))});
  editor->list()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
  std::filesystem::create_directories(dir.path() / "out");
  interaction.Then(TextAnswer{(dir.path() / "out").string()}).Then(Answer::kOk);
  editor->CopyFiles(CopyTitlesMode::kCopy);
  EXPECT_TRUE(std::filesystem::exists(dir.path() / "out/t.wav"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "out/p.mp3"));
  EXPECT_EQ(interaction.asked().back().text, "Action successfull!");
  EXPECT_EQ(editor->status()->text().toStdString(), "Copying: [1/2] t.wav ...");
  EXPECT_TRUE(editor->isEnabled());
}

TEST_F(PlaylistDialogTest, TheTagEditorEntryWaitsAndABadFileIsRefused) {
  auto editor = Editor();
  EXPECT_FALSE(Action(*editor, "mnuEditMP3Tags")->isEnabled());
  EXPECT_TRUE(Action(*editor, "mnuGetOprhanFiles")->isEnabled());
  dir.WriteFile("bad.m3u", std::string("\0\1\2", 3));
  interaction.Then(Answer::kOk);
  EXPECT_FALSE(editor->LoadFile((dir.path() / "bad.m3u").string()));
  EXPECT_EQ(interaction.asked()[0].text, "File is no supported playlist and can't be loaded!");
}

TEST_F(PlaylistDialogTest, TheMainWindowOpensTheEditorForASelectedPlaylist) {
  dir.WriteFile("list.m3u8", "#EXTM3U\n#EXTINF:5,Song\n/m/a.mp3\n");
  MainWindow window(options, MessageTable::Get(Language::kEnglish), &interaction);
  window.ShowFolder(QString::fromStdString(dir.str()));
  bool found = false;
  for (QAction* menu : window.menuBar()->actions()) {
    for (QAction* entry : menu->menu()->actions()) {
      found = found || entry->text() == "Playlist editor ...";
    }
  }
  EXPECT_TRUE(found);
  ASSERT_EQ(window.list().size(), 1u);
  window.list().Select(0);
  PlaylistDialog* editor = window.OpenPlaylistEditor();
  ASSERT_EQ(editor->list()->topLevelItemCount(), 1);
  EXPECT_EQ(editor->list()->topLevelItem(0)->text(0), "Song");
  editor->close();
}

}  // namespace
}  // namespace tarnwick::testing

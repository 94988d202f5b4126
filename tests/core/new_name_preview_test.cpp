// The "New name" column: names with a stepping counter, collisions, slices.
#include "core/new_name_preview.h"

#include "core/pipeline_test_fixture.h"

namespace tarnwick::testing {
namespace {

class NewNamePreviewTest : public PipelineTest {
 protected:
  NewNamePreviewTest() {
    settings.chkPrefix = 1;
    settings.txtPrefix = "IMG_";
    settings.chkNumbers = 1;
    settings.txtStartNumber = "01";
    settings.txtLimiter = "-";
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const NewNameRow& row : preview.rows()) names.push_back(row.failed ? "?" : row.name);
    return names;
  }

  NewNamePreview preview;
};

TEST_F(NewNamePreviewTest, SelectedRowsCountOnWithoutTouchingTheWindowsCounter) {
  AddRow("a.jpg");
  AddRow("b.jpg");
  AddRow("c.jpg");
  AddRow("d.jpg");
  list.Select(0);
  list.Select(2);
  list.Select(3);
  settings.txtStep = "2";
  app.CurrentCount = 40;
  app.SameNumberCount = 3;
  preview.Start(Env());
  EXPECT_TRUE(preview.Step(Env(), 100));
  EXPECT_EQ(Names(), (std::vector<std::string>{"01-IMG_a.jpg", "03-IMG_c.jpg", "05-IMG_d.jpg"}));
  EXPECT_EQ(app.CurrentCount, 40);
  EXPECT_EQ(app.SameNumberCount, 3);
  EXPECT_EQ(preview.Find(1), nullptr);
  ASSERT_NE(preview.Find(2), nullptr);
  EXPECT_EQ(preview.Find(2)->name, "03-IMG_c.jpg");
  EXPECT_EQ(preview.collision_count(), 0u);
  EXPECT_TRUE(interaction.asked().empty());
}

TEST_F(NewNamePreviewTest, SlicesGiveTheSameNamesAsOneStep) {
  for (int i = 0; i < 7; ++i) AddRow("f" + std::to_string(i) + ".txt");
  list.SelectAll();
  preview.Start(Env());
  const std::vector<std::string> whole = (preview.Step(Env(), 1000), Names());
  NewNamePreview sliced;
  sliced.Start(Env());
  int slices = 0;
  while (!sliced.Step(Env(), 3)) ++slices;
  EXPECT_EQ(slices, 2);
  ASSERT_EQ(sliced.rows().size(), whole.size());
  for (std::size_t i = 0; i < whole.size(); ++i) EXPECT_EQ(sliced.rows()[i].name, whole[i]);
  EXPECT_EQ(whole.back(), "07-IMG_f6.txt");
}

TEST_F(NewNamePreviewTest, TargetsTakenOnDiskOrByAnotherRowAreMarked) {
  settings.chkNumbers = 0;
  settings.chkPrefix = 0;
  settings.chkCompleteName = 1;
  settings.txtCompleteName = "same";
  AddRow("x.txt");
  AddRow("y.txt");
  AddRow("z.doc");
  dir.WriteFile("same.doc", "taken");
  AddRow("same.pdf");  // keeps its own name: not a collision with itself
  list.SelectAll();
  preview.Start(Env());
  preview.Step(Env(), 100);
  EXPECT_EQ(Names(), (std::vector<std::string>{"same.txt", "same.txt", "same.doc", "same.pdf"}));
  EXPECT_TRUE(preview.rows()[0].collides);
  EXPECT_TRUE(preview.rows()[1].collides);
  EXPECT_TRUE(preview.rows()[2].collides);
  EXPECT_FALSE(preview.rows()[3].collides);
  EXPECT_EQ(preview.collision_count(), 3u);
  EXPECT_EQ(dir.ReadFile("same.doc"), "taken");
}

TEST_F(NewNamePreviewTest, AFailingRowIsMarkedAndTheRestGoOn) {
  settings.chkNumbers = 0;
  settings.chkPrefix = 0;
  settings.chkCutRight = 1;
  settings.txtRightCut = "6";  // longer than the first name
  AddRow("e.txt");
  AddRow("longer_name.txt");
  list.SelectAll();
  preview.Start(Env());
  EXPECT_TRUE(preview.Step(Env(), 10));
  EXPECT_EQ(Names(), (std::vector<std::string>{"?", "longe.txt"}));
  EXPECT_TRUE(interaction.asked().empty());
}

}  // namespace
}  // namespace tarnwick::testing

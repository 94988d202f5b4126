#include "placeholders/catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "placeholders/catalogue_rows.h"
#include "placeholders/name_cipher.h"
#include "placeholders/picker.h"

namespace tarnwick {
namespace {

constexpr CatalogueMoment kMoment = {2026, 11, 22, 18, 5, 9};  // a Sunday

std::vector<CatalogueRow> EnglishRows() {
  return BuildCatalogueRows(CatalogueLanguage::kEnglish, kMoment);
}

const CatalogueRow& RowOf(const std::vector<CatalogueRow>& rows, std::string_view tag) {
  for (const CatalogueRow& row : rows) {
    if (row.tag == tag) return row;
  }
  static const CatalogueRow kNone;
  ADD_FAILURE() << "no row " << tag;
  return kNone;
}

TEST(CatalogueTest, HasAllRowsInOrderWithTwoDoubleRows) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  ASSERT_EQ(rows.size(), 248u);
  EXPECT_EQ(rows.front().tag, "{{yyyy.mm.dd}}");
  EXPECT_EQ(rows[30].tag, "{{cdate.}}");
  EXPECT_EQ(rows.back().tag, "{{ParentFolder[1]}}");
  std::multiset<std::string> tags;
  for (const CatalogueRow& row : rows) tags.insert(row.tag);
  EXPECT_EQ(tags.count("{{mm_text}}"), 2u);
  EXPECT_EQ(tags.count("{{mp3IDTagV2_language}}"), 2u);
  EXPECT_EQ(std::set<std::string>(tags.begin(), tags.end()).size(), 246u);
  // The two double rows differ in their texts.
  std::vector<std::string> language_texts;
  for (const CatalogueRow& row : rows) {
    if (row.tag == "{{mp3IDTagV2_language}}") language_texts.push_back(row.description);
  }
  ASSERT_EQ(language_texts.size(), 2u);
  EXPECT_NE(language_texts[0], language_texts[1]);
}

TEST(CatalogueTest, OfferedAndExpandedSetsDisagreeAsKept) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  std::set<std::string> tags;
  for (const CatalogueRow& row : rows) tags.insert(row.tag);
  EXPECT_TRUE(tags.count("{{mm-dd-yyyy}}"));
  EXPECT_FALSE(tags.count("{{hollowmere}}"));
  EXPECT_FALSE(tags.count("{{-}}"));
}

TEST(CatalogueTest, EveryRowIsDescribedInBothLanguages) {
  for (const CatalogueEntry& entry : CatalogueEntries()) {
    EXPECT_FALSE(entry.english.empty()) << entry.tag;
    EXPECT_FALSE(entry.german.empty()) << entry.tag;
  }
}

TEST(CatalogueTest, TellingRowsKeepTheirTexts) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  EXPECT_EQ(RowOf(rows, "{{yyyy.mm.dd}}").sample, "2004.03.08");
  EXPECT_EQ(RowOf(rows, "{{yyyy.mm.dd}}").description, "Filedate Year.Month.Day");
  EXPECT_EQ(RowOf(rows, "{{count}}").description, "Numbering as choosen in settings");
  EXPECT_EQ(RowOf(rows, "{{remove_numbers}}").sample, "12 Oakhollow-> Oakhollow");
  EXPECT_EQ(RowOf(rows, "{{RegEx[exp##rep]}}").description,
            "Use regular expression at 'exp' and replacement parameter at 'rep'  ");
  // Kept: these two descriptions are crossed over.
  EXPECT_EQ(RowOf(rows, "{{get_jpg_exif_dcmodel}}").description, "Name of the DC manufacturer");
  EXPECT_EQ(RowOf(rows, "{{get_jpg_exif_dcmaker}}").description, "Name of the DC model");
  EXPECT_EQ(RowOf(rows, "{{uniqueid}}").sample, "");
  EXPECT_EQ(RowOf(rows, "{{swapCasing}}").sample, "fRANZ mÜllER -> Franz MüLLer");
}

TEST(CatalogueTest, CurrentDateRowsShowTheInjectedMoment) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  EXPECT_EQ(RowOf(rows, "{{cdate.}}").sample, "22.11.2026");
  EXPECT_EQ(RowOf(rows, "{{cdate-}}").sample, "22-11-2026");
  EXPECT_EQ(RowOf(rows, "{{ctime.}}").sample, "18.05.09");
  EXPECT_EQ(RowOf(rows, "{{ctime-}}").sample, "18-05-09");
  EXPECT_EQ(RowOf(rows, "{{cdate_mm}}").sample, "11");
  EXPECT_EQ(RowOf(rows, "{{cdate_yyyy}}").sample, "2026");
  EXPECT_EQ(RowOf(rows, "{{ctime_ss}}").sample, "09");
  EXPECT_EQ(RowOf(rows, "{{cdate_quarter}}").sample, "4");
  EXPECT_EQ(RowOf(rows, "{{cdate_mm_text}}").sample, "November");
  EXPECT_EQ(RowOf(rows, "{{cdate_dd_text}}").sample, "Sunday");
  const std::vector<CatalogueRow> german = BuildCatalogueRows(CatalogueLanguage::kGerman, kMoment);
  EXPECT_EQ(RowOf(german, "{{cdate_dd_text}}").sample, "Sonntag");
  EXPECT_EQ(RowOf(german, "{{cdate.}}").description, "Aktuelles Datum (Heute) Tag.Monat.Jahr");
}

TEST(CatalogueTest, CipherSamplesAreWorkedOut) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  const std::string hex = EncryptName("Mueller", kCatalogueSampleKey);
  ASSERT_EQ(hex.size(), 32u);
  EXPECT_EQ(RowOf(rows, "{{encryptFilename[YourKeyHere]}}").sample, "Mueller -> " + hex);
  EXPECT_EQ(RowOf(rows, "{{decryptFilename[YourKeyHere]}}").sample, hex + " -> Mueller");
}

TEST(CatalogueSearchTest, PrefixOfTheTagThenAnywhere) {
  const std::vector<CatalogueRow> rows = EnglishRows();
  EXPECT_EQ(FindFirstCatalogueRow(rows, "yyyy"), 0u);
  EXPECT_EQ(FindFirstCatalogueRow(rows, "*yyyy"), 0u);
  EXPECT_EQ(rows[*FindFirstCatalogueRow(rows, "MP3IDTAGV2_T")].tag, "{{mp3IDTagV2_title}}");
  // No tag starts with "upper": the search falls back to "anywhere".
  EXPECT_EQ(rows[*FindFirstCatalogueRow(rows, "upper")].tag, "{{uppercasing}}");
  // "*" looks anywhere at once, also in samples and descriptions.
  EXPECT_EQ(rows[*FindFirstCatalogueRow(rows, "*count")].tag, "{{count}}");
  EXPECT_EQ(rows[*FindFirstCatalogueRow(rows, "*Week")].tag, "{{ww}}");
  EXPECT_EQ(rows[*FindFirstCatalogueRow(rows, "*CamComMan")].tag, "{{get_jpg_exif_dcmodel}}");
  EXPECT_EQ(FindFirstCatalogueRow(rows, ""), 0u);
  EXPECT_FALSE(FindFirstCatalogueRow(rows, "no such thing").has_value());
  EXPECT_EQ(FindCatalogueRows(rows, "mm_text").size(), 2u);
  EXPECT_EQ(FindCatalogueRows(rows, "setFileAttribute").size(), 5u);
}

class PickerTest : public ::testing::Test {
 protected:
  void Show(std::string_view field, std::size_t cursor = SIZE_MAX) {
    picker_.ShowMe(EnglishRows(), field, cursor);
  }
  std::size_t IndexOf(std::string_view tag) {
    const auto& rows = picker_.rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].tag == tag) return i;
    }
    return SIZE_MAX;
  }
  PatternPicker picker_;
};

TEST_F(PickerTest, MarksRowsInUseByTheField) {
  Show("Photo_{{YYYY}}_{{count}}");
  EXPECT_TRUE(picker_.IsInUse(IndexOf("{{yyyy}}")));
  EXPECT_TRUE(picker_.IsInUse(IndexOf("{{count}}")));
  EXPECT_FALSE(picker_.IsInUse(IndexOf("{{yyyy.mm.dd}}")));
  EXPECT_EQ(picker_.RowText(IndexOf("{{count}}"), "[Currently selected in main dialogue]"),
            "{{count}} [Currently selected in main dialogue]");
  EXPECT_EQ(picker_.RowText(0, "[x]"), "{{yyyy.mm.dd}}");
  EXPECT_EQ(picker_.SelectedCount(), 0u);
  EXPECT_EQ(picker_.manual_text(), "Photo_{{YYYY}}_{{count}}");
  EXPECT_EQ(picker_.CountText("Current available patterns:"), "Current available patterns: 248");
}

TEST_F(PickerTest, OneRowKeepsTheSeparatorSeveralLoseTheLast) {
  Show("");
  picker_.SetSelected(IndexOf("{{count}}"), true);
  ASSERT_TRUE(picker_.Confirm("_"));
  EXPECT_EQ(picker_.GetPattern(), "{{count}}_");
  picker_.SetSelected(0, true);
  ASSERT_TRUE(picker_.Confirm("_"));
  EXPECT_EQ(picker_.GetPattern(), "{{yyyy.mm.dd}}_{{count}}");
  picker_.SetSelected(IndexOf("{{hh}}"), true);
  ASSERT_TRUE(picker_.Confirm("--"));
  EXPECT_EQ(picker_.GetPattern(), "{{yyyy.mm.dd}}--{{hh}}--{{count}}");
}

TEST_F(PickerTest, BothMonthNameRowsInsertTheSameToken) {
  Show("");
  std::vector<std::size_t> month_rows = FindCatalogueRows(picker_.rows(), "mm_text");
  ASSERT_EQ(month_rows.size(), 2u);
  for (std::size_t row : month_rows) {
    picker_.DeselectAll();
    picker_.SetSelected(row, true);
    picker_.Confirm("");
    EXPECT_EQ(picker_.GetPattern(), "{{mm_text}}");
  }
}

TEST_F(PickerTest, SearchSelectsTheFirstMatch) {
  Show("");
  EXPECT_EQ(picker_.Search("ctime"), IndexOf("{{ctime.}}"));
  EXPECT_TRUE(picker_.IsSelected(IndexOf("{{ctime.}}")));
  EXPECT_FALSE(picker_.Search("zzz_nothing").has_value());
  EXPECT_EQ(picker_.SelectedCount(), 1u);
  // A search that finds another row moves the selection there.
  picker_.Search("e");
  picker_.Search("ex");
  EXPECT_EQ(picker_.Search("exif").has_value(), true);
  EXPECT_EQ(picker_.SelectedCount(), 1u);
}

TEST_F(PickerTest, ManualModeUsesTheHandEditedText) {
  Show("ab", 1);
  picker_.ChooseRow(IndexOf("{{count}}"));
  EXPECT_EQ(picker_.manual_text(), "ab");  // not in manual mode
  picker_.SetMode(InsertMode::kManual);
  EXPECT_TRUE(picker_.ManualEnabled());
  picker_.ChooseRow(IndexOf("{{count}}"));
  EXPECT_EQ(picker_.manual_text(), "a{{count}}b");
  picker_.ChooseRow(IndexOf("{{hh}}"));
  EXPECT_EQ(picker_.manual_text(), "a{{count}}{{hh}}b");
  picker_.SetSelected(0, true);
  ASSERT_TRUE(picker_.Confirm("_"));
  EXPECT_EQ(picker_.GetPattern(), "a{{count}}{{hh}}b");
  picker_.ClearManualText();
  picker_.SetMode(InsertMode::kAppend);
  EXPECT_FALSE(picker_.ManualEnabled());
}

TEST_F(PickerTest, CancelClearsAndEmptyListDoesNotClose) {
  Show("x");
  picker_.SetSelected(1, true);
  picker_.Confirm("_");
  picker_.Cancel();
  EXPECT_EQ(picker_.GetPattern(), "");
  PatternPicker empty;
  empty.ShowMe({}, "field");
  EXPECT_FALSE(empty.Confirm("_"));
  EXPECT_EQ(empty.GetPattern(), "");
}

TEST(ApplyPatternTest, TheFourInsertionModes) {
  EXPECT_EQ(ApplyPattern("Photo", 2, InsertMode::kAppend, "{{count}}").text, "Photo{{count}}");
  EXPECT_EQ(ApplyPattern("Photo", 2, InsertMode::kOverwrite, "{{count}}").text, "{{count}}");
  EXPECT_EQ(ApplyPattern("Photo", 2, InsertMode::kManual, "a{{hh}}").text, "a{{hh}}");
  const FieldUpdate inserted = ApplyPattern("Phöto", 2, InsertMode::kInsertAtCursor, "{{hh}}");
  EXPECT_EQ(inserted.text, "Ph{{hh}}öto");
  EXPECT_EQ(inserted.cursor, 8u);
  const FieldUpdate copied = ApplyPattern("Photo", 2, InsertMode::kToClipboard, "{{hh}}");
  EXPECT_EQ(copied.text, "Photo");
  EXPECT_EQ(copied.clipboard, "{{hh}}");
  // Cancel gives an empty result, and the field stays as it is.
  const FieldUpdate cancelled = ApplyPattern("Photo", 2, InsertMode::kOverwrite, "");
  EXPECT_EQ(cancelled.text, "Photo");
  EXPECT_EQ(cancelled.cursor, 2u);
  EXPECT_FALSE(cancelled.clipboard.has_value());
}

}  // namespace
}  // namespace tarnwick

// Texts of the file list, file tools, picture tools, playlist editor and
// shell, read back through the message table.

#include <gtest/gtest.h>

#include <cctype>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/message_data.h"
#include "shell/message_entry.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

const MessageTable& English() { return MessageTable::Get(Language::kEnglish); }
const MessageTable& German() { return MessageTable::Get(Language::kGerman); }

std::vector<MessageEntry> TheseLists() {
  std::vector<MessageEntry> all;
  for (auto list :
       {message_data::FileList(), message_data::FileTools(), message_data::PictureTools(),
        message_data::Playlist(), message_data::Shell()}) {
    all.insert(all.end(), list.begin(), list.end());
  }
  return all;
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

size_t LeadingBlanks(std::string_view text) {
  size_t n = 0;
  while (n < text.size() && IsBlank(text[n])) ++n;
  return n;
}

size_t TrailingBlanks(std::string_view text) {
  size_t n = 0;
  while (n < text.size() && IsBlank(text[text.size() - 1 - n])) ++n;
  return n;
}

size_t Count(std::string_view text, std::string_view part) {
  size_t n = 0;
  for (size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
    ++n;
  }
  return n;
}

TEST(MessageDataTexts, NumberedTextsReadWordForWordInEnglish) {
  struct Case {
    int id;
    std::string_view english;
  };
  const Case cases[] = {
      {166, "An error occured:"},
      {189, "Start Tarnwick (ERROR)"},
      {647, "Compress picture files to JPEG"},
      {654, "(Copy"},
      {655, "files couldn't be processed in case of invalid file format."},
      {670,
       "If you continue you will overwrite all exisiting files, are you sure you want to do "
       "that?"},
      {671, "Overwrite files"},
      {770, "A new version ("},
      {771, ") is available."},
      {975, "Resize picture (only BMP, GIF, JPG & WMF)"},
      {980, "(only as BMP possible)"},
      {1030, "Set all options to defaults while previous execution failed"},
      {1054, "Reading:"},
      {1069, "None"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.id);
    EXPECT_EQ(English().Text(c.id), c.english);
    EXPECT_FALSE(German().Text(c.id).empty());
    EXPECT_NE(German().Text(c.id), c.english);
  }
  EXPECT_FALSE(English().Text(1083).empty());
}

TEST(MessageDataTexts, KeyedTextsKeepTheirOddities) {
  EXPECT_EQ(English().Text("playlist.action_successful"), "Action successfull!");
  EXPECT_EQ(English().Text("playlist.files_not_copied"), "files not found an not copied!");
  EXPECT_EQ(English().Text("playlist.too_many_files"), "Too much files!");
  EXPECT_EQ(English().Text("split.pieces_exist"),
            "The file(s) for splitting already exists, process cancelled! ");
  EXPECT_EQ(English().Text("jpeg.illegal_precision"), "Illegal precission in Quantization Table");
  EXPECT_EQ(English().Text("startup.drive_locked"),
            "It seems that another application locks an drive. To unlock it, you must exit the "
            "application.");
  EXPECT_EQ(English().Text("filelist.icons_deactivated"),
            "Due to avoid performance problems, the icons in the filelist while be deactivated. "
            "If you can activate this feature later under the \"Options' menu.");
  EXPECT_EQ(English().Text("export.canceled_text"),
            "Process canceled by user, data may not be transfered right.");
}

TEST(MessageDataTexts, TextsThatStayTheSameInBothLanguages) {
  for (std::string_view key :
       {"playlist.shuffle_question", "playlist.shuffle_title", "picture.encoder_not_found",
        "playlist.save_filter", "filelist.type_cache.folder", "filelist.type_cache.fixed"}) {
    SCOPED_TRACE(key);
    EXPECT_FALSE(English().Text(key).empty());
    EXPECT_EQ(German().Text(key), English().Text(key));
  }
  EXPECT_EQ(English().Text("playlist.shuffle_question"),
            "Soll die Liste wirklich zufällig sortiert werden?");
  EXPECT_EQ(English().Text("picture.encoder_not_found"),
            "Konnte keinen passenden Encoder ermitteln.");
}

// A second entry with the same key or id elsewhere in the table would hide
// one of these; each must read back as itself in both languages.
TEST(MessageDataTexts, EveryEntryIsFoundByItsKeyAndIdInBothLanguages) {
  for (const MessageEntry& entry : TheseLists()) {
    SCOPED_TRACE(entry.key);
    EXPECT_EQ(English().Text(entry.key), entry.english);
    EXPECT_EQ(German().Text(entry.key), entry.german);
    if (entry.id == 0) continue;
    EXPECT_EQ(English().Text(entry.id), entry.english);
    EXPECT_EQ(German().Text(entry.id), entry.german);
  }
}

TEST(MessageDataTexts, KeysAreUniqueLowerCaseAndDotted) {
  for (const MessageEntry& entry : TheseLists()) {
    SCOPED_TRACE(entry.key);
    EXPECT_NE(entry.key.find('.'), std::string_view::npos);
    EXPECT_FALSE(entry.key.starts_with('.') || entry.key.ends_with('.'));
    for (char c : entry.key) {
      EXPECT_TRUE(std::islower(static_cast<unsigned char>(c)) ||
                  std::isdigit(static_cast<unsigned char>(c)) || c == '.' || c == '_')
          << c;
    }
    size_t same_key = 0;
    for (const MessageEntry& other : AllMessages()) same_key += other.key == entry.key ? 1 : 0;
    EXPECT_EQ(same_key, 1u);
  }
}

// Pieces are joined with values between them, so a translation keeps the
// blanks at its ends, a closing colon and every "%N" marker of its twin.
TEST(MessageDataTexts, GermanTwinsFitTheSameJoins) {
  for (const MessageEntry& entry : TheseLists()) {
    SCOPED_TRACE(entry.key);
    ASSERT_FALSE(entry.english.empty());
    ASSERT_FALSE(entry.german.empty());
    EXPECT_EQ(LeadingBlanks(entry.german), LeadingBlanks(entry.english));
    EXPECT_EQ(TrailingBlanks(entry.german), TrailingBlanks(entry.english));
    EXPECT_EQ(entry.german.ends_with(':'), entry.english.ends_with(':'));
    for (std::string_view marker : {"%1", "%2", "%3"}) {
      EXPECT_EQ(Count(entry.german, marker), Count(entry.english, marker)) << marker;
    }
  }
}

TEST(MessageDataTexts, SecureDeleteQuestionTakesTheFileCount) {
  const std::string english =
      FillMessage(English().Text("shredder.confirm_text"), {std::string_view("12")});
  EXPECT_EQ(english,
            "Are you sure you want to secure delete the selected files? Later recovery of the 12 "
            "files is NOT possible. Also the operation can take a while!");
  const std::string german =
      FillMessage(German().Text("shredder.confirm_text"), {std::string_view("12")});
  EXPECT_NE(german.find(" 12 "), std::string::npos);
  EXPECT_EQ(german.find('%'), std::string::npos);
}

TEST(MessageDataTexts, UpdateQuestionJoinsAroundTheVersion) {
  for (const MessageTable* table : {&English(), &German()}) {
    const std::string joined =
        std::string(table->Text(770)) + "2.98" + std::string(table->Text(771));
    EXPECT_NE(joined.find("(2.98)"), std::string::npos) << joined;
  }
}

}  // namespace
}  // namespace tarnwick

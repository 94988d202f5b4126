#include "shell/message_table.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <optional>
#include <regex>
#include <set>
#include <string>

#include "shell/message_entry.h"

namespace tarnwick {
namespace {

TEST(MessageTableContentTest, KeysAndIdsAreUniqueAndWellFormed) {
  const std::regex key_shape("[a-z0-9_]+(\\.[a-z0-9_]+)+");
  std::set<std::string_view> keys;
  std::set<int> ids;
  for (const MessageEntry& entry : AllMessages()) {
    EXPECT_TRUE(std::regex_match(std::string(entry.key), key_shape)) << entry.key;
    EXPECT_TRUE(keys.insert(entry.key).second) << "key twice: " << entry.key;
    EXPECT_GE(entry.id, 0) << entry.key;
    if (entry.id == 0) continue;
    EXPECT_TRUE(ids.insert(entry.id).second) << "id twice: " << entry.id;
  }
  EXPECT_GT(keys.size(), 400u);
}

TEST(MessageTableContentTest, EveryEntryHasBothLanguages) {
  for (const MessageEntry& entry : AllMessages()) {
    EXPECT_FALSE(entry.english.empty()) << entry.key;
    EXPECT_FALSE(entry.german.empty()) << entry.key;
  }
}

TEST(MessageTableContentTest, EveryEntryIsFoundByKeyAndId) {
  const MessageTable& english = MessageTable::Get(Language::kEnglish);
  const MessageTable& german = MessageTable::Get(Language::kGerman);
  for (const MessageEntry& entry : AllMessages()) {
    EXPECT_EQ(english.Text(entry.key), entry.english) << entry.key;
    EXPECT_EQ(german.Text(entry.key), entry.german) << entry.key;
    if (entry.id == 0) continue;
    EXPECT_EQ(english.Text(entry.id), entry.english) << entry.id;
    EXPECT_EQ(german.Text(entry.id), entry.german) << entry.id;
  }
}

TEST(MessageTableTextTest, NumberedTextsKeepTheirWords) {
  const MessageTable& table = MessageTable::Get(Language::kEnglish);
  EXPECT_EQ(table.Text(706), "Renamed");
  EXPECT_EQ(table.Text(864), "No action, file skipped!");
  EXPECT_EQ(table.Text(715), "! ERROR:");
  EXPECT_EQ(table.Text(592), "January");
  EXPECT_EQ(table.Text(597), "June");
  EXPECT_EQ(table.Text(603), "December");
  EXPECT_EQ(table.Text(396), "Description");
  EXPECT_EQ(table.Text(471), "Insert at cursorposition");
  EXPECT_EQ(table.Text(1012), "Yes");
  EXPECT_EQ(table.Text(1013), "No");
  EXPECT_EQ(table.Text(852), "Picture siz in pixel");
  EXPECT_EQ(table.Text(558), "File has no EXIF Metainformation.");
  EXPECT_EQ(table.Text(1030), "Set all options to defaults while previous execution failed");
}

TEST(MessageTableTextTest, MonthNamesRunInOrderInBothLanguages) {
  const char* english[] = {"January", "February", "March",     "April",   "May",      "June",
                           "July",    "August",   "September", "October", "November", "December"};
  const char* german[] = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                          "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  for (int month = 0; month < 12; ++month) {
    EXPECT_EQ(MessageTable::Get(Language::kEnglish).Text(592 + month), english[month]);
    EXPECT_EQ(MessageTable::Get(Language::kGerman).Text(592 + month), german[month]);
  }
}

TEST(MessageTableTextTest, KeyedTextsKeepSpacingTyposAndQuotes) {
  const MessageTable& table = MessageTable::Get(Language::kEnglish);
  EXPECT_EQ(table.Text("run.search_text_empty"), "Search textfield could  not be empty.");
  EXPECT_EQ(table.Text("pipeline.not_allowed_char"),
            "You have entered an not allowed char for the filename. Pleas do NOT use one of "
            "this chars:  *,\\,/,\",?,:");
  EXPECT_EQ(table.Text("pipeline.shorter_than_cut_left"),
            "is shorter than chars you want to cut from the left. Skipping this file.");
  EXPECT_EQ(table.Text("run.status_in_progress"),
            "Action in progress, please wait ...  [Cancel with \"Esc\"]");
  EXPECT_EQ(table.Text("sample.preview_disabled"), "* Preview disabeld *");
  EXPECT_EQ(table.Text("undo.action_none"),
            "Action of the script: This script does'nt do any action");
  EXPECT_EQ(table.Text("options.ignore_regex_casing"),
            "Ignore casing when using {{RegEx[exp##rep]}} placeholder ");
}

TEST(MessageTableTextTest, PiecesKeepTheBlanksAtTheirEnds) {
  for (Language language : {Language::kEnglish, Language::kGerman}) {
    const MessageTable& table = MessageTable::Get(language);
    // The batch header puts one more blank behind this text, so two stand before the date.
    EXPECT_TRUE(table.Text("undo.created_by").ends_with(" "));
    EXPECT_TRUE(table.Text("tag_editor.length").ends_with(": "));
    EXPECT_TRUE(table.Text("pipeline.the_filename").ends_with("'"));
    EXPECT_TRUE(table.Text("settings_file.directory_gone").starts_with("' "));
  }
}

TEST(MessageTableTextTest, GermanTableTranslatesExceptFixedWords) {
  const MessageTable& german = MessageTable::Get(Language::kGerman);
  EXPECT_EQ(german.language(), Language::kGerman);
  EXPECT_EQ(german.Text(1012), "Ja");
  EXPECT_EQ(german.Text("run.continue_with_next_file"), "Mit der nächsten Datei fortfahren?");
  EXPECT_NE(german.Text("order.cut_left"),
            MessageTable::Get(Language::kEnglish).Text("order.cut_left"));
  // Kept: the prefix and postfix actions are named alike in both languages.
  EXPECT_EQ(german.Text("order.prefix"), "Prefix");
  EXPECT_EQ(german.Text("order.postfix"), "Postfix");
}

TEST(MessageTableTextTest, UnknownIdsAndKeysGiveEmptyText) {
  const MessageTable table(Language::kEnglish);
  EXPECT_EQ(table.Text(0), "");
  EXPECT_EQ(table.Text(-1), "");
  EXPECT_EQ(table.Text(INT_MIN), "");
  EXPECT_EQ(table.Text(INT_MAX), "");
  EXPECT_EQ(table.Text(1), "");
  EXPECT_EQ(table.Text(std::string_view()), "");
  EXPECT_EQ(table.Text("run"), "");
  EXPECT_EQ(table.Text("RUN.NOTE_RENAMED"), "");
  EXPECT_EQ(table.Text("run.note_renamed"), "Renamed");
}

TEST(MessageTableTextTest, SharedTablesAreBuiltOncePerLanguage) {
  EXPECT_EQ(&MessageTable::Get(Language::kGerman), &MessageTable::Get(Language::kGerman));
  EXPECT_NE(&MessageTable::Get(Language::kGerman), &MessageTable::Get(Language::kEnglish));
  EXPECT_EQ(MessageTable::Get(Language::kEnglish).language(), Language::kEnglish);
}

TEST(LanguageTest, FirstSetVariableDecides) {
  EXPECT_EQ(LanguageFromLocale("", "", ""), Language::kEnglish);
  EXPECT_EQ(LanguageFromLocale("", "", "de_DE.UTF-8"), Language::kGerman);
  EXPECT_EQ(LanguageFromLocale("", "", "de"), Language::kGerman);
  EXPECT_EQ(LanguageFromLocale("", "", "en_US.UTF-8"), Language::kEnglish);
  EXPECT_EQ(LanguageFromLocale("", "de_AT.UTF-8", "en_GB.UTF-8"), Language::kGerman);
  EXPECT_EQ(LanguageFromLocale("", "C", "de_DE.UTF-8"), Language::kEnglish);
  EXPECT_EQ(LanguageFromLocale("en_US.UTF-8", "de_DE", "de_DE"), Language::kEnglish);
  EXPECT_EQ(LanguageFromLocale("de_CH.UTF-8", "C", "en_US"), Language::kGerman);
  EXPECT_EQ(LanguageFromLocale("", "", "C.UTF-8"), Language::kEnglish);
  EXPECT_EQ(LanguageFromLocale("", "", "dk_DK"), Language::kEnglish);
}

TEST(LanguageTest, TheOptionsChoiceWinsOverTheSystem) {
  // Both words are the same in either language, so a switch made in German
  // reads the same at the next start in English.
  for (Language shown : {Language::kEnglish, Language::kGerman}) {
    const MessageTable& table = MessageTable::Get(shown);
    EXPECT_EQ(LanguageChoice(table.Text("options.language_german")), Language::kGerman);
    EXPECT_EQ(LanguageChoice(table.Text("options.language_english")), Language::kEnglish);
    EXPECT_EQ(LanguageChoice(table.Text("options.language_system")), SystemLanguage());
  }
  EXPECT_EQ(LanguageChoice("DE"), Language::kGerman);
  EXPECT_EQ(LanguageChoice("en"), Language::kEnglish);
  EXPECT_EQ(LanguageChoice(""), SystemLanguage());
  EXPECT_EQ(LanguageChoice("Klingon"), SystemLanguage());
}

// Sets or clears an environment variable for the life of the object.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    if (value) {
      setenv(name, value, 1);
    } else {
      unsetenv(name);
    }
  }
  ~ScopedEnv() {
    if (old_) {
      setenv(name_, old_->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(LanguageTest, SystemLanguageReadsTheEnvironment) {
  {
    ScopedEnv all("LC_ALL", nullptr), messages("LC_MESSAGES", nullptr), lang("LANG", "de_DE.UTF-8");
    EXPECT_EQ(SystemLanguage(), Language::kGerman);
  }
  {
    ScopedEnv all("LC_ALL", ""), messages("LC_MESSAGES", "de_DE"), lang("LANG", "C.UTF-8");
    EXPECT_EQ(SystemLanguage(), Language::kGerman);
  }
  {
    ScopedEnv all("LC_ALL", "C"), messages("LC_MESSAGES", "de_DE"), lang("LANG", "de_DE");
    EXPECT_EQ(SystemLanguage(), Language::kEnglish);
  }
  {
    ScopedEnv all("LC_ALL", nullptr), messages("LC_MESSAGES", nullptr), lang("LANG", nullptr);
    EXPECT_EQ(SystemLanguage(), Language::kEnglish);
  }
}

TEST(FillMessageTest, MarkersTakeTheirValues) {
  EXPECT_EQ(FillMessage("%1 of %2 files", {"3", "10"}), "3 of 10 files");
  EXPECT_EQ(FillMessage("%2 before %1", {"a", "b"}), "b before a");
  EXPECT_EQ(FillMessage("%1%1", {"x"}), "xx");
  EXPECT_EQ(FillMessage("no markers", {"x"}), "no markers");
  EXPECT_EQ(FillMessage("", {"x"}), "");
}

TEST(FillMessageTest, OddMarkersStayAsTheyAre) {
  EXPECT_EQ(FillMessage("%1 and %3", {"a"}), "a and %3");
  EXPECT_EQ(FillMessage("100% sure", {"a"}), "100% sure");
  EXPECT_EQ(FillMessage("ends in %", {"a"}), "ends in %");
  EXPECT_EQ(FillMessage("%0 and %%1", {"a"}), "%0 and %a");
  EXPECT_EQ(FillMessage("%12", {"a"}), "a2");
  // A value is put in as it stands, even when it holds a marker itself.
  EXPECT_EQ(FillMessage("%1 %2", {"%2", "b"}), "%2 b");
}

TEST(FillMessageTest, FillsATextOfTheTable) {
  for (const MessageEntry& entry : AllMessages()) {
    if (entry.english.find("%1") == std::string_view::npos) continue;
    const std::string filled = FillMessage(entry.english, {"VALUE"});
    EXPECT_EQ(filled.find("%1"), std::string::npos) << entry.key;
    EXPECT_NE(filled.find("VALUE"), std::string::npos) << entry.key;
  }
}

}  // namespace
}  // namespace tarnwick

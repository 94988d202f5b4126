#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnwick {

// The two languages of the user interface.
enum class Language { kEnglish, kGerman };

// The language of the system locale: the first of LC_ALL, LC_MESSAGES and LANG
// that is set and not empty decides; a value starting with "de" gives German,
// anything else (or nothing at all) English.
Language SystemLanguage();

// The same choice from given values, so callers and tests can decide without
// touching the environment. An empty value counts as not set.
Language LanguageFromLocale(std::string_view lc_all, std::string_view lc_messages,
                            std::string_view lang);

// The language the user chose in the options (`Language`, read at start):
// "English" or "en" gives English, "Deutsch" or "de" German (without regard
// to case), anything else, such as "System language", the system's.
Language LanguageChoice(std::string_view stored);

// Every caption and message text of the program, in one language, found by
// its number or by its key (see message_entry.h). Both lookups are constant
// time; the table is built once per language and read for every file of a run.
//
// Texts that carry values are stored with markers "%1" to "%9" where the
// value goes; FillMessage puts the values in.
class MessageTable {
 public:
  explicit MessageTable(Language language);

  // The shared table of `language`, built on first use.
  static const MessageTable& Get(Language language);

  Language language() const { return language_; }

  // The text of message `id`; empty for an id the table does not hold.
  std::string_view Text(int id) const;
  // The text of the entry with `key`; empty for an unknown key.
  std::string_view Text(std::string_view key) const;

 private:
  Language language_;
  std::vector<std::string_view> by_id_;  // indexed by id; empty where none
  std::unordered_map<std::string_view, std::string_view> by_key_;
};

// Replaces each marker "%N" (N from 1 to 9) in `text` by the N-th value.
// A marker without a value, and a "%" not followed by a digit from 1 to 9,
// stay as they are. Inserted values are not scanned again for markers.
std::string FillMessage(std::string_view text, std::initializer_list<std::string_view> values);

}  // namespace tarnwick

#include "shell/message_table.h"

#include <cctype>
#include <cstdlib>
#include <span>

#include "shell/message_data.h"
#include "shell/message_entry.h"

namespace tarnwick {
namespace {

// The lists of every subsystem, in the order of the program's parts.
std::vector<MessageEntry> JoinLists() {
  const std::span<const MessageEntry> lists[] = {
      message_data::RenameEngine(), message_data::Placeholders(), message_data::Media(),
      message_data::Persistence(),  message_data::FileList(),     message_data::FileTools(),
      message_data::PictureTools(), message_data::Playlist(),     message_data::Shell(),
  };
  std::vector<MessageEntry> all;
  for (const auto& list : lists) all.insert(all.end(), list.begin(), list.end());
  return all;
}

std::string_view EnvironmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value ? std::string_view(value) : std::string_view();
}

// Ids above this are not numbers of the table but a slip in a list; they are
// reachable by key only, so one wrong number cannot blow up the id index.
constexpr int kLargestId = 100000;

}  // namespace

std::span<const MessageEntry> AllMessages() {
  static const std::vector<MessageEntry> all = JoinLists();
  return all;
}

Language LanguageFromLocale(std::string_view lc_all, std::string_view lc_messages,
                            std::string_view lang) {
  std::string_view chosen = lang;
  if (!lc_messages.empty()) chosen = lc_messages;
  if (!lc_all.empty()) chosen = lc_all;
  return chosen.starts_with("de") ? Language::kGerman : Language::kEnglish;
}

Language SystemLanguage() {
  return LanguageFromLocale(EnvironmentValue("LC_ALL"), EnvironmentValue("LC_MESSAGES"),
                            EnvironmentValue("LANG"));
}

Language LanguageChoice(std::string_view stored) {
  std::string lower(stored);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower == "english" || lower == "en") return Language::kEnglish;
  if (lower == "deutsch" || lower == "de") return Language::kGerman;
  return SystemLanguage();
}

MessageTable::MessageTable(Language language) : language_(language) {
  const auto all = AllMessages();
  by_key_.reserve(all.size());
  for (const MessageEntry& entry : all) {
    const std::string_view text = language == Language::kGerman ? entry.german : entry.english;
    by_key_.emplace(entry.key, text);  // the first of two equal keys wins
    if (entry.id <= 0 || entry.id > kLargestId) continue;
    const auto index = static_cast<size_t>(entry.id);
    if (index >= by_id_.size()) by_id_.resize(index + 1);
    if (by_id_[index].empty()) by_id_[index] = text;
  }
}

const MessageTable& MessageTable::Get(Language language) {
  static const MessageTable english(Language::kEnglish);
  static const MessageTable german(Language::kGerman);
  return language == Language::kGerman ? german : english;
}

std::string_view MessageTable::Text(int id) const {
  if (id <= 0 || static_cast<size_t>(id) >= by_id_.size()) return {};
  return by_id_[static_cast<size_t>(id)];
}

std::string_view MessageTable::Text(std::string_view key) const {
  const auto found = by_key_.find(key);
  return found == by_key_.end() ? std::string_view() : found->second;
}

std::string FillMessage(std::string_view text, std::initializer_list<std::string_view> values) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    const bool marker = text[i] == '%' && next >= '1' && next <= '9';
    const auto slot = static_cast<size_t>(next - '1');
    if (!marker || slot >= values.size()) {
      out += text[i];
      continue;
    }
    out += values.begin()[slot];
    ++i;
  }
  return out;
}

}  // namespace tarnwick

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

// The user's persistent preferences: named text values in sections
// ("Options", "AutoUpdate", "ManualRename", "Playlist", "XML").
//
// Kept in one INI file, $XDG_CONFIG_HOME/Oakhollow/Tarnwick.ini, a section
// per key name (format: ini_document.h, ini_text_codec.h). Section and key
// names compare without regard to case and keep the spelling they were first
// written with. Every value is a string; an empty stored value reads as
// missing. Reads are cheap (the
// parsed file is cached and re-read only when the file changed on disk), and
// every write merges under a lock and replaces the file atomically, so two
// running copies never lose each other's keys. Failures are silent: a read
// that fails returns the default, a write that fails is lost.
class OptionStore {
 public:
  // The store of the current user (honours XDG_CONFIG_HOME).
  static OptionStore ForCurrentUser();
  static std::filesystem::path DefaultFile();

  explicit OptionStore(std::filesystem::path file);
  ~OptionStore();
  OptionStore(OptionStore&&) noexcept;
  OptionStore& operator=(OptionStore&&) noexcept;

  // The stored value when it has at least one character, else `default_value`.
  // Never writes the default back.
  std::string GetOption(std::string_view name, std::string_view section,
                        std::string_view default_value) const;
  // Stores `value` as a string, creating the section (and the folder of the
  // file) when needed. Returns whether the file now holds the value; callers
  // that follow the silent rule ignore it. Empty names are never stored.
  bool SaveOption(std::string_view name, std::string_view section, std::string_view value);
  // A value for this store object only: GetOption reads it before the
  // file's, and it is never written (a command-line run's settings that must
  // leave the stored options as they were). An empty value lifts it.
  // SaveOption still writes the file and leaves the override in place.
  void SetOverride(std::string_view name, std::string_view section, std::string_view value);

  // A number that changes whenever a value GetOption gives may have changed
  // (the file read anew, a save, an override), unique among all stores of the
  // process: what is worked out from options can be kept until it changes.
  // Checks the file as GetOption does.
  std::uint64_t Generation() const;

  // One unit of work, such as one file of a rename run: while it lasts, the
  // file is checked for changes by other processes at most once, at the
  // first read, and every read sees that state (and this store's own
  // writes). A unit that begins within kUnitCheckInterval of the last check
  // takes the state of that check, so a run of many short units costs one
  // stat per interval, not one per file; a change by another process is
  // seen by the first unit after that interval. Units may nest.
  static constexpr std::chrono::milliseconds kUnitCheckInterval{100};
  class Unit {
   public:
    explicit Unit(const OptionStore& store);
    ~Unit();
    Unit(const Unit&) = delete;
    Unit& operator=(const Unit&) = delete;

   private:
    const OptionStore& store_;
  };

  // Removes a whole section with every key in it (crash recovery deletes
  // "Options"). Returns false only when the file could not be rewritten.
  bool DeleteSection(std::string_view section);

  // For listings: the sections in file order, and the keys of one section
  // that hold a value (empty ones read as missing), both spelled as first
  // written.
  std::vector<std::string> Sections() const;
  std::vector<std::pair<std::string, std::string>> ListSection(std::string_view section) const;

  const std::filesystem::path& file() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick

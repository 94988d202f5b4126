#include "persist/option_store.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <system_error>

#include "persist/ini_document.h"
#include "persist/option_store_file.h"
#include "platform/user_folders.h"

namespace tarnwick {
namespace {

// Generations are unique across all stores of the process, so a cache keyed
// by a generation alone never mistakes one store's values for another's.
std::atomic<std::uint64_t> next_generation{1};
std::uint64_t NewGeneration() { return next_generation.fetch_add(1, std::memory_order_relaxed); }

}  // namespace

struct OptionStore::Impl {
  explicit Impl(std::filesystem::path path)
      : file(std::move(path)), lock_file(file.string() + ".lock") {}

  // Brings the cached document up to date with the file on disk. One stat()
  // when nothing changed.
  void Refresh() const {
    // Within one unit of work the file was checked already; a new unit
    // checks it when the last check is older than kUnitCheckInterval.
    if (units > 0 && loaded && !racy && checked_in_unit) return;
    const auto clock = std::chrono::steady_clock::now();
    if (units > 0 && loaded && !racy) {
      checked_in_unit = true;
      if (clock - last_check < kUnitCheckInterval) return;
    }
    checked_in_unit = true;
    last_check = clock;
    const OptionFileIdentity now = StatOptionFile(file);
    if (loaded && !racy && now == identity) return;
    OptionFileContent content = ReadOptionFile(file);
    const bool read = content.state == OptionFileContent::State::kRead;
    document = read ? IniDocument::Parse(content.text) : IniDocument();
    generation = NewGeneration();
    Remember(read ? content.identity : now);
  }

  // A file changed within the last tick of the file system's clock may be
  // changed again in place with the same size and time stamps; until its
  // stamps are older than that, each read reads it anew.
  void Remember(const OptionFileIdentity& seen) const {
    identity = seen;
    loaded = true;
    racy = seen.exists && IsRecent(seen);
  }

  // Merges one change into the file under the lock: the file is read anew,
  // changed, and replaced atomically. `change` says whether it changed it.
  template <typename Change>
  bool Update(Change change) {
    std::error_code error;
    if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), error);
    const std::optional<OptionFileLock> lock = OptionFileLock::Acquire(lock_file);
    if (!lock) return false;
    OptionFileContent content = ReadOptionFile(file);
    if (content.state == OptionFileContent::State::kFailed) return false;
    IniDocument fresh = IniDocument::Parse(content.text);
    if (change(fresh) && !ReplaceOptionFile(file, fresh.Serialize(), content.mode)) return false;
    // Still under the lock: what is on disk now is exactly `fresh`.
    const std::lock_guard guard(mutex);
    document = std::move(fresh);
    generation = NewGeneration();
    Remember(StatOptionFile(file));
    return true;
  }

  const std::filesystem::path file;
  const std::filesystem::path lock_file;
  mutable std::mutex mutex;
  mutable IniDocument document;
  mutable OptionFileIdentity identity;
  mutable bool loaded = false;
  mutable bool racy = false;
  // Changes whenever a value read may have changed.
  mutable std::uint64_t generation = NewGeneration();
  // Values of this process only, read before the file's.
  IniDocument overrides;
  // Open units of work (OptionStore::Unit), and whether the file has been
  // checked for changes since the outermost one began.
  mutable int units = 0;
  mutable bool checked_in_unit = false;
  mutable std::chrono::steady_clock::time_point last_check{};
};

void OptionStore::SetOverride(std::string_view name, std::string_view section,
                              std::string_view value) {
  if (!impl_ || name.empty()) return;
  const std::lock_guard guard(impl_->mutex);
  impl_->overrides.Set(section, name, value);
  impl_->generation = NewGeneration();
}

std::uint64_t OptionStore::Generation() const {
  if (!impl_) return 0;
  try {
    const std::lock_guard guard(impl_->mutex);
    impl_->Refresh();
    return impl_->generation;
  } catch (...) {
    return NewGeneration();  // unknown: nothing cached may be trusted
  }
}

OptionStore::Unit::Unit(const OptionStore& store) : store_(store) {
  if (!store_.impl_) return;
  const std::lock_guard guard(store_.impl_->mutex);
  if (store_.impl_->units++ == 0) store_.impl_->checked_in_unit = false;
}

OptionStore::Unit::~Unit() {
  if (!store_.impl_) return;
  const std::lock_guard guard(store_.impl_->mutex);
  --store_.impl_->units;
}

OptionStore OptionStore::ForCurrentUser() { return OptionStore(DefaultFile()); }

std::filesystem::path OptionStore::DefaultFile() { return ConfigFolder() / "Tarnwick.ini"; }

OptionStore::OptionStore(std::filesystem::path file)
    : impl_(std::make_unique<Impl>(std::move(file))) {}
OptionStore::~OptionStore() = default;
OptionStore::OptionStore(OptionStore&&) noexcept = default;
OptionStore& OptionStore::operator=(OptionStore&&) noexcept = default;

std::string OptionStore::GetOption(std::string_view name, std::string_view section,
                                   std::string_view default_value) const {
  try {
    if (!impl_) return std::string(default_value);
    const std::lock_guard guard(impl_->mutex);
    if (const std::string* value = impl_->overrides.Find(section, name)) {
      if (!value->empty()) return *value;
    }
    impl_->Refresh();
    const std::string* value = impl_->document.Find(section, name);
    if (value == nullptr || value->empty()) return std::string(default_value);
    return *value;
  } catch (...) {
    return std::string(default_value);
  }
}

bool OptionStore::SaveOption(std::string_view name, std::string_view section,
                             std::string_view value) {
  if (!impl_ || name.empty() || section.empty()) return false;
  try {
    return impl_->Update([&](IniDocument& document) { return document.Set(section, name, value); });
  } catch (...) {
    return false;
  }
}

bool OptionStore::DeleteSection(std::string_view section) {
  if (!impl_) return false;
  try {
    return impl_->Update([&](IniDocument& document) { return document.RemoveSection(section); });
  } catch (...) {
    return false;
  }
}

std::vector<std::string> OptionStore::Sections() const {
  try {
    if (!impl_) return {};
    const std::lock_guard guard(impl_->mutex);
    impl_->Refresh();
    return impl_->document.SectionNames();
  } catch (...) {
    return {};
  }
}

std::vector<std::pair<std::string, std::string>> OptionStore::ListSection(
    std::string_view section) const {
  try {
    if (!impl_) return {};
    const std::lock_guard guard(impl_->mutex);
    impl_->Refresh();
    auto entries = impl_->document.Entries(section);
    std::erase_if(entries, [](const auto& entry) { return entry.second.empty(); });
    return entries;
  } catch (...) {
    return {};
  }
}

const std::filesystem::path& OptionStore::file() const {
  static const std::filesystem::path kNone;
  return impl_ ? impl_->file : kNone;
}

}  // namespace tarnwick

// Units of work of the option store, and values for this store only.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "persist/option_store.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {
namespace {

TEST(OptionStoreUnitTest, AUnitSeesOneStateAndTheNextSeesTheChanges) {
  TempDir dir;
  const OptionStore reader(dir.path() / "Tarnwick.ini");
  OptionStore writer(dir.path() / "Tarnwick.ini");
  writer.SaveOption("Top", "Options", "1");
  {
    const OptionStore::Unit unit(reader);
    EXPECT_EQ(reader.GetOption("Top", "Options", ""), "1");
    writer.SaveOption("Top", "Options", "2");
    // Checked once per unit; a racy file (changed within the last moment)
    // is read anew all the same, so either value may show here.
    const std::string inside = reader.GetOption("Top", "Options", "");
    EXPECT_TRUE(inside == "1" || inside == "2") << inside;
  }
  EXPECT_EQ(reader.GetOption("Top", "Options", ""), "2");
  OptionStore& own = writer;
  {
    const OptionStore::Unit unit(own);
    own.SaveOption("Top", "Options", "3");
    EXPECT_EQ(own.GetOption("Top", "Options", ""), "3");
  }
}

// A run opens one unit per file; a change another program makes is seen by
// the first unit that begins once the check interval has passed.
TEST(OptionStoreUnitTest, AChangeByAnotherStoreReachesTheUnitsOfARunWithinTheInterval) {
  TempDir dir;
  const OptionStore reader(dir.path() / "Tarnwick.ini");
  OptionStore writer(dir.path() / "Tarnwick.ini");
  writer.SaveOption("FreezeApp", "Options", "0");
  {
    const OptionStore::Unit unit(reader);
    EXPECT_EQ(reader.GetOption("FreezeApp", "Options", ""), "0");
  }
  writer.SaveOption("FreezeApp", "Options", "1");
  std::this_thread::sleep_for(OptionStore::kUnitCheckInterval + std::chrono::milliseconds(20));
  const OptionStore::Unit unit(reader);
  EXPECT_EQ(reader.GetOption("FreezeApp", "Options", ""), "1");
}

// What is worked out from options is kept while the generation stays: it
// must move with every change a read could see, and only then.
TEST(OptionStoreUnitTest, TheGenerationMovesWithEveryChangeAReadCouldSee) {
  TempDir dir;
  OptionStore store(dir.path() / "Tarnwick.ini");
  OptionStore other(dir.path() / "Tarnwick.ini");
  OptionStore elsewhere(dir.path() / "Other.ini");
  EXPECT_NE(store.Generation(), elsewhere.Generation());
  store.SaveOption("Top", "Options", "1");
  const std::uint64_t saved = store.Generation();
  store.SetOverride("Top", "Options", "9");
  const std::uint64_t overridden = store.Generation();
  EXPECT_NE(overridden, saved);
  other.SaveOption("Left", "Options", "2");
  // Another store's write is seen at the next check of the file; it may be
  // read again while the file's stamps are within the clock's last tick.
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  const std::uint64_t seen = store.Generation();
  EXPECT_NE(seen, overridden);
  EXPECT_EQ(store.GetOption("Left", "Options", ""), "2");
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  const std::uint64_t settled = store.Generation();
  EXPECT_EQ(store.Generation(), settled);
}

TEST(OptionStoreUnitTest, OverridesAreReadFirstAndNeverWritten) {
  TempDir dir;
  OptionStore store(dir.path() / "Tarnwick.ini");
  store.SaveOption("SortOrderInternal1", "Options", "1");
  store.SetOverride("SortOrderInternal1", "Options", "5");
  EXPECT_EQ(store.GetOption("sortorderinternal1", "options", ""), "5");
  EXPECT_EQ(OptionStore(dir.path() / "Tarnwick.ini").GetOption("SortOrderInternal1", "Options", ""),
            "1");
  store.SetOverride("SortOrderInternal1", "Options", "");
  EXPECT_EQ(store.GetOption("SortOrderInternal1", "Options", ""), "1");
}

}  // namespace
}  // namespace tarnwick::testing

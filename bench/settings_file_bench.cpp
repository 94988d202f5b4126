// How long do a rename settings file's load and save take? A full file (the
// 76 items of a save) is loaded scrambled and every item read, beside pugixml
// parsing the same text unscrambled and finding each item by a walk over the
// elements; it is saved (written, synced, put in place), beside a plain
// fopen/fwrite/fsync/fclose of the same bytes.
#include <benchmark/benchmark.h>
#include <stdio.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "core/rename_settings.h"
#include "core/settings_file_items.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "shell/message_table.h"

namespace {

using namespace tarnwick;

struct Fixture {
  std::filesystem::path folder;
  std::string scrambled_path;
  std::string plain_text;
  std::vector<SettingsItem> items;

  Fixture() {
    folder = std::filesystem::temp_directory_path() /
             ("tarnwick-settings-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    RenameSettings settings;
    settings.chkPrefix = 1;
    settings.txtPrefix = "{{yyyy}}-{{mm}}-{{dd}} Grüße & <more> ";
    settings.txtUsePlaceholder = "{{RegEx[(\\d+)##x$1]}}";
    const OptionStore options(folder / "Tarnwick.ini");
    items = SettingsFileItems(settings, "/home/user/Pictures", options,
                              MessageTable::Get(Language::kEnglish), "23.11.2026 10:15:05");
    scrambled_path = (folder / "bench.twr").string();
    XMLConfiguration file;
    file.Encryption(true);
    file.LoadConfigurationFile(scrambled_path, true);
    for (const SettingsItem& item : items) file.WriteValue(item.section, item.name, item.value);
    file.SaveConfigurationFile();
    plain_text = file.DocumentText();
  }
  ~Fixture() {
    std::error_code error;
    std::filesystem::remove_all(folder, error);
  }
};

Fixture& Shared() {
  static Fixture fixture;
  return fixture;
}

void BM_LoadSettingsFile(benchmark::State& state) {
  Fixture& f = Shared();
  for (auto _ : state) {
    XMLConfiguration file;
    file.Encryption(true);
    file.LoadConfigurationFile(f.scrambled_path, false);
    for (const SettingsItem& item : f.items) {
      benchmark::DoNotOptimize(file.ReadValue(item.section, item.name));
    }
  }
  state.SetLabel(std::to_string(f.items.size()) + " items, " +
                 std::to_string(std::filesystem::file_size(f.scrambled_path)) + " bytes");
}

// Peer: pugixml on the plain text already in memory, each item found by a walk.
void BM_PugixmlPlainParseAndFind(benchmark::State& state) {
  Fixture& f = Shared();
  for (auto _ : state) {
    pugi::xml_document doc;
    doc.load_buffer(f.plain_text.data(), f.plain_text.size());
    const pugi::xml_node root = doc.child("configuration");
    for (const SettingsItem& item : f.items) {
      const pugi::xml_node section =
          root.find_child_by_attribute("section", "name", item.section.c_str());
      benchmark::DoNotOptimize(
          section.find_child_by_attribute("item", "name", item.name.c_str()).attribute("value"));
    }
  }
}

void BM_SaveSettingsFile(benchmark::State& state) {
  Fixture& f = Shared();
  const std::string path = (f.folder / "save.twr").string();
  for (auto _ : state) {
    std::filesystem::remove(path);
    XMLConfiguration file;
    file.Encryption(true);
    file.LoadConfigurationFile(path, true);
    for (const SettingsItem& item : f.items) file.WriteValue(item.section, item.name, item.value);
    file.SaveConfigurationFile();
  }
}

// Peer: the same number of bytes written plainly, synced twice as the save
// does (the new empty file, then the full one).
void BM_RawWriteAndSyncTwice(benchmark::State& state) {
  Fixture& f = Shared();
  const std::string path = (f.folder / "raw.twr").string();
  for (auto _ : state) {
    for (int round = 0; round < 2; ++round) {
      FILE* out = fopen(path.c_str(), "wb");
      fwrite(f.plain_text.data(), 1, f.plain_text.size(), out);
      fflush(out);
      fsync(fileno(out));
      fclose(out);
    }
  }
}

}  // namespace

BENCHMARK(BM_LoadSettingsFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PugixmlPlainParseAndFind)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SaveSettingsFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_RawWriteAndSyncTwice)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();

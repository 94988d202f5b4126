// Arbitrary bytes as a rename settings file, read scrambled and plain: loading
// and applying must not crash or hang, and a value written into a document that
// loaded must read back unchanged.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/clock.h"
#include "base/vb_error.h"
#include "core/rename_settings.h"
#include "core/settings_file.h"
#include "persist/log_undo_env.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/xml_configuration.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"

namespace {

const std::filesystem::path& Folder() {
  static const std::filesystem::path folder = [] {
    // Memory-backed where there is such a folder: each input is a file.
    const std::filesystem::path shm = "/dev/shm";
    auto path =
        (std::filesystem::is_directory(shm) ? shm : std::filesystem::temp_directory_path()) /
        ("tarnwick-settings-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    return path;
  }();
  // The folder goes when the process ends.
  static const struct Remover {
    ~Remover() {
      std::error_code error;
      std::filesystem::remove_all(folder, error);
    }
  } remover;
  return folder;
}

void ReadAndWrite(const std::string& path, bool scrambled) {
  tarnwick::XMLConfiguration config;
  config.Encryption(scrambled);
  try {
    if (!config.LoadConfigurationFile(path, false)) return;
    config.ReadValue("Defaults", "txtPrefix");
    config.WriteValue("Defaults", "fuzz", "<&\"x\"> ü");
    // A document whose root is not "configuration" takes no values.
    const std::string value = config.ReadValue("Defaults", "fuzz");
    if (!value.empty() && value != "<&\"x\"> ü") std::abort();
    if (value.empty() && config.DocumentText().find("<configuration") == 0) std::abort();
  } catch (const tarnwick::VbError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string path = (Folder() / "input.twr").string();
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  ReadAndWrite(path, false);
  ReadAndWrite(path, true);

  // Applying stores the action order in the options file, one synced write
  // per item: the seeds and every 1024th input are applied, the rest only read.
  static int count = 0;
  if (++count > 8 && count % 1024 != 0) return 0;
  tarnwick::OptionStore options(Folder() / "Tarnwick.ini");
  tarnwick::ScriptedInteraction ask;
  ask.SetDefault(tarnwick::QuestionKind::kMessageBox, tarnwick::Answer::kOk);
  tarnwick::FixedClock clock;
  tarnwick::AppState app;
  tarnwick::LogUndoState state;
  const tarnwick::LogUndoEnv env{
      options, ask, tarnwick::MessageTable::Get(tarnwick::Language::kEnglish), clock, app, state};
  tarnwick::RenameSettings settings;
  try {
    tarnwick::ApplySettingsFile(env, path, settings);
  } catch (const tarnwick::VbError&) {
  }
  return 0;
}

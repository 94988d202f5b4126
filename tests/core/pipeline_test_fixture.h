#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/clock.h"
#include "core/pipeline.h"
#include "core/rename_settings.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "placeholders/expansion_context.h"
#include "shell/app_state.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick::testing {

// A log that keeps its lines.
class PipelineLog : public ExpansionLog {
 public:
  void WriteLogFileTool(std::string_view subject, std::string_view text) override {
    lines.emplace_back(std::string(subject), std::string(text));
  }
  std::vector<std::pair<std::string, std::string>> lines;
};

// A list of files in a temporary folder, the renaming controls, options of
// its own, a scripted person to ask and a fixed clock: everything ProcessFile
// needs, as the main window would hand it in.
class PipelineTest : public ::testing::Test {
 protected:
  PipelineTest() : options(dir.path() / "Tarnwick.ini") {
    folder_index = list.AddFolder(dir.str());
    app.CurrentCount = 1;
  }

  // Adds a row for `name` (and the file itself, unless `create` is false);
  // returns its index.
  std::size_t AddRow(const std::string& name, bool create = true) {
    if (create) dir.WriteFile(name, "x");
    FileRow row;
    row.name = name;
    row.folder = folder_index;
    list.Append(row);
    return list.size() - 1;
  }

  PipelineEnv Env() {
    return PipelineEnv{app,         settings, list,  options, interaction,
                       messages,    clock,    *media, &log,    list.size()};
  }

  // ProcessFile for the row `row`, starting from its present name.
  ProcessFileResult Process(std::size_t row) {
    name = list.Text(row, file_column::kName);
    return ProcessFile(Env(), name, row, dir.str());
  }

  // ProcessFile for a new row of `file_name`; the name that comes out.
  std::string Rename(const std::string& file_name) {
    const ProcessFileResult result = Process(AddRow(file_name));
    EXPECT_FALSE(result.error) << result.error->description();
    return result.name;
  }

  void SetOption(std::string_view key, std::string_view value) {
    options.SaveOption(key, "Options", value);
  }

  // The titles of the questions asked so far.
  std::vector<std::string> Asked() const {
    std::vector<std::string> titles;
    for (const AnsweredQuestion& q : interaction.asked()) titles.push_back(q.title);
    return titles;
  }

  TempDir dir;
  OptionStore options;
  AppState app;
  RenameSettings settings;
  FileList list;
  ScriptedInteraction interaction;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  FixedClock clock{{2004, 3, 8, 10, 15, 5}};
  const MediaInfoProvider* media = &MediaInfoProvider::None();
  PipelineLog log;
  std::uint32_t folder_index = 0;
  std::string name;
};

}  // namespace tarnwick::testing

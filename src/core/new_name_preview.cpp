// The "New name" column: every selected row's name from the controls.
#include "core/new_name_preview.h"

#include <exception>
#include <filesystem>
#include <system_error>

#include "core/numbering.h"
#include "core/sample.h"
#include "filelist/file_list.h"
#include "shell/app_state.h"

namespace tarnwick {
namespace {

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (path.empty() || path.back() != '/') path += '/';
  path += name;
  return path;
}

bool ExistsOnDisk(const std::string& path) {
  std::error_code error;
  return std::filesystem::symlink_status(path, error).type() !=
         std::filesystem::file_type::not_found;
}

}  // namespace

void NewNamePreview::Start(const PipelineEnv& env) {
  pending_ = env.list.SelectedRows();
  next_ = 0;
  rows_.clear();
  rows_.reserve(pending_.size());
  by_row_.clear();
  targets_.clear();
  collisions_ = 0;
  counter_ = Counter{};
  try {
    counter_.count = StartNumberValue(env.settings);
  } catch (const std::exception&) {
    counter_.count = 0;
  }
}

bool NewNamePreview::Step(const PipelineEnv& env, std::size_t count) {
  AppState& app = env.app;
  const Counter saved{app.CurrentCount, app.SameNumberCount, app.LastCounterFolder,
                      app.LastCounterDate};
  app.CurrentCount = counter_.count;
  app.SameNumberCount = counter_.same_number;
  app.LastCounterFolder = counter_.last_folder;
  app.LastCounterDate = counter_.last_date;
  for (std::size_t n = 0; n < count && !done(); ++n) {
    const std::size_t row = pending_[next_++];
    by_row_[row] = rows_.size();
    rows_.push_back(ComputeOne(env, row));
    MarkCollisions(env, rows_.size() - 1);
  }
  counter_ =
      Counter{app.CurrentCount, app.SameNumberCount, app.LastCounterFolder, app.LastCounterDate};
  app.CurrentCount = saved.count;
  app.SameNumberCount = saved.same_number;
  app.LastCounterFolder = saved.last_folder;
  app.LastCounterDate = saved.last_date;
  return done();
}

NewNameRow NewNamePreview::ComputeOne(const PipelineEnv& env, std::size_t row) {
  NewNameRow entry;
  entry.row = row;
  const std::string folder(env.list.Folder(row));
  try {
    ResetCounterForRow(env.app, env.settings, env.options, folder,
                       env.list.Text(row, file_column::kDate));
    std::optional<Sample> name = ComputeRowName(env, row, folder);
    if (!name || name->text.empty()) {
      entry.failed = true;
    } else {
      entry.name = std::move(name->text);
    }
    NextNumberStep(env.app, env.settings);
  } catch (const std::exception&) {
    entry.failed = true;
  }
  return entry;
}

void NewNamePreview::MarkCollisions(const PipelineEnv& env, std::size_t entry) {
  NewNameRow& named = rows_[entry];
  if (named.failed) return;
  const std::string folder(env.list.Folder(named.row));
  const std::string target = JoinPath(folder, named.name);
  const auto [first, inserted] = targets_.emplace(target, entry);
  if (!inserted) {
    MarkCollision(first->second);
    MarkCollision(entry);
    return;
  }
  const std::string& present = env.list.rows()[named.row].name;
  if (named.name != present && ExistsOnDisk(target)) MarkCollision(entry);
}

void NewNamePreview::MarkCollision(std::size_t entry) {
  if (rows_[entry].collides) return;
  rows_[entry].collides = true;
  ++collisions_;
}

const NewNameRow* NewNamePreview::Find(std::size_t row) const {
  const auto found = by_row_.find(row);
  return found == by_row_.end() ? nullptr : &rows_[found->second];
}

}  // namespace tarnwick

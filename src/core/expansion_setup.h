#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/pipeline_env.h"
#include "placeholders/expansion_context.h"

namespace tarnwick {

// The one place where the placeholder engine's context is put together from
// the main window's state, the renaming controls, a row of the list and the
// services. Every expansion of the rename engine goes through it, so a change
// of the engine's context changes only this file.
//
// `state` receives the placeholder state for the call; RowExpander moves the
// main window's letter counter and random pool in and out of it.
ExpansionContext MakeExpansionContext(const PipelineEnv& env, std::size_t row,
                                      PlaceholderState& state);

// Expansions for one row, built once per file: the row's texts, its date text
// (column 3) and its absolute path are taken at construction. Each expansion
// sees the counter and the placeholder state of `env.app` as they are at that
// moment, and leaves the state changed by its tokens there.
class RowExpander {
 public:
  // `folder` is the row's folder as the caller has it; the file's path is
  // that folder and the row's name, in absolute form.
  RowExpander(const PipelineEnv& env, std::size_t row, std::string_view folder);
  RowExpander(const RowExpander&) = delete;
  RowExpander& operator=(const RowExpander&) = delete;

  // `ConvertExpressionMultiple(text, file date, file path)`.
  std::string Expand(std::string_view text);
  // The same with another date text (the manual dialogue passes "dummy").
  std::string Expand(std::string_view text, std::string_view file_date);
  // The expansion, or `text` as it stands when the expansion is empty.
  std::string ExpandOrKeep(std::string_view text);

  const std::string& row_name() const { return context_.row.name; }
  const std::string& file_date() const { return file_date_; }
  const std::string& file_path() const { return file_path_; }

 private:
  const PipelineEnv& env_;
  PlaceholderState state_;
  ExpansionContext context_;
  std::string file_date_;
  std::string file_path_;
};

}  // namespace tarnwick

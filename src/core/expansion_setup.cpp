// The placeholder engine's context for a row of the list.
#include "core/expansion_setup.h"

#include <utility>

#include "base/path_text.h"
#include "core/rename_settings.h"
#include "filelist/file_list.h"
#include "persist/option_store.h"
#include "placeholders/engine.h"
#include "shell/app_state.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

// Lends the main window's placeholder state to one expansion: moved in at
// construction and back when it ends, also when it ends by an exception.
class StateLoan {
 public:
  StateLoan(AppState& app, PlaceholderState& state) : app_(app), state_(state) { Swap(); }
  ~StateLoan() { Swap(); }
  StateLoan(const StateLoan&) = delete;
  StateLoan& operator=(const StateLoan&) = delete;

 private:
  void Swap() {
    std::swap(app_.LastCharCount, state_.last_char_count);
    std::swap(app_.CharCounterText, state_.char_counter_text);
    std::swap(app_.random_pool, state_.random_pool);
  }

  AppState& app_;
  PlaceholderState& state_;
};

}  // namespace

ExpansionContext MakeExpansionContext(const PipelineEnv& env, std::size_t row,
                                      PlaceholderState& state) {
  ExpansionContext context;
  context.options = &env.options;
  const MessageTable* messages = &env.messages;
  context.message_text = [messages](int id) { return std::string(messages->Text(id)); };
  context.clock = &env.clock;
  context.log = env.log;
  context.media = &env.media;
  context.state = &state;
  context.current_count = env.app.CurrentCount;
  context.run_active = env.app.run_active;
  context.row.folder = env.list.Text(row, file_column::kPath);
  context.row.name = env.list.Text(row, file_column::kName);
  context.row.type_text = env.list.Text(row, file_column::kType);
  context.row.folder_name = env.list.Text(row, file_column::kFolderName);
  context.numbering.limiter = env.settings.txtLimiter;
  context.numbering.start_number = env.settings.txtStartNumber;
  context.numbering.step = env.settings.txtStep;
  context.numbering.selected_count = env.selected_count;
  return context;
}

RowExpander::RowExpander(const PipelineEnv& env, std::size_t row, std::string_view folder)
    : env_(env),
      context_(MakeExpansionContext(env, row, state_)),
      file_date_(env.list.Text(row, file_column::kDate)),
      file_path_(AbsolutePathName(JoinPath(folder, context_.row.name), folder)) {}

std::string RowExpander::Expand(std::string_view text) { return Expand(text, file_date_); }

std::string RowExpander::Expand(std::string_view text, std::string_view file_date) {
  // The counter and the run flag may have moved since the last expansion.
  context_.current_count = env_.app.CurrentCount;
  context_.run_active = env_.app.run_active;
  StateLoan loan(env_.app, state_);
  return ConvertExpressionMultiple(context_, text, file_date, file_path_);
}

std::string RowExpander::ExpandOrKeep(std::string_view text) {
  std::string expanded = Expand(text);
  if (expanded.empty()) return std::string(text);
  return expanded;
}

}  // namespace tarnwick

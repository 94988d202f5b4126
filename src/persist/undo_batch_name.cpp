#include <string>

#include "persist/log_date_text.h"
#include "persist/log_options.h"
#include "persist/log_undo_state.h"
#include "persist/option_store.h"
#include "persist/undo_batch.h"
#include "platform/files.h"
#include "platform/temp_files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kBatchExtension = ".bat";

bool IsIllegalInName(unsigned char c) {
  if (c >= 1 && c <= 31) return true;
  if (c == 127) return true;
  static constexpr std::string_view kIllegal = "/\\:*?\"<>|";
  return kIllegal.find(static_cast<char>(c)) != std::string_view::npos;
}

// The clean-up of illegal characters that file names get: each becomes the
// text of `IllegalCharReplacer`, or goes when `IllegalCharReplacerActive`
// is "0".
std::string WithoutIllegalChars(std::string_view text, const OptionStore& options) {
  const bool replace = !OptionIsZero(options, "IllegalCharReplacerActive", "0");
  const std::string replacer = replace ? ReadOption(options, "IllegalCharReplacer", "") : "";
  std::string out;
  for (const char c : text) {
    if (IsIllegalInName(static_cast<unsigned char>(c))) {
      out += replacer;
      continue;
    }
    out += c;
  }
  return out;
}

// "15.11.2026 20:11:00" -> "_15-11-2026_20-11-00".
std::string TimeStamp(std::string_view now, const OptionStore& options) {
  std::string stamp = "_";
  for (const char c : now) {
    if (c == ':' || c == '.' || c == '\\' || c == '/') {
      stamp += '-';
    } else if (c == ' ') {
      stamp += '_';
    } else {
      stamp += c;
    }
  }
  return WithoutIllegalChars(stamp, options);
}

std::string AskedName(const LogUndoEnv& env, const std::string& base_name) {
  InputRequest request;
  request.title = env.messages.Text("undo.title_batch_name");
  request.prompt = env.messages.Text("undo.enter_batch_name");
  request.preset = base_name + env.state.UndoTimeStamp;
  const std::optional<std::string> answer = env.interaction.AskInput(request);
  // Kept: an empty answer drops the stamp as well.
  if (!answer || answer->empty()) return base_name + std::string(kBatchExtension);
  return *answer + std::string(kBatchExtension);
}

// A new temporary file holding the old batch; empty when none was made.
std::string SaveOldBatch(const std::string& batch) {
  if (!FileExists(batch)) return "";
  const FileResult<std::filesystem::path> temp = CreateUniqueTempFile(TempFolder(), "TWRN");
  if (!temp.ok()) return "";
  if (!CopyFile(batch, temp.value(), true).ok()) return "";
  return temp.value().string();
}

}  // namespace

void UndoBatch::PrepareUndoBatchName() {
  LogUndoState& state = env_.state;
  const OptionStore& options = env_.options;
  state.UndoTemporaryCopy.clear();
  state.UndoBatchStarted = false;
  const bool appending = OptionIsZero(options, "OverwriteUndoBatch", "0");
  if (appending && OptionIsOne(options, "WriteUndoBatchInSingleFiles", "0")) {
    state.UndoTimeStamp = TimeStamp(PresentDateTimeText(env_.clock, options), options);
  }
  const std::string base_name = ReadOption(options, "BasisNameUndoBatch", "UndoBatch");
  if (OptionIsOne(options, "IndividualUndoBatchName", "0")) {
    state.UndoBatchName = AskedName(env_, base_name);
  } else {
    state.UndoBatchName = base_name + state.UndoTimeStamp + std::string(kBatchExtension);
  }
  if (appending) state.UndoTemporaryCopy = SaveOldBatch(UndoBatchPath());
}

}  // namespace tarnwick

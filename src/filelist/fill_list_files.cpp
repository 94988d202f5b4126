// `FillListFiles`: a fill of the list with the window's share around it.
#include "filelist/list_loader.h"
#include "persist/option_store.h"
#include "shell/app_state.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kOptions = "Options";

// Kept: the first fill with subfolders switches the icons off for good.
void SwitchIconsOff(FileListContext& context) {
  if (context.options.GetOption("Icons", kOptions, "1") != "1") return;
  MessageBoxRequest box;
  box.title = context.messages.Text("options.title_information");
  box.text = context.messages.Text("filelist.icons_deactivated");
  box.icon = MessageIcon::kInformation;
  context.interaction.ShowMessage(box);
  context.options.SaveOption("Icons", kOptions, "0");
}

}  // namespace

void FileListLoader::FillListFiles(FileList& list, const FillRequest& request) {
  Interaction& ui = context_.interaction;
  TakeViewFlags(context_.options, context_.state);
  const std::string_view please_wait = context_.messages.Text("run.please_wait");
  ui.ShowStatus(StatusArea::kStatusLine, please_wait);
  ui.ShowStatus(StatusArea::kSampleFrame, please_wait);
  if (request.include_subfolders) SwitchIconsOff(context_);
  ui.ShowStatus(StatusArea::kStatusLine, context_.messages.Text("filelist.wait_reading_directory"));
  ui.ShowProgress(0, 1);
  ui.SetControlsEnabled(false, false);
  context_.state.run_active = true;

  FillListView(list, request);

  ui.SetControlsEnabled(true, false);
  context_.state.run_active = false;
  ui.ShowStatus(StatusArea::kStatusLine, please_wait);
  ui.ShowStatus(StatusArea::kSampleFrame, context_.messages.Text("sample.frame_caption"));
  if (!list.empty()) list.Select(0);
  ui.HideProgress();
}

}  // namespace tarnwick

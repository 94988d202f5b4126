#pragma once

#include <string>

#include "tools/export_choices.h"
#include "tools/tool_job.h"

namespace tarnwick {

struct TextExportResult {
  ToolJobResult result;
  // The document, each line ended by CR LF.
  std::string text;
  std::size_t files = 0;
  std::size_t folders = 0;
  // "Create textfile - 5 files in 00:00:01", the report window's title.
  std::string title;
};

// The text export of the list (`tmrLoadContainer`): a header of the chosen
// columns' headings, one line per file, and the closing lines, the columns
// joined by the chosen delimiter. The rows are the selected ones, or all;
// with `include_subfolders` the list's folder is read anew with all its
// subfolders (through env.loader) and each folder's files stand under a
// "[Folder]" line. Lines are written to a temporary file as they are made
// and read back at the end. Esc keeps the lines made so far, after a
// message. Names are written by EscapedLineText.
TextExportResult ExportListText(const RenameRunEnv& env, const TextExportChoices& choices);

// The XML export of the list (`tmrLoadContainerXML`) to `path`: an
// XMLConfiguration document in UTF-8 with the head sections and one section
// "Item<n>" per file holding only the chosen items, values by XmlValueText.
// Saved in one step at the end, over any file at `path` (the old one stays
// whole should the save fail); Esc saves the sections made so far.
ToolJobResult ExportListXml(const RenameRunEnv& env, const XmlExportChoices& choices,
                            const std::string& path);

}  // namespace tarnwick

// The XML export of the list.
#include "base/clock.h"
#include "base/vb_date_text.h"
#include "base/vb_error.h"
#include "core/product_info.h"
#include "filelist/file_list.h"
#include "persist/xml_configuration_writer.h"
#include "shell/interaction.h"
#include "shell/message_table.h"
#include "tools/export_text.h"
#include "tools/list_export.h"
#include "tools/list_export_rows.h"

namespace tarnwick {
namespace {

// The item names of the eight columns, in column order.
constexpr std::array<std::string_view, 8> kItemNames = {
    "Name", "Size", "Type", "LastModified", "Attribut", "Path", "Mediainfo", "Foldername"};

std::vector<std::size_t> ExportedRows(const FileList& list, bool only_selected) {
  if (only_selected) return list.SelectedRows();
  std::vector<std::size_t> rows(list.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = i;
  return rows;
}

// A head section of one item.
void WriteHeadItem(XmlConfigurationWriter& document, std::string_view section,
                   std::string_view item, std::string_view value) {
  const XmlConfigurationWriter::Item only{item, value};
  document.AddSection(section, {&only, 1});
}

void WriteHead(XmlConfigurationWriter& document, const Clock& clock) {
  const vb::DateTime now = clock.Now();
  WriteHeadItem(document, "Tarnwick", "Version", kProductVersion);
  WriteHeadItem(document, "Copyright", "Copyright", kMakerCopyright);
  WriteHeadItem(document, "Internet", "Internet", kMakerAddress);
  WriteHeadItem(document, "FileLastModified", "FileLastModified",
                vb::FormatDate(now, "Short Date") + " " + vb::FormatDate(now, "Long Time"));
}

void WriteItem(XmlConfigurationWriter& document, std::size_t number, const ExportColumns& columns,
               const std::vector<std::string>& cells, bool convert) {
  std::vector<std::string> values;
  std::vector<XmlConfigurationWriter::Item> items;
  values.reserve(cells.size());
  std::size_t cell = 0;
  for (std::size_t column = 0; column < columns.chosen.size(); ++column) {
    if (!columns.chosen[column]) continue;
    values.push_back(XmlValueText(cells[cell++], convert));
    items.emplace_back(kItemNames[column], values.back());
  }
  document.AddSection("Item" + std::to_string(number), items);
}

}  // namespace

ToolJobResult ExportListXml(const RenameRunEnv& env, const XmlExportChoices& choices,
                            const std::string& path) {
  ToolJob job(env, ExportedRows(env.list, choices.only_selected));
  env.interaction.ShowStatus(StatusArea::kStatusLine,
                             std::string(env.messages.Text("filelist.wait_reading_directory")));
  XmlConfigurationWriter document;
  WriteHead(document, env.clock);
  ExportCells cells(env.list, choices.columns, env.messages);
  const std::string total = std::to_string(job.total());
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    const std::size_t row = job.rows()[i];
    env.interaction.ShowStatus(
        StatusArea::kStatusLine,
        std::string(env.messages.Text("export.progressing_file")) + " [" + std::to_string(i + 1) +
            "/" + total + "]: '" + env.list.Text(row, file_column::kName) + "'");
    WriteItem(document, i + 1, choices.columns, cells.Cells(row), choices.convert_invalid);
    job.Done();
    job.EndFile(i);
  }
  try {
    document.Save(path);
  } catch (const VbError& error) {
    const std::string what = path + ": " + std::string(error.description());
    job.Failed(path, std::string(error.description()));
    job.LogTool(env.messages.Text("export.xml_save_title"), what);
    env.interaction.ShowMessage({std::string(env.messages.Text("run.title_error")), what,
                                 Buttons::kOk, MessageIcon::kCritical, Topic::kNotice});
  }
  if (job.result().cancelled) {
    env.interaction.ShowMessage({std::string(env.messages.Text("export.canceled_title")),
                                 std::string(env.messages.Text("export.canceled_text")),
                                 Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
  }
  job.LogTool(env.messages.Text("export.xml_save_title"),
              path + " (" + std::to_string(job.result().done) + ")");
  job.Finish(false);
  return job.result();
}

}  // namespace tarnwick

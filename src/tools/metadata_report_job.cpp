#include "tools/metadata_report_job.h"

#include "filelist/file_list.h"
#include "filelist/file_size_text.h"
#include "media/exif_reader.h"
#include "media/exif_report.h"
#include "media/mp3_report.h"
#include "persist/log_append.h"
#include "platform/files.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {

ToolJobResult SaveMetadataReport(const RenameRunEnv& env, MetadataReport kind,
                                 const std::string& path) {
  ToolJob job(env);
  ExifReader exif;
  const auto message = [&env](int id) { return std::string(env.messages.Text(id)); };
  std::string text = (kind == MetadataReport::kExif ? ExifReportHeader(env.messages)
                                                    : MP3ReportHeader(message)) +
                     "\r\n";
  for (std::size_t i = 0; i < job.total(); ++i) {
    if (!job.BeginFile(i)) break;
    const std::size_t row = job.rows()[i];
    const std::string file = env.list.Path(row);
    const auto size = FileSize64(file);
    const ReportRow report_row{env.list.Text(row, file_column::kName),
                               FormatFileSize(size.ok() ? size.value() : 0),
                               std::string(env.list.Folder(row))};
    text += (kind == MetadataReport::kExif ? ExifReportLine(exif, report_row)
                                           : MP3ReportLine(report_row)) +
            "\r\n";
    job.Done();
    job.EndFile(i);
  }
  const FileStatus written = ReplaceFileWith(path, text);
  if (!written.ok()) {
    const std::string what = std::to_string(written.number) + ": " + written.description;
    job.Failed(path, what);
    env.interaction.ShowMessage({std::string(env.messages.Text("run.title_error")),
                                 path + "\r\n" + what, Buttons::kOk, MessageIcon::kCritical,
                                 Topic::kNotice});
  }
  job.LogTool(kind == MetadataReport::kExif ? "mnuSaveJPEGEXIFInfo" : "mnuSaveMP3InfosToFile",
              path);
  job.Finish(false);
  return job.result();
}

}  // namespace tarnwick

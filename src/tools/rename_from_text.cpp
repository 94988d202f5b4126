// Rename from a text file: reading, checking, and the run of its names.
#include "tools/rename_from_text.h"

#include <fstream>
#include <iterator>

#include "base/code_page.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/utf8.h"
#include "base/vb_format.h"
#include "filelist/file_list.h"
#include "shell/interaction.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::string_view kCrLf = "\r\n";

bool ValidUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const utf8::Char next = utf8::DecodeAt(bytes, at);
    if (!next.valid) return false;
    at += next.size;
  }
  return true;
}

std::string FromWindows1252(std::string_view bytes) {
  const SingleByteCodePage& code_page = SingleByteCodePage::Windows1252();
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += code_page.TextOf(static_cast<unsigned char>(byte));
  return text;
}

// Split at `separator`, keeping empty pieces; an empty text has no rows.
std::vector<std::string> SplitRows(std::string_view text, std::string_view separator) {
  std::vector<std::string> rows;
  if (text.empty()) return rows;
  std::size_t from = 0;
  while (true) {
    const std::size_t end = text.find(separator, from);
    rows.emplace_back(text.substr(from, end == std::string_view::npos ? end : end - from));
    if (end == std::string_view::npos) return rows;
    from = end + separator.size();
  }
}

bool Refused(char32_t code) {
  return code < 32 || code == U'\\' || code == U'/' || code == U':' || code == U'*' ||
         code == U'?' || code == U'"' || code == U'<' || code == U'>' || code == U'|';
}

}  // namespace

NameTextFile ReadNameTextFile(const std::string& path, const MessageTable& messages) {
  std::ifstream in(path, std::ios::binary);
  std::string bytes;
  if (in) bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  if (!in.is_open() || in.bad()) {
    NameTextFile file;
    file.error = std::string(messages.Text("renamefile.cannot_read")) + "\r\n" + path;
    return file;
  }
  NameTextFile file = NameTextFromBytes(bytes, messages);
  if (!file.error.empty()) file.error += "\r\n" + path;
  return file;
}

NameTextFile NameTextFromBytes(std::string_view bytes, const MessageTable& messages) {
  NameTextFile file;
  file.size = bytes.size();
  // A zero byte is in no text a person types: a picture or a program was
  // chosen by mistake.
  if (bytes.find('\0') != std::string_view::npos) {
    file.error = std::string(messages.Text("renamefile.not_a_text_file"));
    return file;
  }
  std::string_view view(bytes);
  if (view.starts_with("\xEF\xBB\xBF")) view.remove_prefix(3);
  file.utf8 = ValidUtf8(view);
  file.text = file.utf8 ? std::string(view) : FromWindows1252(view);
  file.lf_only = file.text.find(kCrLf) == std::string::npos &&
                 file.text.find('\n') != std::string::npos;
  if (!file.lf_only) {
    file.rows = SplitRows(file.text, kCrLf);
    return file;
  }
  std::string_view rows(file.text);
  if (rows.ends_with('\n')) rows.remove_suffix(1);
  file.rows = SplitRows(rows, "\n");
  if (file.rows.empty() && !file.text.empty()) file.rows.emplace_back();  // one empty row
  return file;
}

std::string NameTextReport(const std::vector<std::string>& rows, const MessageTable& messages) {
  const std::string row_word(messages.Text("renamefile.report.row"));
  const std::string char_word(messages.Text("renamefile.report.char"));
  std::string report;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const std::string& name = rows[row];
    std::size_t position = 0;
    for (std::size_t at = 0; at < name.size();) {
      ++position;
      const utf8::Char next = utf8::DecodeAt(name, at);
      const std::size_t length = next.size;
      const char32_t code = next.code_point;
      if (Refused(code)) {
        report += row_word + " " + std::to_string(row) + ", " + char_word + " " +
                  std::to_string(position) + ":\t-> " + name.substr(at, length) +
                  " [ASCII: " + std::to_string(static_cast<std::uint32_t>(code)) + "]\r\n";
      }
      at += length;
    }
  }
  return report;
}

std::int64_t CountNameTextWords(const NameTextFile& file) {
  std::string text = vb::Replace(file.text, kCrLf, " ");
  if (file.lf_only) {
    // The LF that ends the last row of a Linux text file ends no word either.
    if (text.ends_with('\n')) text.pop_back();
    text = vb::Replace(text, "\n", " ");
  }
  while (text.find("  ") != std::string::npos) text = vb::Replace(text, "  ", " ");
  if (text.empty()) return 0;
  return static_cast<std::int64_t>(SplitRows(text, " ").size());
}

NameTextCheck CheckNameTextFile(const NameTextFile& file, std::size_t selected,
                                const MessageTable& messages) {
  NameTextCheck check;
  if (!file.error.empty()) {
    check.title = std::string(messages.Text("renamefile.title"));
    check.message = file.error;
    return check;
  }
  const std::string report = NameTextReport(file.rows, messages);
  if (!report.empty()) {
    check.title = std::string(messages.Text("renamefile.failed_validation_title"));
    check.message = std::string(messages.Text("renamefile.invalid_chars_found")) + "\r\n\r\n" +
                    report + "\r\n\r\n" +
                    std::string(messages.Text("renamefile.correct_and_reload"));
    return check;
  }
  if (file.rows.size() != selected) {
    check.title = std::string(messages.Text("renamefile.title"));
    check.message = std::string(messages.Text("renamefile.count_mismatch")) + "\r\n\r\n" +
                    std::to_string(selected) + " / " + std::to_string(file.rows.size());
    return check;
  }
  check.ok = true;
  return check;
}

std::vector<std::string> NamesForSelectedRows(const NameTextFile& file, const FileList& list) {
  std::vector<std::string> names;
  const std::vector<std::size_t> rows = list.SelectedRows();
  for (std::size_t k = 0; k < rows.size() && k < file.rows.size(); ++k) {
    std::string name = file.rows[k];
    const std::string old_extension = ExtensionName(list.Text(rows[k], file_column::kName));
    // A name with a dot counts as having an extension.
    if (name.find('.') == std::string::npos && !old_extension.empty()) {
      name += "." + old_extension;
    }
    names.push_back(std::move(name));
  }
  return names;
}

bool ConfirmRenameFromText(Interaction& interaction, const MessageTable& messages) {
  MessageBoxRequest box;
  box.title = std::string(messages.Text("renamefile.confirm_title"));
  box.text = std::string(messages.Text("renamefile.confirm_text"));
  box.buttons = Buttons::kYesNo;
  box.icon = MessageIcon::kQuestion;
  box.topic = Topic::kOther;
  return interaction.ShowMessage(box) == Answer::kYes;
}

RenameRunResult RenameFromTextFile(const RenameRunEnv& env, const NameTextFile& file) {
  return RenameWithGivenNames(env, NamesForSelectedRows(file, env.list));
}

}  // namespace tarnwick

#include <langinfo.h>

#include <clocale>
#include <filesystem>
#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "persist/default_paths.h"
#include "persist/option_store.h"
#include "platform/system_info.h"
#include "platform/user_folders.h"
#include "startup/startup.h"

namespace tarnwick {
namespace {

constexpr std::string_view kFallbackDateFormat = "dd.mm.yyyy";

// The locale's short date (nl_langinfo D_FMT) in the letters of `DateFormat`:
// "%d/%m/%Y" -> "dd/mm/yyyy". Unknown conversions are left out.
std::string SystemShortDate() {
  std::setlocale(LC_TIME, "");
  const char* format = ::nl_langinfo(D_FMT);
  std::string result;
  for (const char* c = format; c != nullptr && *c != '\0'; ++c) {
    if (*c != '%') {
      result += *c;
      continue;
    }
    if (*++c == '\0') break;
    switch (*c) {
      case 'd':
        result += "dd";
        break;
      case 'e':
        result += "d";
        break;
      case 'm':
        result += "mm";
        break;
      case 'y':
        result += "yy";
        break;
      case 'Y':
        result += "yyyy";
        break;
      case 'D':
        result += "mm/dd/yy";
        break;
      case 'F':
        result += "yyyy-mm-dd";
        break;
      default:
        break;
    }
  }
  std::setlocale(LC_TIME, "C");
  return vb::LCase(result);
}

}  // namespace

StartupInput MachineStartupInput(std::vector<std::string> arguments) {
  StartupInput input;
  input.arguments = std::move(arguments);
  std::error_code error;
  input.working_folder = std::filesystem::current_path(error).string();
  input.data_base_folder = UserDataBaseFolder();
  input.data_fallback_folder = UserDataFallbackFolder();
  input.system_short_date = SystemShortDate();
  input.default_root = DefaultRootFolder().string();
  input.program_folder = ProgramFilesFolder().string();
  return input;
}

void CheckDateFormat(OptionStore& options, std::string_view system_short_date) {
  const std::string format =
      vb::LCase(options.GetOption("DateFormat", "Options", system_short_date));
  for (const std::string_view known : {"dd.mm.yyyy", "yyyy.mm.dd", "mm.dd.yyyy"}) {
    if (format == known) return;
  }
  options.SaveOption("DateFormat", "Options", kFallbackDateFormat);
}

std::string CompactPath(std::string_view path, int width) {
  if (width < 5 || vb::Len(path) <= width) return std::string(path);
  const std::string last = LastPathElement(path);
  const std::vector<std::string> elements = PathElements(path);
  std::string head = elements.size() > 1 ? elements[0] + "/" : "";
  if (head == "/" && elements.size() > 2) head = "/" + elements[1] + "/";
  std::string compact = head + ".../" + last;
  if (vb::Len(compact) <= width) return compact;
  compact = ".../" + last;
  if (vb::Len(compact) <= width) return compact;
  return "..." + vb::Right(last, width - 3);
}

}  // namespace tarnwick

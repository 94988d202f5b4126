#include "run_args.h"

#include <string_view>
#include <vector>

namespace tarnwick::cli {
namespace {

std::optional<int> ModeNumber(const std::string& word) {
  if (word == "rename") return 0;
  if (word == "copy") return 1;
  if (word == "test") return 2;
  return std::nullopt;
}

using Sets = std::vector<std::pair<std::string, std::string>>;

// A named flag: how many values it takes, and the controls it sets. "$1"
// .. "$3" stand for its values.
struct NamedFlag {
  std::string_view flag;
  int values;
  std::vector<std::pair<std::string_view, std::string_view>> sets;
};

const std::vector<NamedFlag>& NamedFlags() {
  static const std::vector<NamedFlag> flags = {
      {"--prefix", 1, {{"chkPrefix", "1"}, {"txtPrefix", "$1"}}},
      {"--postfix", 1, {{"chkPostfix", "1"}, {"txtPostfix", "$1"}}},
      {"--name", 1, {{"chkCompleteName", "1"}, {"txtCompleteName", "$1"}}},
      {"--ext", 1, {{"chkExtension", "1"}, {"txtExtension", "$1"}}},
      {"--replace",
       2,
       {{"chkReplace", "1"}, {"txtSearchString", "$1"}, {"txtReplaceString", "$2"}}},
      {"--cut-left", 1, {{"chkCutLeft", "1"}, {"txtLeftCut", "$1"}}},
      {"--cut-right", 1, {{"chkCutRight", "1"}, {"txtRightCut", "$1"}}},
      {"--range",
       3,
       {{"chkCutMiddle", "1"},
        {"txtFromChar", "$1"},
        {"txtToChar", "$2"},
        {"txtReplaceChars", "$3"}}},
      {"--pattern", 1, {{"chkOnlyUsePatterns", "1"}, {"txtUsePlaceholder", "$1"}}},
      {"--number", 1, {{"chkNumbers", "1"}, {"txtStartNumber", "$1"}}},
      {"--step", 1, {{"txtStep", "$1"}}},
  };
  return flags;
}

std::optional<int> PlaceNumber(const std::string& word) {
  const std::string_view places[] = {"before-prefix", "after-prefix", "before-postfix",
                                     "after-postfix"};
  for (int i = 0; i < 4; ++i) {
    if (word == places[i]) return i;
  }
  return std::nullopt;
}

// Takes a named flag at args[i]; nothing when args[i] is none; an error text
// when its values are missing.
std::optional<std::optional<std::string>> TakeNamedFlag(std::span<const std::string> args,
                                                        std::size_t& i, Sets& sets) {
  for (const NamedFlag& named : NamedFlags()) {
    if (args[i] != named.flag) continue;
    if (i + named.values >= args.size()) {
      return std::optional<std::string>(std::string(named.flag) + " needs " +
                                        std::to_string(named.values) + " value(s)");
    }
    for (const auto& [control, value] : named.sets) {
      std::string text(value);
      if (text.size() == 2 && text[0] == '$') text = args[i + (text[1] - '0')];
      sets.emplace_back(control, text);
    }
    i += static_cast<std::size_t>(named.values);
    return std::optional<std::string>();
  }
  if (args[i] != "--place") return std::nullopt;
  if (i + 1 >= args.size()) return std::optional<std::string>("--place needs a value");
  const std::optional<int> place = PlaceNumber(args[++i]);
  if (!place) {
    return std::optional<std::string>(
        "--place takes before-prefix, after-prefix, before-postfix or after-postfix");
  }
  sets.emplace_back("optNumber", std::to_string(*place));
  return std::optional<std::string>();
}

}  // namespace

std::optional<std::string> ParseRunArgs(std::span<const std::string> args, bool preview,
                                        RunArgs& out) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool has_value = i + 1 < args.size();
    if (auto named = TakeNamedFlag(args, i, out.sets)) {
      if (*named) return *named;
    } else if (arg == "--yes") {
      out.yes = true;
    } else if (arg == "--json") {
      if (!preview) return "--json is for preview";
      out.json = true;
    } else if (arg == "--controls") {
      out.list_controls = true;
    } else if (arg == "--subfolders") {
      out.subfolders = true;
    } else if (arg == "--folder" || arg == "--select" || arg == "--set" || arg == "--mode") {
      if (!has_value) return arg + " needs a value";
      const std::string& value = args[++i];
      if (arg == "--folder") {
        out.folder = value;
      } else if (arg == "--select") {
        out.select = value;
      } else if (arg == "--set") {
        const std::size_t equals = value.find('=');
        if (equals == std::string::npos || equals == 0) {
          return "--set takes NAME=VALUE, not '" + value + "'";
        }
        out.sets.emplace_back(value.substr(0, equals), value.substr(equals + 1));
      } else {
        if (preview) return "preview is always a test; --mode does not apply";
        out.mode = ModeNumber(value);
        if (!out.mode) return "--mode takes rename, copy or test, not '" + value + "'";
      }
    } else if (arg.starts_with("--")) {
      return "unknown option '" + arg + "'";
    } else if (!out.settings_file.empty()) {
      return "only one SETTINGS file is expected";
    } else {
      out.settings_file = arg;
    }
  }
  if (preview) out.mode = 2;
  return std::nullopt;
}

}  // namespace tarnwick::cli

#include <string>

#include "shell/interaction_defaults.h"

namespace tarnwick {
namespace {

void AddLine(std::string& help, std::string_view what, std::string_view answer) {
  help += "  ";
  help += what;
  help += "\n      -> ";
  help += answer;
  help += '\n';
}

}  // namespace

std::string DefaultAnswersHelp() {
  std::string help =
      "Questions are not asked unless --interactive is given and both standard input\n"
      "and standard error are a terminal. Each one gets its default answer:\n";
  AddLine(help, "Start renaming: rename, test or cancel?",
          "Rename (Test when the command asked for a test)");
  AddLine(help, "The file exists already: another name, skip or cancel?",
          "Skip (the file keeps its name)");
  AddLine(help, "Manual renaming of a file", "OK with the name unchanged");
  AddLine(help, "The list of files of a test run", "printed, one line per file");
  AddLine(help, "An input box (such as the name of the undo batch)", "OK with the preset text");
  AddLine(help, "Choosing a file, a folder or where to save settings", "Cancel");
  for (const TopicDefault& row : TopicDefaults()) {
    AddLine(help, row.description, AnswerName(row.answer));
  }
  help +=
      "With --yes every Yes/No question is answered Yes instead.\n"
      "Ctrl-C cancels a run after the file in hand; a second Ctrl-C stops at once.\n";
  return help;
}

}  // namespace tarnwick

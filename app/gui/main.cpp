#include <iostream>
#include <string>
#include <vector>

#include "desktop_start.h"
#include "startup/command_line.h"
#include "unattended_start.h"

namespace {

constexpr const char* kUsage =
    "usage: tarnwick [FOLDER | SETTINGS.twr [-d] | PLAYLIST.m3u]\n"
    "\n"
    "  tarnwick                  the window on the folder shown last\n"
    "  tarnwick FOLDER           the window on FOLDER\n"
    "  tarnwick SETTINGS.twr     the window with a settings file applied\n"
    "  tarnwick SETTINGS.twr -d  an unattended run of the settings file: no\n"
    "                            window, no display needed; the log and the\n"
    "                            undo batch are written as in the window\n"
    "  tarnwick PLAYLIST.m3u     the playlist editor on the playlist (.m3u,\n"
    "                            .m3u8, .pls)\n"
    "  tarnwick --screenshot OUT.png [FOLDER] [--size WxH]\n"
    "                            the window drawn into a PNG, offscreen\n"
    "  tarnwick --screenshot OUT.png --dialog NAME [FILE] [--size WxH]\n"
    "                            one dialogue drawn into a PNG (an unknown\n"
    "                            NAME lists them)\n"
    "\n"
    "\"-d\" is the switch only as an argument of its own. The language follows\n"
    "the options or the locale (LANG=de_DE.UTF-8 for German). Scripts and\n"
    "terminals: tarnwick-cli --help.\n";

bool AsksForHelp(const std::vector<std::string>& args) {
  return args.size() == 1 && (args[0] == "--help" || args[0] == "-h" || args[0] == "-?");
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (AsksForHelp(args)) {
    std::cout << kUsage;
    return 0;
  }
  if (!args.empty() && args.front() == "--screenshot") {
    return tarnwick::gui::RunScreenshot(argc, argv, args, std::cerr);
  }
  // The unattended start needs no display and never creates a window. Only
  // "-d" as an argument of its own is the switch: "~/my-docs" is a folder.
  if (tarnwick::HasBatchSwitch(args)) return tarnwick::gui::RunTarnwick(args, std::cerr);
  return tarnwick::gui::RunDesktop(argc, argv, args, std::cerr);
}

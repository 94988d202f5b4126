#include "window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <cstdlib>
#include <string>

#include "persist/option_store.h"

namespace tarnwick::gui {
namespace {

constexpr std::string_view kSection = "Options";

}  // namespace

void SaveWindowPlace(const QWidget& window, OptionStore& options, std::string_view top_key,
                     std::string_view left_key) {
  const QPoint place = window.pos();
  options.SaveOption(top_key, kSection, std::to_string(place.y()));
  options.SaveOption(left_key, kSection, std::to_string(place.x()));
}

void RestoreWindowPlace(QWidget& window, const OptionStore& options, std::string_view top_key,
                        std::string_view left_key) {
  const std::string top = options.GetOption(top_key, kSection, "");
  const std::string left = options.GetOption(left_key, kSection, "");
  if (top.empty() || left.empty()) return;
  const QPoint place(std::atoi(left.c_str()), std::atoi(top.c_str()));
  if (QGuiApplication::screenAt(place + QPoint(40, 20)) == nullptr) return;
  window.move(place);
}

}  // namespace tarnwick::gui

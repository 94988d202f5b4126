#pragma once

#include <string_view>

class QWidget;

namespace tarnwick {
class OptionStore;
}

namespace tarnwick::gui {

// A window's place on the screen kept under two option keys (section
// `Options`), in pixels. A kept place that lies on no screen any more (a
// monitor unplugged) is ignored, so a window never opens out of reach.
void SaveWindowPlace(const QWidget& window, OptionStore& options, std::string_view top_key,
                     std::string_view left_key);
void RestoreWindowPlace(QWidget& window, const OptionStore& options, std::string_view top_key,
                        std::string_view left_key);

}  // namespace tarnwick::gui

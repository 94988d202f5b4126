#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <string_view>

#include "core/rename_settings.h"

namespace tarnwick::gui {

// The renaming controls are found by their names from RenameSettings below
// `root`: a QCheckBox holds a tick, a QLineEdit or editable QComboBox a text,
// a QButtonGroup an option group (the checked button's id).

// Shows `settings` in the controls, without change signals.
void WriteControls(QObject* root, const RenameSettings& settings);

// Calls `changed(name, value)` whenever the user changes a control.
void ConnectControls(QObject* root,
                     std::function<void(std::string_view name, const std::string& value)> changed);

}  // namespace tarnwick::gui

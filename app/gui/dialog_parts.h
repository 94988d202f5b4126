#pragma once

#include <functional>
#include <initializer_list>

#include "shell/message_table.h"

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QDialog;
class QDialogButtonBox;
class QHBoxLayout;
class QLineEdit;
class QWidget;

namespace tarnwick {
class Interaction;
}

namespace tarnwick::gui {

// Pieces the tool dialogues share.

// A tick box with the text of `key` and the control name `name`.
QCheckBox* Tick(const MessageTable& messages, const char* key, const char* name, QWidget* parent);

// "Start" (the default button, `cmdStart`, calling `start`) and "Cancel"
// (`cmdCancel`, rejecting the dialogue).
QDialogButtonBox* StartCancel(const MessageTable& messages, QDialog* dialog,
                              const std::function<void()>& start);

// A field with a "..." button beside it (`cmdBrowse`) that fills it.
QHBoxLayout* WithBrowse(QLineEdit* field, const MessageTable& messages, QWidget* parent,
                        const std::function<void()>& browse);

// "Different destination directory": with `other` ticked, `field` must name
// an existing folder; otherwise the box "The destination folder does not
// exist:" is shown, the field gets the focus, and the result is false.
bool DestinationReady(const QCheckBox* other, QLineEdit* field, const MessageTable& messages,
                      Interaction& notices);

// A frame titled by `frame_key` holding one radio button per key, added to
// `into`; the buttons are named `name`_0, `name`_1 ... and their ids are
// their places. The first is ticked.
QButtonGroup* RadioFrame(const MessageTable& messages, const char* frame_key, const char* name,
                         std::initializer_list<const char*> keys, QBoxLayout* into,
                         QWidget* parent);

}  // namespace tarnwick::gui

#include "control_binding.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "qt_text.h"

namespace tarnwick::gui {

void WriteControls(QObject* root, const RenameSettings& settings) {
  for (std::string_view name : RenameSettingNames()) {
    const QString object = Q(name);
    const std::string value = GetRenameSetting(settings, name).value_or("");
    if (auto* box = root->findChild<QCheckBox*>(object)) {
      const QSignalBlocker block(box);
      box->setChecked(Ticked(std::atoi(value.c_str())));
    } else if (auto* field = root->findChild<QLineEdit*>(object)) {
      const QSignalBlocker block(field);
      if (field->text() != Q(value)) field->setText(Q(value));
    } else if (auto* combo = root->findChild<QComboBox*>(object)) {
      const QSignalBlocker block(combo);
      combo->setEditText(Q(value));
    } else if (auto* group = root->findChild<QButtonGroup*>(object)) {
      const QSignalBlocker block(group);
      if (QAbstractButton* button = group->button(std::atoi(value.c_str()))) {
        button->setChecked(true);
      }
    }
  }
}

void ConnectControls(QObject* root,
                     std::function<void(std::string_view name, const std::string& value)> changed) {
  for (std::string_view name : RenameSettingNames()) {
    const QString object = Q(name);
    const std::string key(name);
    if (auto* box = root->findChild<QCheckBox*>(object)) {
      QObject::connect(box, &QCheckBox::toggled, box,
                       [changed, key](bool on) { changed(key, on ? "1" : "0"); });
    } else if (auto* field = root->findChild<QLineEdit*>(object)) {
      QObject::connect(field, &QLineEdit::textEdited, field,
                       [changed, key](const QString& text) { changed(key, S(text)); });
    } else if (auto* combo = root->findChild<QComboBox*>(object)) {
      QObject::connect(combo, &QComboBox::currentTextChanged, combo,
                       [changed, key](const QString& text) { changed(key, S(text)); });
    } else if (auto* group = root->findChild<QButtonGroup*>(object)) {
      QObject::connect(group, &QButtonGroup::idToggled, group, [changed, key](int id, bool on) {
        if (on) changed(key, std::to_string(id));
      });
    }
  }
}

}  // namespace tarnwick::gui

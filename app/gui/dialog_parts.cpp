#include "dialog_parts.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/files.h"
#include "qt_text.h"
#include "shell/interaction.h"

namespace tarnwick::gui {

QCheckBox* Tick(const MessageTable& messages, const char* key, const char* name, QWidget* parent) {
  auto* tick = new QCheckBox(Msg(messages, key), parent);
  tick->setObjectName(name);
  return tick;
}

QDialogButtonBox* StartCancel(const MessageTable& messages, QDialog* dialog,
                              const std::function<void()>& start) {
  auto* buttons = new QDialogButtonBox(dialog);
  auto* go = buttons->addButton(Msg(messages, "main.button.start"), QDialogButtonBox::AcceptRole);
  go->setObjectName("cmdStart");
  go->setDefault(true);
  auto* cancel =
      buttons->addButton(Msg(messages, "run.button_cancel"), QDialogButtonBox::RejectRole);
  cancel->setObjectName("cmdCancel");
  QObject::connect(go, &QPushButton::clicked, dialog, start);
  QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
  return buttons;
}

QHBoxLayout* WithBrowse(QLineEdit* field, const MessageTable& messages, QWidget* parent,
                        const std::function<void()>& browse) {
  auto* row = new QHBoxLayout;
  row->addWidget(field, 1);
  auto* button = new QPushButton(Msg(messages, "options.browse"), parent);
  button->setObjectName("cmdBrowse");
  QObject::connect(button, &QPushButton::clicked, parent, browse);
  row->addWidget(button);
  return row;
}

bool DestinationReady(const QCheckBox* other, QLineEdit* field, const MessageTable& messages,
                      Interaction& notices) {
  if (!other->isChecked()) return true;
  const std::string folder = S(field->text().trimmed());
  if (!folder.empty() && FolderExists(folder)) return true;
  notices.ShowMessage({std::string(messages.Text("run.title_error")),
                       std::string(messages.Text("picture.destination_missing")) + "\r\n" + folder,
                       Buttons::kOk, MessageIcon::kExclamation, Topic::kNotice});
  field->setFocus();
  return false;
}

QButtonGroup* RadioFrame(const MessageTable& messages, const char* frame_key, const char* name,
                         std::initializer_list<const char*> keys, QBoxLayout* into,
                         QWidget* parent) {
  auto* frame = new QGroupBox(Msg(messages, frame_key), parent);
  auto* column = new QVBoxLayout(frame);
  auto* group = new QButtonGroup(parent);
  int id = 0;
  for (const char* key : keys) {
    auto* button = new QRadioButton(Msg(messages, key), frame);
    button->setObjectName(QString("%1_%2").arg(name).arg(id));
    group->addButton(button, id++);
    column->addWidget(button);
  }
  group->button(0)->setChecked(true);
  into->addWidget(frame);
  return group;
}

}  // namespace tarnwick::gui

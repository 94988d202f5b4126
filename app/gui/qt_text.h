#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "shell/message_table.h"

namespace tarnwick::gui {

// The core speaks UTF-8 std::string; Qt speaks QString.
inline QString Q(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string S(const QString& text) { return text.toUtf8().toStdString(); }

// A text of the message table by its key.
inline QString Msg(const MessageTable& messages, std::string_view key) {
  return Q(messages.Text(key));
}

// A caption without the colon the table's labels end with.
inline QString WithoutColon(QString text) {
  if (text.endsWith(':')) text.chop(1);
  return text;
}

}  // namespace tarnwick::gui

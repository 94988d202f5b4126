#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string>
#include <string_view>

#include "shell/message_table.h"

namespace tarnwick::gui {

// The core speaks UTF-8 std::string; Qt speaks QString.
inline QString Q(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string S(const QString& text) { return text.toUtf8().toStdString(); }

// Qt counts positions in UTF-16 units, the core in characters: a character
// beyond the Basic Multilingual Plane (an emoji, many CJK extensions) is two
// units. Every position crosses between the two through these helpers.
//
// The characters before the UTF-16 offset `offset` of `text`.
inline std::size_t CharPosition(const QString& text, qsizetype offset) {
  if (offset <= 0) return 0;
  return static_cast<std::size_t>(text.left(offset).toUcs4().size());
}
// The UTF-16 offset of the character position `position` of `text` (the end
// when the text is shorter).
inline int Utf16Offset(const QString& text, std::size_t position) {
  qsizetype offset = 0;
  for (std::size_t i = 0; i < position && offset < text.size(); ++i) {
    offset += text.at(offset).isHighSurrogate() && offset + 1 < text.size() ? 2 : 1;
  }
  return static_cast<int>(offset);
}

// A text of the message table by its key.
inline QString Msg(const MessageTable& messages, std::string_view key) {
  return Q(messages.Text(key));
}

// A caption without the colon the table's labels end with.
inline QString WithoutColon(QString text) {
  if (text.endsWith(':')) text.chop(1);
  return text;
}

// "1 new name collides", "30 new names collide".
inline std::string CollisionText(const MessageTable& messages, std::size_t count) {
  if (count == 1) return std::string(messages.Text("main.status.collision_one"));
  return FillMessage(messages.Text("main.status.collisions"), {std::to_string(count)});
}

}  // namespace tarnwick::gui

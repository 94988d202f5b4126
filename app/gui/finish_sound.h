#pragma once

#include <QObject>
#include <QString>

class QAudioOutput;
class QMediaPlayer;

namespace tarnwick::gui {

// Plays the sound a finished run asks for. Playing starts in the background
// and never blocks or fails the run: without an audio output, or with a file
// that is missing or cannot be decoded, nothing is heard. A new sound stops
// the one still playing.
class FinishSound : public QObject {
  Q_OBJECT

 public:
  explicit FinishSound(QObject* parent = nullptr);

  // Returns whether playing was started.
  bool Play(const QString& path);

 private:
  QMediaPlayer* player_ = nullptr;  // made at the first sound
  QAudioOutput* output_ = nullptr;
};

}  // namespace tarnwick::gui

#include "finish_sound.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>

namespace tarnwick::gui {

FinishSound::FinishSound(QObject* parent) : QObject(parent) {}

bool FinishSound::Play(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile() || !file.isReadable()) return false;
  if (QMediaDevices::audioOutputs().isEmpty()) return false;
  if (player_ == nullptr) {
    player_ = new QMediaPlayer(this);
    output_ = new QAudioOutput(this);
    player_->setAudioOutput(output_);
  }
  player_->stop();
  player_->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
  player_->play();
  return true;
}

}  // namespace tarnwick::gui

// Gives a file to Qt's player of short sounds.
#include "platform/qt/qt_sound.h"

#include <QUrl>

namespace zepril {

void QtSound::Play(const std::string& path) {
  const QUrl source = QUrl::fromLocalFile(QString::fromStdString(files_.NativePath(path)));
  if (effect_.source() != source) effect_.setSource(source);
  effect_.stop();
  effect_.play();
}

}  // namespace zepril

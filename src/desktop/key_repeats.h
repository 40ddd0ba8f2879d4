// Tells a key that is leaned on from one that is pressed again, and lets it press no button.
//
// The window system marks the repeats of a held key, but not reliably when it is read in a hurry:
// it then looks like a key let go and pressed anew, at one and the same millisecond. Such a press
// is handed on with its mark, so that everything behind can rely on it.
#pragma once

#include <QObject>

class QKeyEvent;

namespace zepril {

class KeyRepeats final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsRepeat(const QKeyEvent& press) const;

  int released_key_ = 0;
  quint64 released_at_ = 0;  // milliseconds of the window system, 0 unknown
};

}  // namespace zepril

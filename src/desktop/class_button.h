// A small switch with a picture or a colour: a frame when on, a notched one in its third state,
// dimmed when off.
#pragma once

#include <QColor>
#include <QToolButton>

#include "desktop/look.h"

namespace zepril {

class ClassButton final : public QToolButton {
 public:
  explicit ClassButton(const Look& look, QWidget* parent = nullptr);
  // Fills the button with a colour instead of a picture.
  void SetFill(const QColor& fill);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Look& look_;
  QColor fill_;
};

}  // namespace zepril

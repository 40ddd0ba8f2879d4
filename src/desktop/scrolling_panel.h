// A set-up panel over the window: its caption, a content that scrolls where the window is too low
// for it, and a row of buttons that is always there.
#pragma once

#include <QFrame>

#include "core/controls.h"
#include "desktop/window_parts.h"

class QBoxLayout;
class QLabel;
class QScrollArea;

namespace zepril {

class ScrollingPanel final : public QFrame {
 public:
  // The caption is that of `frame`, as is whether the panel is shown. When it comes the keys are
  // for its first field, once it is hidden for `focus_after` again.
  ScrollingPanel(WindowParts& parts, zepril::Frame& frame, QWidget* parent, QWidget& focus_after);

  // What lies in it from top to bottom, and the buttons from left to right.
  QBoxLayout* Content() { return content_; }
  QBoxLayout* Buttons() { return buttons_; }
  // Stands at `place`, as wide as that and no higher.
  void PlaceIn(const QRect& place);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QLabel* caption_;
  QScrollArea* area_;
  QBoxLayout* content_;
  QBoxLayout* buttons_;
  QWidget& focus_after_;
};

}  // namespace zepril

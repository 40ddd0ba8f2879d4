// Gives the panel its height, and hands the focus on when it goes.
#include "desktop/scrolling_panel.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QShowEvent>

#include <algorithm>

#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kMargin = 8;

}  // namespace

ScrollingPanel::ScrollingPanel(WindowParts& parts, zepril::Frame& frame, QWidget* parent,
                               QWidget& focus_after)
    : QFrame(parent), focus_after_(focus_after) {
  setProperty("panel", true);
  setAttribute(Qt::WA_NoMousePropagation);
  auto* box = TightBox(QBoxLayout::TopToBottom, this);
  box->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  caption_ = GroupCaption(Text{""});
  caption_->setWordWrap(true);
  box->addWidget(caption_);

  area_ = new QScrollArea;
  area_->setProperty("bare", true);
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setMinimumHeight(0);
  auto* inside = new QWidget;
  content_ = TightBox(QBoxLayout::TopToBottom, inside);
  area_->setWidget(inside);
  box->addWidget(area_, 1);

  buttons_ = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(buttons_);
  parts.Binding.Bind(this, frame);
  parts.Binding.OnControlsOut([this, &frame] {
    const QString text = ToQt(frame.Caption);
    if (caption_->text() != text) caption_->setText(text);
  });
}

void ScrollingPanel::PlaceIn(const QRect& place) {
  // Rows may have come or gone in this very pass.
  content_->activate();
  const int inner = place.width() - 2 * kMargin;
  const int around =
      2 * kMargin + 2 * kGap + 2 + caption_->heightForWidth(inner) + buttons_->sizeHint().height();
  const int height = std::min(around + content_->sizeHint().height(), place.height());
  setGeometry(place.x(), place.y(), place.width(), height);
}

void ScrollingPanel::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  auto* first = findChild<QLineEdit*>();
  if (!event->spontaneous() && first != nullptr) first->setFocus(Qt::OtherFocusReason);
}

// Hidden with the focus in it, it would hand the focus to whatever field comes next.
void ScrollingPanel::hideEvent(QHideEvent* event) {
  if (isAncestorOf(QApplication::focusWidget())) focus_after_.setFocus(Qt::OtherFocusReason);
  QFrame::hideEvent(event);
}

}  // namespace zepril

// The link lamp, drawn in the text colour: full disc for data, half disc for silence, crossed disc
// for a lost link, two bars while reception rests.
#pragma once

#include <QWidget>

#include "core/link_lamp.h"

namespace zepril {

class LampWidget final : public QWidget {
 public:
  explicit LampWidget(QWidget* parent = nullptr);
  void Show(const LinkLamp& lamp);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LampState state_ = LampState::None;
};

}  // namespace zepril

// A bar that fills: how much of a store is used.
#pragma once

#include <QColor>
#include <QWidget>

namespace zepril {

class FillBarWidget final : public QWidget {
 public:
  explicit FillBarWidget(QWidget* parent = nullptr);
  void Show(int filled, int full, const QColor& colour);
  QSize sizeHint() const override { return {120, 6}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int filled_ = 0;
  int full_ = 120;
  QColor colour_;
};

}  // namespace zepril

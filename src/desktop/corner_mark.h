// The small mark at a control's corner that tells of its right click.
#pragma once

#include <QWidget>

namespace zepril {

class CornerMark final : public QWidget {
 public:
  // Lives at the top right of `owner` and follows its size.
  explicit CornerMark(QWidget* owner);
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();
};

}  // namespace zepril

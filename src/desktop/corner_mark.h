// Small marks on a control: at the corner for a right click, at the right for a list that drops
// down.
#pragma once

#include <QWidget>

namespace zepril {

enum class MarkKind { RightClick, DropDown };

class CornerMark final : public QWidget {
 public:
  // Lives on `owner` and follows its size.
  explicit CornerMark(QWidget* owner, MarkKind kind = MarkKind::RightClick);
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  MarkKind kind_;
};

}  // namespace zepril

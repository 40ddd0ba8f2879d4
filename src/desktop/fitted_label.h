// A label that shows its text within the room it has: wrapped anywhere on up to so many lines, and
// cut with an ellipsis where that is not enough. The tool tip of a cut text begins with the whole.
#pragma once

#include <QLabel>
#include <QStringList>

namespace zepril {

class FittedLabel final : public QLabel {
 public:
  explicit FittedLabel(int most_lines, QWidget* parent = nullptr);

  // The text as it is shown in the present width.
  QStringList Lines() const;
  bool IsCut() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int most_lines_;
};

}  // namespace zepril

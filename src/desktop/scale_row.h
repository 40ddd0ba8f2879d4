// One row of the scale panel: bar of the active scale, frame box that is filled where a tile lies
// under the map's centre, folder list.
#pragma once

#include <QWidget>

#include "desktop/look.h"

class QAbstractButton;
class QComboBox;

namespace zepril {

class ScaleRow final : public QWidget {
 public:
  explicit ScaleRow(const Look& look, QWidget* parent = nullptr);
  QAbstractButton* FrameBox() { return box_; }
  QComboBox* Folders() { return folders_; }
  void Show(bool covered, bool active);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Look& look_;
  QAbstractButton* box_;
  QComboBox* folders_;
  bool covered_ = false;
  bool active_ = false;
};

// What the signs of the rows say: a filled box and a ticked one.
class ScaleLegend final : public QWidget {
 public:
  explicit ScaleLegend(const Look& look, QWidget* parent = nullptr);

  // Left edges of the two entries in a legend of `width` pixels, and where their texts end.
  struct Places {
    int First = 0;
    int FirstEnd = 0;
    int Second = 0;
    int SecondEnd = 0;
  };
  static Places PlacesIn(int width, const QFontMetrics& metrics);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Look& look_;
};

}  // namespace zepril

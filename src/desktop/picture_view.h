// Shows the picture file of an `ImageView` control: turned as the camera was held, shrunk smoothly
// to fit (never blown up), at the screen's real pixels, centred on grey. In place of a file that
// can't be shown stands the control's caption.
//
// Files are foreign: a picture is read no larger than it is shown, and one whose reading would take
// more than kMostBytes or seconds, or that is no plain file, is not read at all. What is shown is
// kept: it is read anew only for another path, a higher revision, or another size of the widget.
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <string>

#include "core/controls.h"
#include "platform/files.h"
#include "platform/qt/qt_loop.h"

namespace zepril {

class PictureView final : public QWidget {
 public:
  // Held while a file is read: a camera's picture unpacked whole, where its kind has to be.
  static constexpr std::int64_t kMostBytes = 256LL << 20;
  // Kinds that are shrunk row by row while they are read take next to no memory; this much of them
  // is read in about a second.
  static constexpr std::int64_t kMostPngPixels = 64LL << 20;
  static constexpr std::int64_t kMostJpegPixels = 256LL << 20;

  // Presses raise `Click` and `RightClick` of `control`, which must outlive the widget.
  PictureView(QtLoop& loop, ImageView& control, QWidget* parent = nullptr);

  // Brings the control to the widget.
  void Show(const ImageView& picture, const Files& files);

  // What is shown, in real pixels; null when it is the caption.
  const QImage& Shown() const { return image_; }
  // How often a file was read.
  int Readings() const { return readings_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void Read();
  QSize RealSize() const;

  QtLoop& loop_;
  ImageView& control_;
  std::string path_;
  std::uint64_t revision_ = 0;
  QString native_path_;  // empty: nothing that can be read
  QString caption_;
  QImage image_;
  QSize read_for_;  // real pixels
  QSize awaited_;   // the new size that `resized_` runs for
  QTimer resized_;  // the widget has its new size when it elapses
  int readings_ = 0;
};

// The picture in the file, no larger than `room` nor than `enlarged` times its own size; null when
// it can't be shown.
QImage ReadPicture(const QString& native_path, const QSize& room, double enlarged);

}  // namespace zepril

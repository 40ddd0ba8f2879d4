// Decides how large a foreign picture may be read, reads it once, and paints it.
#include "desktop/picture_view.h"

#include <QFile>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>

#include "desktop/control_access.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kResizedMs = 120;
constexpr int kCaptionMargin = 16;
constexpr QColor kGround(0x50, 0x50, 0x50);
constexpr QColor kCaptionInk(0xE6, 0xE9, 0xEB);

// Kinds that hold a plain picture and nothing to be run or fetched.
constexpr std::array<std::string_view, 8> kKinds{"bmp", "dib", "gif", "jpeg",
                                                 "pbm", "pgm", "png", "ppm"};

constexpr qsizetype kPngInterlace = 28;  // byte of the header
constexpr int kJpegMark = 0xFF;
constexpr int kJpegFrame = 0xC0;  // of one pass, in its two kinds
constexpr int kJpegExtendedFrame = 0xC1;
constexpr int kJpegManyPassFrame = 0xC2;
constexpr int kJpegScan = 0xDA;

int ByteAt(const QByteArray& bytes, qsizetype at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes.at(at)) : 0;
}

// A JPEG in several passes, or with a pass a colour, is unpacked whole, whatever size is asked for.
// One whose headers are not found in the first part counts as such.
bool IsJpegOfOnePass(const QByteArray& head) {
  int colours = 0;
  qsizetype at = 2;
  while (ByteAt(head, at) == kJpegMark) {
    const int kind = ByteAt(head, at + 1);
    if (kind == kJpegManyPassFrame) return false;
    if (kind == kJpegFrame || kind == kJpegExtendedFrame) colours = ByteAt(head, at + 9);
    if (kind == kJpegScan) return colours > 0 && ByteAt(head, at + 4) == colours;
    at += 2 + ByteAt(head, at + 2) * 256 + ByteAt(head, at + 3);
  }
  return false;
}

// The most pixels that a picture of this kind may claim.
std::int64_t MostPixels(const QByteArray& kind, const QByteArray& head) {
  constexpr int kBytesAPixel = 4;
  constexpr int kBytesADeepPixel = 8;
  // Shrunk row by row while they are read: these cost time alone.
  if (kind == "png" && head.size() > kPngInterlace && ByteAt(head, kPngInterlace) == 0) {
    return PictureView::kMostPngPixels;
  }
  if (kind == "jpeg" && IsJpegOfOnePass(head)) return PictureView::kMostJpegPixels;
  // Unpacked whole.
  const bool deep = kind == "png" || kind == "jpeg";
  return PictureView::kMostBytes / (deep ? kBytesADeepPixel : kBytesAPixel);
}

QSize SizeToRead(const QSize& own, const QSize& room, double enlarged) {
  const QSize largest(static_cast<int>(own.width() * enlarged),
                      static_cast<int>(own.height() * enlarged));
  const QSize fitting = own.scaled(room, Qt::KeepAspectRatio);
  const QSize size = fitting.width() < largest.width() ? fitting : largest;
  return size.expandedTo(QSize(1, 1));
}

}  // namespace

QImage ReadPicture(const QString& native_path, const QSize& room, double enlarged) {
  constexpr qint64 kHeadBytes = qint64{256} * 1024;
  if (room.isEmpty()) return {};
  QFile file(native_path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray head = file.peek(kHeadBytes);
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QByteArray kind = reader.format();
  const bool known = std::any_of(kKinds.begin(), kKinds.end(),
                                 [&kind](std::string_view name) { return kind == name.data(); });
  if (!known) return {};
  const QSize own = reader.size();
  if (own.isEmpty()) return {};
  if (std::int64_t{own.width()} * own.height() > MostPixels(kind, head)) return {};
  // The turn comes behind the shrinking.
  const bool on_its_side =
      reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  reader.setScaledSize(SizeToRead(own, on_its_side ? room.transposed() : room, enlarged));
  return reader.read();
}

PictureView::PictureView(QtLoop& loop, ImageView& control, QWidget* parent)
    : QWidget(parent), loop_(loop), control_(control) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  NameAfter(this, control);
  resized_.setSingleShot(true);
  resized_.setInterval(kResizedMs);
  connect(&resized_, &QTimer::timeout, this, [this] { Read(); });
}

void PictureView::Show(const ImageView& picture, const Files& files) {
  const QString caption = ToQt(picture.Caption);
  if (caption != caption_) {
    caption_ = caption;
    update();
  }
  if (picture.Path == path_ && picture.Revision == revision_) return;
  path_ = picture.Path;
  revision_ = picture.Revision;
  // Nothing but a plain file is opened: a pipe would block.
  const auto stamp = path_.empty() ? std::optional<FileStamp>() : files.Stamp(path_);
  native_path_ = stamp && stamp->IsRegular
                     ? QFile::decodeName(QByteArray::fromStdString(files.NativePath(path_)))
                     : QString();
  image_ = {};
  read_for_ = {};
  update();
  // A hidden widget does not have its size yet.
  if (isVisible()) Read();
}

QSize PictureView::RealSize() const {
  return size() * devicePixelRatioF();
}

void PictureView::Read() {
  resized_.stop();
  awaited_ = {};
  read_for_ = RealSize();
  image_ = {};
  if (!native_path_.isEmpty()) {
    ++readings_;
    image_ = ReadPicture(native_path_, read_for_, devicePixelRatioF());
    image_.setDevicePixelRatio(devicePixelRatioF());
  }
  update();
}

void PictureView::showEvent(QShowEvent*) {
  if (read_for_.isEmpty()) Read();
}

void PictureView::paintEvent(QPaintEvent*) {
  // Another size, or another screen: what is there is stretched until the edge rests.
  if (!native_path_.isEmpty() && RealSize() != read_for_ && RealSize() != awaited_) {
    awaited_ = RealSize();
    resized_.start();
  }
  QPainter painter(this);
  painter.fillRect(rect(), kGround);
  if (image_.isNull()) {
    painter.setPen(kCaptionInk);
    painter.drawText(rect().adjusted(kCaptionMargin, 0, -kCaptionMargin, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, caption_);
    return;
  }
  const QSizeF own = image_.deviceIndependentSize();
  if (own.width() <= width() && own.height() <= height()) {
    painter.drawImage(
        QPoint((width() - qRound(own.width())) / 2, (height() - qRound(own.height())) / 2), image_);
    return;
  }
  QRectF target(QPointF(), own.scaled(size(), Qt::KeepAspectRatio));
  target.moveCenter(QRectF(rect()).center());
  painter.drawImage(target, image_);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  const Event<>* raised = nullptr;
  if (event->button() == Qt::LeftButton) raised = &control_.Click;
  if (event->button() == Qt::RightButton) raised = &control_.RightClick;
  event->accept();
  if (raised == nullptr || !*raised) return;
  loop_.RunStep(*raised);
}

}  // namespace zepril

#include "platform/qt/qt_serial_port.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QTimer>

#include <algorithm>
#include <utility>

#include "platform/qt/text.h"

namespace zepril {
namespace {

bool IsTerminal(const std::string& path) {
  const int device = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (device < 0) return false;
  const bool terminal = ::isatty(device) == 1;
  ::close(device);
  return terminal;
}

}  // namespace

QtSerialPort::QtSerialPort() {
  port_.setReadBufferSize(static_cast<qint64>(kLongestBuffer));
  QObject::connect(&port_, &QSerialPort::readyRead, [this] { TakeReceived(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred,
                   [this](QSerialPort::SerialPortError error) { ErrorCame(error); });
}

QtSerialPort::~QtSerialPort() {
  port_.disconnect();
  QtSerialPort::Close();
}

bool QtSerialPort::Fail(SerialTrouble trouble) {
  trouble_ = SerialTroubleText(trouble, path_);
  return false;
}

bool QtSerialPort::Open(const std::string& device, int baud) {
  Close();
  trouble_.clear();
  path_ = SerialDevicePath(device, DeviceOfNumber);
  const SerialTrouble trouble = SerialTroubleOf(path_);
  if (trouble != SerialTrouble::Other) return Fail(trouble);
  port_.setPortName(ToQt(path_));
  if (baud <= 0 || !port_.setBaudRate(baud)) return Fail(SerialTrouble::BadSpeed);
  if (!port_.open(QIODevice::ReadWrite)) {
    switch (port_.error()) {
      case QSerialPort::PermissionError:  // this user may, so somebody else was first
        return Fail(SerialTrouble::UsedElsewhere);
      case QSerialPort::DeviceNotFoundError:
        return Fail(SerialTrouble::Absent);
      case QSerialPort::UnsupportedOperationError:
        return Fail(IsTerminal(path_) ? SerialTrouble::BadSpeed : SerialTrouble::NoDevice);
      default:
        return Fail(SerialTrouble::Other);
    }
  }
  open_ = true;
  return true;
}

void QtSerialPort::Close() {
  // The system would wait half a minute for a line that takes nothing.
  DropUnsent();
  open_ = false;
  buffer_.clear();
  if (port_.isOpen()) port_.close();
}

void QtSerialPort::Write(std::string_view bytes) {
  if (!open_ || static_cast<std::size_t>(port_.bytesToWrite()) > kLongestBuffer) return;
  port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string QtSerialPort::ReadAll() {
  if (open_) TakeReceived();
  return std::exchange(buffer_, {});
}

std::size_t QtSerialPort::BytesToWrite() const {
  if (!open_) return 0;
  int held = 0;
  if (::ioctl(static_cast<int>(port_.handle()), TIOCOUTQ, &held) != 0) held = 0;
  return static_cast<std::size_t>(port_.bytesToWrite()) + static_cast<std::size_t>(held);
}

void QtSerialPort::DropUnsent() {
  if (BytesToWrite() > 0) port_.clear(QSerialPort::Output);
}

void QtSerialPort::TakeReceived() {
  const QByteArray bytes = port_.readAll();
  if (bytes.isEmpty()) return;
  const auto size = static_cast<std::size_t>(bytes.size());
  if (buffer_.size() + size > kLongestBuffer) buffer_.clear();
  buffer_.append(bytes.constData(), std::min(size, kLongestBuffer));
  if (open_ && DataArrived) DataArrived();
}

// Some drivers report another error than that of a lost resource; the device itself tells.
bool QtSerialPort::DeviceIsGone() const {
  pollfd wait{static_cast<int>(port_.handle()), 0, 0};
  return ::poll(&wait, 1, 0) < 0 || (wait.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

void QtSerialPort::ErrorCame(QSerialPort::SerialPortError error) {
  if (!open_ || error == QSerialPort::NoError) return;
  if (error != QSerialPort::ResourceError && !DeviceIsGone()) return;
  TakeReceived();
  open_ = false;
  Fail(SerialTrouble::Absent);
  // The port is in the middle of telling this: it is closed from the loop.
  QTimer::singleShot(0, &port_, [this] {
    if (!open_) port_.close();
  });
}

}  // namespace zepril

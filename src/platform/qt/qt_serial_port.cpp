// Opens, reads, writes and loses the port, and tells of arrival.
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

std::string QtSerialPort::LastingName(const std::string& device) const {
  const bool kept = kept_.Present && device == kept_text_;
  return (kept ? kept_ : ChooseSerialDevice(device, DeviceOfNumber)).LastingName();
}

bool QtSerialPort::Open(const std::string& device, int baud) {
  return OpenDevice(device, baud, Choice::May);
}

bool QtSerialPort::Reopen(const std::string& device, int baud) {
  return OpenDevice(device, baud, Choice::MayNot);
}

// Sets `path_`; what stands in the way of opening it.
SerialTrouble QtSerialPort::FindDevice(const std::string& device, Choice choice) {
  if (!kept_.Present || device != kept_text_) {
    const ChosenDevice found = ChooseSerialDevice(device, DeviceOfNumber);
    path_ = found.Path;
    if (found.Counted && choice == Choice::MayNot) {
      path_ = "port " + device;
      return SerialTrouble::NeverThere;
    }
    kept_text_ = device;
    kept_ = found;
    return SerialTroubleOf(path_);
  }
  path_ = PathOfChosen(kept_);
  if (!path_.empty()) return SerialTroubleOf(path_);
  path_ = kept_.Path;
  return SerialTrouble::OtherDevice;
}

bool QtSerialPort::OpenDevice(const std::string& device, int baud, Choice choice) {
  Close();
  trouble_.clear();
  const SerialTrouble trouble = FindDevice(device, choice);
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
  written_ += bytes.size();
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

std::optional<bool> QtSerialPort::ModemReady() const {
  int lines = 0;
  if (!open_ || ::ioctl(static_cast<int>(port_.handle()), TIOCMGET, &lines) != 0) {
    return std::nullopt;
  }
  return (lines & TIOCM_DSR) != 0;
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

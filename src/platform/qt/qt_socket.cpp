#include "platform/qt/qt_socket.h"

#include <QHostAddress>
#include <QNetworkProxy>

#include "platform/qt/text.h"

namespace zepril {

QtSocket::QtSocket() {
  socket_.setProxy(QNetworkProxy::NoProxy);
  patience_.setSingleShot(true);
  QObject::connect(&socket_, &QTcpSocket::connected, [this] {
    patience_.stop();
    state_ = SocketState::Connected;
  });
  QObject::connect(&socket_, &QTcpSocket::disconnected, [this] {
    if (state_ == SocketState::Connected) state_ = SocketState::PeerClosed;
  });
  QObject::connect(
      &socket_, &QTcpSocket::errorOccurred, [this](QAbstractSocket::SocketError error) {
        patience_.stop();
        if (state_ == SocketState::Closed) return;
        ReadWaiting();
        state_ = error == QAbstractSocket::RemoteHostClosedError ? SocketState::PeerClosed
                                                                 : SocketState::Error;
      });
  QObject::connect(&socket_, &QTcpSocket::readyRead, [this] { ReadWaiting(); });
  QObject::connect(&patience_, &QTimer::timeout, [this] {
    if (state_ != SocketState::Connecting) return;
    socket_.abort();
    state_ = SocketState::Error;
  });
}

QtSocket::~QtSocket() {
  socket_.disconnect();
  socket_.abort();
}

void QtSocket::Connect(const std::string& host, int port) {
  Close();
  if (host.empty() || port <= 0 || port > 65535) {
    state_ = SocketState::Error;
    return;
  }
  state_ = SocketState::Connecting;
  patience_.start(kConnectMilliseconds);
  socket_.connectToHost(ToQt(host), static_cast<quint16>(port));
}

void QtSocket::Close() {
  patience_.stop();
  const SocketState before = state_;
  state_ = SocketState::Closed;
  if (before == SocketState::Connected) {
    socket_.flush();
    socket_.disconnectFromHost();
  }
  if (socket_.state() != QAbstractSocket::UnconnectedState) socket_.abort();
}

bool QtSocket::Send(std::string_view bytes) {
  if (state_ != SocketState::Connected || socket_.bytesToWrite() > kMostUnsent) return false;
  const auto size = static_cast<qint64>(bytes.size());
  return socket_.write(bytes.data(), size) == size;
}

void QtSocket::ReadWaiting() {
  const QByteArray bytes = socket_.readAll();
  if (bytes.isEmpty() || state_ != SocketState::Connected || !DataArrived) return;
  DataArrived({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace zepril

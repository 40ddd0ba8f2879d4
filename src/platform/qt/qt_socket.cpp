// Connects, sends, probes a silent peer, and ends the connection in both ways.
#include "platform/qt/qt_socket.h"

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

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
    KeepAlive();
    Connected();
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

void QtSocket::Drop() {
  state_ = SocketState::Closed;
  // A hard end, or the system would go on delivering what it holds.
  const linger hard{1, 0};
  ::setsockopt(static_cast<int>(socket_.socketDescriptor()), SOL_SOCKET, SO_LINGER, &hard,
               sizeof hard);
  Close();
}

// Probes come only on an idle line; where bytes wait for a peer that is gone, the last of the
// options ends the connection as soon as probes would.
void QtSocket::KeepAlive() const {
  const int descriptor = static_cast<int>(socket_.socketDescriptor());
  if (descriptor < 0) return;
  const auto set = [descriptor](int level, int option, int value) {
    ::setsockopt(descriptor, level, option, &value, sizeof value);
  };
  set(SOL_SOCKET, SO_KEEPALIVE, 1);
  set(IPPROTO_TCP, TCP_KEEPIDLE, kAliveIdleSeconds);
  set(IPPROTO_TCP, TCP_KEEPINTVL, kAliveProbeSeconds);
  set(IPPROTO_TCP, TCP_KEEPCNT, kAliveProbes);
  set(IPPROTO_TCP, TCP_USER_TIMEOUT,
      1000 * (kAliveIdleSeconds + kAliveProbes * kAliveProbeSeconds));
}

// Also what the system holds because the peer's has not acknowledged it.
std::size_t QtSocket::UnsentBytes() const {
  if (state_ != SocketState::Connected) return 0;
  int in_system = 0;
  if (::ioctl(static_cast<int>(socket_.socketDescriptor()), SIOCOUTQ, &in_system) != 0) {
    in_system = 0;
  }
  return static_cast<std::size_t>(socket_.bytesToWrite()) + static_cast<std::size_t>(in_system);
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

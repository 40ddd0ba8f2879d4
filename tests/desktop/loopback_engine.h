// A packet engine on a port of this computer, for programs under test: it accepts registrations and
// hands over what the test lets it hear.
#pragma once

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

#include <string>

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {

// The engine's frame of a packet on the air.
inline std::string MonitoredFrame(const std::string& from, const std::string& information,
                                  const std::string& via = {}) {
  const std::string path = via.empty() ? std::string() : " Via " + via;
  const std::string text = "1:Fm " + from + " To APRS" + path + " <UI pid=F0 Len=" +
                           WholeNumber(static_cast<std::int64_t>(information.size())) +
                           " PF=0 >[12:34:56]\r" + information + "\r\r";
  return MakeAgwFrame(0, 'U', from, "APRS", text);
}

class LoopbackEngine {
 public:
  LoopbackEngine() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, [this] {
      client_ = server_.nextPendingConnection();
      ++Clients;
      QObject::connect(client_, &QTcpSocket::readyRead, [this] { Read(); });
    });
  }

  int Port() const { return server_.serverPort(); }
  void Hear(const std::string& from, const std::string& information, const std::string& via = {}) {
    if (!client_) return;
    const std::string frame = MonitoredFrame(from, information, via);
    client_->write(frame.data(), static_cast<qint64>(frame.size()));
    client_->flush();
  }
  bool HasClient() const { return client_ && client_->state() == QAbstractSocket::ConnectedState; }

  int Clients = 0;
  int Registrations = 0;
  int Monitorings = 0;
  int Departures = 0;
  bool Refuses = false;  // answers registrations with a no

 private:
  void Read() {
    const QByteArray bytes = client_->readAll();
    received_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    while (received_.size() >= kAgwHeaderLength) {
      const AgwFrameFields header = ReadAgwHeader(received_);
      if (received_.size() < kAgwHeaderLength + header.DataLength) return;
      received_.erase(0, kAgwHeaderLength + header.DataLength);
      Answer(header);
    }
  }
  void Answer(const AgwFrameFields& header) {
    Monitorings += header.Kind == 'm' ? 1 : 0;
    Departures += header.Kind == 'x' ? 1 : 0;
    if (header.Kind == 'R') Say(MakeAgwFrame(0, 'R', "", "", std::string(8, '\x08')));
    if (header.Kind != 'X') return;
    ++Registrations;
    Say(MakeAgwFrame(0, 'X', header.From, "", Refuses ? std::string(1, '\0') : "\x01"));
  }

  void Say(const std::string& frame) {
    client_->write(frame.data(), static_cast<qint64>(frame.size()));
  }

  QTcpServer server_;
  QPointer<QTcpSocket> client_;
  std::string received_;
};

}  // namespace zepril

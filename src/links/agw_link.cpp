#include "links/agw_link.h"

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {
namespace {

constexpr double kReplySeconds = 10.0;
constexpr std::size_t kReplyLength = 37;
constexpr const char* kHostNotFound = "TCP/IP AGWPE HOST NOT FOUND !";
constexpr const char* kEngineNotFound = "TCP/IP AGWPE NOT FOUND !";
constexpr const char* kSendFailed = "TCP/IP AGWPE ERROR !";
constexpr const char* kBoxTitle = "ZEP RIL  TCP/IP AGWPE";

}  // namespace

AgwLink::AgwLink(RadioState& radio, const IdentityState& identity,
                 const TransmissionState& transmission, TcpSocket& winsock1, Clock& clock,
                 Dialogs& dialogs, ProgramActions& program, Timer& reopen_timer)
    : radio_(radio),
      identity_(identity),
      transmission_(transmission),
      winsock1_(winsock1),
      clock_(clock),
      dialogs_(dialogs),
      program_(program),
      reopen_timer_(reopen_timer),
      stream_([this](std::string_view frame) { FrameArrived(frame); }) {
  winsock1_.DataArrived = [this](std::string_view bytes) { stream_.Feed(bytes); };
  reopen_timer_.Elapsed = [this] { ReopenElapsed(); };
}

std::string AgwLink::RegisterFrame() const {
  return MakeAgwFrame(radio_.AgwPort, 'X', identity_.MyCallFull, "APRS", {});
}

std::string AgwLink::MonitorFrame() const {
  return MakeAgwFrame(radio_.AgwPort, 'm', identity_.MyCallFull, "APRS", {});
}

void AgwLink::BeginConnection() {
  winsock1_.Close();
  stream_.Reset();
  radio_.AgwConnected = 0;
  winsock1_.Connect(radio_.AgwHost,
                    static_cast<int>(WholeVal(radio_.AgwTcpPort, 0, 65535).value_or(0)));
}

bool AgwLink::Fail(const char* text) {
  dialogs_.Tell(kBoxTitle, text);
  winsock1_.Close();
  program_.EndProgram();
  return false;
}

bool AgwLink::Registered() const {
  return radio_.AgwFrame.size() == kReplyLength && radio_.AgwFrame[4] == 'X';
}

bool AgwLink::ConnectAgw() {
  radio_.AgwPort = AgwPortOf(radio_.BaudMode, radio_.AgwPort);
  BeginConnection();
  // Until the socket says how it went; the platform ends a silent attempt in an error. A host that
  // takes the connection and hangs up at once is none.
  while (winsock1_.State() == SocketState::Connecting)
    clock_.HandOver();
  if (winsock1_.State() != SocketState::Connected) return Fail(kHostNotFound);
  // The call is registered; the engine answers with a byte.
  radio_.AgwFrame.clear();
  winsock1_.Send(RegisterFrame());
  const double start = clock_.MonotonicSeconds();
  while (!Registered() && clock_.MonotonicSeconds() - start < kReplySeconds)
    clock_.HandOver();
  if (radio_.AgwFrame.size() != kReplyLength || radio_.AgwFrame[kReplyLength - 1] != 1) {
    return Fail(kEngineNotFound);
  }
  // Monitoring on.
  radio_.AgwConnected = 1;
  radio_.AgwRxBuffer.clear();
  winsock1_.Send(MonitorFrame());
  started_ = true;
  reopen_timer_.Arm(kReopenMilliseconds);
  return true;
}

void AgwLink::FrameArrived(std::string_view frame) {
  radio_.AgwFrame = frame;
  radio_.LastDataSeconds = clock_.MonotonicSeconds();
  // Everything behind the header is monitor text, whatever its kind: the parser looks for its mark.
  radio_.AgwRxBuffer += Mid(frame, static_cast<std::ptrdiff_t>(kAgwHeaderLength) + 1);
  if (radio_.AgwRxBuffer.size() > kLongestReceiveBuffer) radio_.AgwRxBuffer.clear();
}

bool AgwLink::LinkIsUp() const {
  return radio_.AgwConnected == 1 && winsock1_.State() == SocketState::Connected;
}

void AgwLink::ReopenElapsed() {
  if (!started_) return;
  if (winsock1_.State() == SocketState::Connected) {
    if (reopening_) {
      // The socket is back: register and monitor as at start.
      reopening_ = false;
      winsock1_.Send(RegisterFrame());
      winsock1_.Send(MonitorFrame());
      radio_.AgwConnected = 1;
    }
    return;
  }
  reopening_ = true;
  BeginConnection();
}

void AgwLink::DisconnectAgw() {
  reopen_timer_.Stop();
  started_ = false;
  if (winsock1_.State() == SocketState::Connected) {
    winsock1_.Send(MakeAgwFrame(radio_.AgwPort, 'x', identity_.MyCallFull, "APRS", {}));
    clock_.WaitPumping(1.0);
  }
  winsock1_.Close();
  radio_.AgwConnected = 0;
}

void AgwLink::SendAgwUnproto() {
  // A lost link is told by the lamp until it is opened again: a box would hold up a station that
  // nobody sits at.
  if (radio_.AgwConnected != 1 || winsock1_.State() != SocketState::Connected) return;
  radio_.AgwPort = AgwPortOf(radio_.BaudMode, radio_.AgwPort);
  const std::string data = AgwUnprotoData(transmission_.TxPath, transmission_.AgwTxText);
  const bool sent = winsock1_.Send(
      MakeAgwFrame(radio_.AgwPort, 'V', identity_.MyCallFull, transmission_.TxDestination, data));
  if (!sent) dialogs_.Tell(kBoxTitle, kSendFailed);
}

}  // namespace zepril

// Registers with the remote engine, receives its monitor text, sends unproto frames.
#include "links/agw_link.h"

#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "links/agw_frame.h"

namespace zepril {
namespace {

constexpr double kReplySeconds = 10.0;
constexpr std::size_t kReplyLength = 37;

// To the registration of the call.
bool IsReply(std::string_view frame) {
  return frame.size() == kReplyLength && frame[4] == 'X';
}

}  // namespace

AgwLink::AgwLink(RadioState& radio, const IdentityState& identity,
                 const TransmissionState& transmission, TcpSocket& winsock1, Clock& clock,
                 Dialogs& dialogs, ProgramActions& program)
    : radio_(radio),
      identity_(identity),
      transmission_(transmission),
      clock_(clock),
      dialogs_(dialogs),
      program_(program),
      connection_(winsock1, clock) {
  connection_.Frame = [this](std::string_view frame) { FrameArrived(frame); };
  connection_.Greet = [this] {
    connection_.Send(RegisterFrame());
    connection_.Send(MonitorFrame());
  };
  connection_.Refuses = [](std::string_view frame) {
    return IsReply(frame) && frame.back() == '\0';
  };
  connection_.Looked = [this] { HandOn(); };
  connection_.Changed = [this] {
    radio_.AgwConnected = connection_.IsUp() ? 1 : 0;
    if (LinkChanged) LinkChanged();
  };
}

std::string AgwLink::RegisterFrame() const {
  return MakeAgwFrame(radio_.AgwPort, 'X', identity_.MyCallFull, "APRS", {});
}

std::string AgwLink::MonitorFrame() const {
  return MakeAgwFrame(radio_.AgwPort, 'm', identity_.MyCallFull, "APRS", {});
}

void AgwLink::BeginConnection() {
  radio_.AgwConnected = 0;
  connection_.Connect(radio_.AgwHost,
                      static_cast<int>(WholeVal(radio_.AgwTcpPort, 0, 65535).value_or(0)));
}

bool AgwLink::Fail(Text text) {
  dialogs_.Tell(boxes::kEngineTitle, text);
  connection_.Close();
  program_.EndProgram();
  return false;
}

// The operator wants to end: nothing is told, what has begun is left.
bool AgwLink::GiveUp() {
  connection_.Close();
  program_.EndProgram();
  return false;
}

bool AgwLink::Registered() const {
  return IsReply(radio_.AgwFrame);
}

bool AgwLink::ConnectAgw() {
  radio_.AgwPort = AgwPortOf(radio_.BaudMode, radio_.AgwPort);
  BeginConnection();
  // Until the socket says how it went; the platform ends a silent attempt in an error. A host that
  // takes the connection and hangs up at once is none.
  while (connection_.State() == SocketState::Connecting && !clock_.EndAsked())
    clock_.HandOver();
  if (clock_.EndAsked()) return GiveUp();
  if (connection_.State() != SocketState::Connected) return Fail(boxes::kHostNotFound);
  // The call is registered; the engine answers with a byte.
  radio_.AgwFrame.clear();
  connection_.Send(RegisterFrame());
  const double start = clock_.MonotonicSeconds();
  while (!Registered() && clock_.MonotonicSeconds() - start < kReplySeconds && !clock_.EndAsked())
    clock_.HandOver();
  if (clock_.EndAsked()) return GiveUp();
  if (radio_.AgwFrame.size() != kReplyLength || radio_.AgwFrame[kReplyLength - 1] != 1) {
    return Fail(boxes::kEngineNotFound);
  }
  // Monitoring on.
  radio_.AgwConnected = 1;
  radio_.AgwRxBuffer.clear();
  waiting_.clear();
  waiting_bytes_ = 0;
  connection_.Send(MonitorFrame());
  connection_.Watch(true);
  return true;
}

void AgwLink::FrameArrived(std::string_view frame) {
  radio_.AgwFrame = frame;
  radio_.LastDataSeconds = clock_.MonotonicSeconds();
  // Everything behind the header is monitor text, whatever its kind: the parser looks for its mark.
  waiting_.emplace_back(Mid(frame, static_cast<std::ptrdiff_t>(kAgwHeaderLength) + 1));
  waiting_bytes_ += waiting_.back().size();
  HandOn();
  while (waiting_bytes_ > kMostWaiting) {
    waiting_bytes_ -= waiting_.front().size();
    waiting_.pop_front();
  }
}

void AgwLink::HandOn() {
  std::string& buffer = radio_.AgwRxBuffer;
  while (!waiting_.empty()) {
    // Text without the end of a frame would never be collected.
    const bool collectable = buffer.find("\r\r") != std::string::npos;
    if (collectable && buffer.size() + waiting_.front().size() > kMostHandedOn) return;
    buffer += waiting_.front();
    waiting_bytes_ -= waiting_.front().size();
    waiting_.pop_front();
    if (buffer.size() > kLongestReceiveBuffer) buffer.clear();
  }
}

bool AgwLink::LinkIsUp() const {
  return radio_.AgwConnected == 1 && connection_.State() == SocketState::Connected;
}

void AgwLink::DisconnectAgw() {
  if (connection_.State() == SocketState::Connected) {
    connection_.Send(MakeAgwFrame(radio_.AgwPort, 'x', identity_.MyCallFull, "APRS", {}));
    clock_.WaitPumping(1.0);
  }
  connection_.Close();
  radio_.AgwConnected = 0;
}

bool AgwLink::SendAgwUnproto() {
  // A lost link is told by the lamp until it is opened again: a box would hold up a station that
  // nobody sits at.
  if (!LinkIsUp() || !connection_.Answers()) return false;
  radio_.AgwPort = AgwPortOf(radio_.BaudMode, radio_.AgwPort);
  const std::string data = AgwUnprotoData(transmission_.TxPath, transmission_.AgwTxText);
  const bool sent = connection_.Send(
      MakeAgwFrame(radio_.AgwPort, 'V', identity_.MyCallFull, transmission_.TxDestination, data));
  if (!sent) dialogs_.Tell(boxes::kEngineTitle, boxes::kEngineSendFailed);
  return sent;
}

}  // namespace zepril

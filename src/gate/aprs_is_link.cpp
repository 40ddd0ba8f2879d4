// Connects, logs in, throws away what comes, and drops what does not leave.
#include "gate/aprs_is_link.h"

#include "core/text_fields.h"
#include "gate/aprs_is_login.h"

namespace zepril {
namespace {

constexpr int kHighestPort = 65535;

}  // namespace

AprsIsLink::AprsIsLink(InternetState& internet, const IdentityState& identity, TcpSocket& winsock2)
    : internet_(internet), identity_(identity), winsock2_(winsock2) {}

AprsIsLink::~AprsIsLink() {
  GiveEventsBack();
}

void AprsIsLink::IGateTick() {
  // Switched off: no connection.
  if (internet_.IGateOn != Gate::On) return Close();
  // None that stands: begun anew. Kept: also one that is still being made, so that a server who
  // takes longer than a tick is never reached.
  if (!IsConnected()) return Connect();
  // It stands: the answer to the login, or the login once more.
  if (TellsVerified(internet_.AprsIsRxBuffer, identity_.MyCall)) {
    internet_.IGateConnected = GateLink::Up;
  }
  if (internet_.IGateConnected != GateLink::Up) return LogIn();
  internet_.AprsIsRxBuffer.clear();
}

void AprsIsLink::Connect() {
  Close();
  internet_.AprsIsRxBuffer.clear();
  owns_events_ = true;
  winsock2_.DataArrived = [this](std::string_view bytes) { OnSocketData(bytes); };
  winsock2_.Connect(internet_.AprsIsServer,
                    WholeVal(internet_.AprsIsPort, 0, kHighestPort).value_or(0));
}

void AprsIsLink::LogIn() {
  winsock2_.Send(LoginLine(identity_.MyCall, internet_.AprsIsPasscode, identity_.ProgramVersion));
}

void AprsIsLink::Close() {
  internet_.IGateConnected = GateLink::Down;
  looks_unsent_ = 0;
  GiveEventsBack();
  if (winsock2_.State() == SocketState::Closed) return;
  winsock2_.UnsentBytes() > 0 ? winsock2_.Drop() : winsock2_.Close();
}

void AprsIsLink::GiveEventsBack() {
  if (owns_events_) winsock2_.DataArrived = nullptr;
  owns_events_ = false;
}

void AprsIsLink::OnSocketData(std::string_view bytes) {
  std::string& buffer = internet_.AprsIsRxBuffer;
  if (bytes.size() > kMostReceived) bytes.remove_prefix(bytes.size() - kMostReceived);
  buffer += bytes;
  // The oldest goes.
  if (buffer.size() > kMostReceived) buffer.erase(0, buffer.size() - kMostReceived);
}

bool AprsIsLink::IsRefused() const {
  return TellsUnverified(internet_.AprsIsRxBuffer, identity_.MyCall);
}

bool AprsIsLink::Write(std::string_view line) {
  return internet_.IGateConnected == GateLink::Up && IsConnected() && winsock2_.Send(line);
}

void AprsIsLink::Look() {
  const bool waits = IsConnected() && winsock2_.UnsentBytes() > 0;
  looks_unsent_ = waits ? looks_unsent_ + 1 : 0;
  if (looks_unsent_ > kPatientLooks) Close();
}

}  // namespace zepril

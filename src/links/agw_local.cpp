// The four operations: start, fetch a text, hand over a text, close.
#include "links/agw_local.h"

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {

AgwLocal::AgwLocal(RadioState& radio, TcpSocket& socket, Clock& clock)
    : radio_(radio), clock_(clock), connection_(socket, clock) {
  connection_.Frame = [this](std::string_view frame) { FrameArrived(frame); };
  connection_.Greet = [this] { Greet(); };
  connection_.Changed = [this] {
    if (LinkChanged) LinkChanged();
  };
}

bool AgwLocal::AGWStartPoll(std::string_view /*application*/, std::string_view call) {
  call_ = call;
  connection_.Connect("127.0.0.1", kEnginePort);
  while (connection_.State() == SocketState::Connecting && !clock_.EndAsked())
    clock_.HandOver();
  const bool connected = connection_.State() == SocketState::Connected;
  connection_.Watch(connected);
  return connected && Greet();
}

// The call is registered, monitoring switched on.
bool AgwLocal::Greet() {
  const bool registered = connection_.Send(MakeAgwFrame(radio_.AgwPort, 'X', call_, "APRS", {}));
  return connection_.Send(MakeAgwFrame(radio_.AgwPort, 'm', call_, "APRS", {})) && registered;
}

void AgwLocal::FrameArrived(std::string_view frame) {
  radio_.LastDataSeconds = clock_.MonotonicSeconds();
  const std::string_view text =
      Mid(frame, static_cast<std::ptrdiff_t>(kAgwHeaderLength) + 1, kLongestText);
  const std::ptrdiff_t from = InStr(text, ":Fm ");
  if (from == 0) return;  // an answer of the engine, no monitored frame
  if (waiting_.size() >= kMostWaitingFrames) waiting_.pop_front();
  // Some engines put a blank before the port, and ports have two digits from 10 on; the columns of
  // the text are counted from its last digit.
  waiting_.emplace_back(Mid(text, from - 1));
}

std::string AgwLocal::AGWGetData() {
  if (waiting_.empty()) return {};
  std::string text = std::move(waiting_.front());
  waiting_.pop_front();
  return text;
}

bool AgwLocal::AGWPutData(std::string_view header, std::string_view text) {
  // A frame that the engine does not take at once is not kept for later.
  if (!LinkIsUp() || !connection_.Answers()) return false;
  const std::size_t comma = header.find(',');
  const std::string_view destination = header.substr(0, comma);
  const std::string_view path =
      comma == std::string_view::npos ? std::string_view{} : header.substr(comma + 1);
  // Port 1 for 1200 Bd, port 0 for every other speed.
  return connection_.Send(MakeAgwFrame(AgwPortOf(radio_.BaudMode, 0), 'V', call_, destination,
                                       AgwUnprotoData(path, text)));
}

void AgwLocal::AGWClose() {
  if (connection_.IsUp()) {
    connection_.Send(MakeAgwFrame(radio_.AgwPort, 'x', call_, "APRS", {}));
  }
  connection_.Close();
}

}  // namespace zepril

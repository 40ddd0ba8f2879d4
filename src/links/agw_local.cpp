#include "links/agw_local.h"

#include "core/text_fields.h"
#include "links/agw_frame.h"
#include "links/agw_link.h"

namespace zepril {

AgwLocal::AgwLocal(RadioState& radio, TcpSocket& socket, Clock& clock, Timer& reopen_timer)
    : radio_(radio),
      socket_(socket),
      clock_(clock),
      reopen_timer_(reopen_timer),
      stream_([this](std::string_view frame) { FrameArrived(frame); }) {}

bool AgwLocal::AGWStartPoll(std::string_view /*application*/, std::string_view call) {
  socket_.DataArrived = [this](std::string_view bytes) { stream_.Feed(bytes); };
  reopen_timer_.Elapsed = [this] { ReopenElapsed(); };
  call_ = call;
  opened_ = true;
  registered_ = false;
  stream_.Reset();
  socket_.Close();
  socket_.Connect("127.0.0.1", port_);
  while (socket_.State() == SocketState::Connecting)
    clock_.HandOver();
  reopen_timer_.Arm(kReopenMilliseconds);
  if (socket_.State() != SocketState::Connected) return false;
  Register();
  return true;
}

void AgwLocal::Register() {
  socket_.Send(MakeAgwFrame(radio_.AgwPort, 'X', call_, "APRS", {}));
  socket_.Send(MakeAgwFrame(radio_.AgwPort, 'm', call_, "APRS", {}));
  registered_ = true;
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
  if (!LinkIsUp()) return false;
  const std::size_t comma = header.find(',');
  const std::string_view destination = header.substr(0, comma);
  const std::string_view path =
      comma == std::string_view::npos ? std::string_view{} : header.substr(comma + 1);
  // Port 1 for 1200 Bd, port 0 for every other speed.
  return socket_.Send(MakeAgwFrame(AgwPortOf(radio_.BaudMode, 0), 'V', call_, destination,
                                   AgwUnprotoData(path, text)));
}

void AgwLocal::AGWClose() {
  reopen_timer_.Stop();
  if (opened_ && LinkIsUp()) {
    socket_.Send(MakeAgwFrame(radio_.AgwPort, 'x', call_, "APRS", {}));
  }
  opened_ = false;
  socket_.Close();
}

void AgwLocal::ReopenElapsed() {
  if (!opened_) return;
  if (LinkIsUp()) {
    if (!registered_) Register();
    return;
  }
  registered_ = false;
  stream_.Reset();
  socket_.Close();
  socket_.Connect("127.0.0.1", port_);
}

}  // namespace zepril

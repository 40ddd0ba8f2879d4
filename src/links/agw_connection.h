// The TCP connection to a packet engine, on this computer or on another: its frames come out whole,
// it is watched while it stands and opened again when it is lost.
//
// Watched means: a link that has said nothing for five minutes is asked, one without an answer, or
// whose bytes do not leave, is dropped with all that waits in it (`links/agw_pulse`), and half a
// frame that is not continued for five seconds, or not whole in ten, is given up. A lost link is
// tried again every ten seconds, without boxes; it greets the engine as soon as the connection
// stands, and counts as up with the engine's first word.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/timer.h"
#include "links/agw_pulse.h"
#include "links/agw_stream.h"
#include "links/radio_link.h"
#include "platform/clock.h"
#include "platform/event.h"
#include "platform/tcp_socket.h"

namespace zepril {

class AgwConnection {
 public:
  // Without more bytes; and with more, which on a busy channel come all the time.
  static constexpr double kHalfFrameSeconds = 5.0;
  static constexpr double kLongestFrameSeconds = 10.0;

  // Takes the events of `socket` from `Connect` to `Close`: two of these may share it as long as
  // one is open at a time.
  AgwConnection(TcpSocket& socket, Clock& clock);
  ~AgwConnection();
  AgwConnection(const AgwConnection&) = delete;
  AgwConnection& operator=(const AgwConnection&) = delete;

  // Begins to connect; the state tells how it went.
  void Connect(const std::string& host, int port);
  SocketState State() const { return socket_.State(); }
  // The first connection was tried: from now on it is kept up. `up`: the engine has answered.
  void Watch(bool up);
  // At once and for good.
  void Close();

  // False when the bytes could not be handed over.
  bool Send(std::string_view bytes) { return socket_.Send(bytes); }
  // Asks the engine for a sign of life and waits for it, two seconds at the most.
  bool Answers() { return pulse_.Answers(); }
  bool IsUp() const { return up_ && State() == SocketState::Connected; }
  // Some of what was handed over has not left: the link is dropped with it, and opened again.
  void DropUnsent();

  // To be driven by whoever owns the loop, also while control is handed over.
  Timer& LookTimer() { return look_timer_; }

  // One whole frame, but for answers to the connection's own questions.
  Event<std::string_view> Frame;
  // Tells a link that was opened again what the engine must know first.
  Event<> Greet;
  // Whether a frame refuses what the engine was greeted with: then the link does not come up, and
  // is opened again. May be empty.
  std::function<bool(std::string_view frame)> Refuses;
  // Lost, or up again; may be empty.
  Event<> Changed;
  // Once a second while the link is watched; may be empty.
  Event<> Looked;

 private:
  void TakeSocket();
  void GiveSocketBack();
  void Open();
  void Look();
  void Lose();
  void Connected();
  void Arrived(std::string_view bytes);
  void FrameArrived(std::string_view frame);

  TcpSocket& socket_;
  Clock& clock_;
  Timer look_timer_{kLookMilliseconds};
  AgwStream stream_;
  AgwPulse pulse_;
  std::string host_;
  int port_ = 0;
  bool owns_events_ = false;
  bool refused_ = false;
  bool watched_ = false;
  bool up_ = false;
  double tried_at_ = 0.0;  // monotonic seconds
  double fed_at_ = 0.0;
  double begun_at_ = 0.0;  // the frame that is not whole yet
};

}  // namespace zepril

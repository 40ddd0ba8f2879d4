// Whether a packet engine still answers.
//
// A stalled engine, or one whose computer lost its power, leaves a connection that looks well: what
// is written to it waits, and would go on the air when the engine wakes up. So it is asked for its
// version ("R") right before each frame that is to be transmitted, and whenever it has been silent
// for five minutes. Whatever it says counts as an answer.
#pragma once

#include "platform/clock.h"
#include "platform/tcp_socket.h"

namespace zepril {

// Milliseconds between two looks at an engine's link.
inline constexpr int kLookMilliseconds = 1000;

class AgwPulse {
 public:
  static constexpr double kAnswerSeconds = 2.0;     // a frame waits for this long
  static constexpr double kSilenceSeconds = 300.0;  // then it is asked by itself
  // Looks, one a second, after which a link without an answer, or one whose bytes do not leave,
  // counts as lost. Counted in looks: a program that stood still itself takes no link for lost.
  static constexpr int kPatientLooks = 10;

  AgwPulse(TcpSocket& socket, Clock& clock) : socket_(socket), clock_(clock) {}

  // A new connection, of which a first sign is awaited.
  void Begin();
  // The engine has said something.
  void Heard();
  // Asks and waits, plainly, for the answer; false when none came in time or the link is gone.
  bool Answers();
  // Once a second: true when the link counts as lost.
  bool LooksLost();

 private:
  bool Ask();

  TcpSocket& socket_;
  Clock& clock_;
  bool awaited_ = false;  // an answer is
  int looks_unanswered_ = 0;
  int looks_unsent_ = 0;
  double heard_at_ = 0.0;  // monotonic seconds
};

}  // namespace zepril

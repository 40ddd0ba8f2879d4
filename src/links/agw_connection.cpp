// Opens, watches and closes the socket, and takes its bytes to frames.
#include "links/agw_connection.h"

#include <utility>

#include "links/agw_frame.h"

namespace zepril {
namespace {

// The engine's version, which nobody but the connection has asked for.
bool IsVersion(std::string_view frame) {
  constexpr std::size_t kLongestVersion = 64;
  return frame.size() >= kAgwHeaderLength && frame.size() <= kAgwHeaderLength + kLongestVersion &&
         frame[4] == 'R';
}

}  // namespace

AgwConnection::AgwConnection(TcpSocket& socket, Clock& clock)
    : socket_(socket),
      clock_(clock),
      stream_([this](std::string_view frame) { FrameArrived(frame); }),
      pulse_(socket, clock) {
  look_timer_.Elapsed = [this] { Look(); };
}

AgwConnection::~AgwConnection() {
  GiveSocketBack();
}

void AgwConnection::TakeSocket() {
  if (owns_events_) return;
  owns_events_ = true;
  socket_.Connected = [this] { Connected(); };
  socket_.DataArrived = [this](std::string_view bytes) { Arrived(bytes); };
}

void AgwConnection::GiveSocketBack() {
  if (!owns_events_) return;
  owns_events_ = false;
  socket_.Connected = nullptr;
  socket_.DataArrived = nullptr;
}

void AgwConnection::Connect(const std::string& host, int port) {
  TakeSocket();
  watched_ = false;
  host_ = host;
  port_ = port;
  Open();
}

void AgwConnection::Open() {
  socket_.Close();
  stream_.Reset();
  up_ = false;
  tried_at_ = clock_.MonotonicSeconds();
  socket_.Connect(host_, port_);
}

void AgwConnection::Watch(bool up) {
  watched_ = true;
  up_ = up;
  pulse_.Begin();
  if (up) pulse_.Heard();
  look_timer_.Arm(kLookMilliseconds);
}

void AgwConnection::Close() {
  watched_ = false;
  up_ = false;
  look_timer_.Stop();
  socket_.Close();
  GiveSocketBack();
}

void AgwConnection::Connected() {
  if (!watched_) return;
  pulse_.Begin();
  if (Greet) Greet();
}

void AgwConnection::Arrived(std::string_view bytes) {
  fed_at_ = clock_.MonotonicSeconds();
  const std::size_t waiting = stream_.PendingBytes() + bytes.size();
  const bool began_before = stream_.PendingBytes() > 0;
  stream_.Feed(bytes);
  // Another frame has begun.
  if (!began_before || stream_.PendingBytes() < waiting) begun_at_ = fed_at_;
  if (std::exchange(refused_, false)) Lose();
}

void AgwConnection::FrameArrived(std::string_view frame) {
  pulse_.Heard();
  // The stream is in the middle of its bytes: the link is dropped behind them.
  if (watched_ && Refuses && Refuses(frame)) refused_ = true;
  if (refused_) return;
  if (watched_ && !up_) {
    up_ = true;
    if (Changed) Changed();
  }
  if (!IsVersion(frame) && Frame) Frame(frame);
}

void AgwConnection::Look() {
  if (!watched_) return;
  if (Looked) Looked();
  const double now = clock_.MonotonicSeconds();
  const bool stands = now - fed_at_ >= kHalfFrameSeconds || now - begun_at_ >= kLongestFrameSeconds;
  if (stream_.PendingBytes() > 0 && stands) stream_.GiveUp();
  if (socket_.State() == SocketState::Connected) {
    if (pulse_.LooksLost()) Lose();
    return;
  }
  if (up_) return Lose();
  if (now - tried_at_ >= kReopenMilliseconds / 1000.0) Open();
}

void AgwConnection::Lose() {
  const bool was_up = up_;
  up_ = false;
  tried_at_ = clock_.MonotonicSeconds();
  socket_.Drop();
  stream_.Reset();
  if (was_up && Changed) Changed();
}

void AgwConnection::DropUnsent() {
  if (watched_ && socket_.UnsentBytes() > 0) Lose();
}

}  // namespace zepril

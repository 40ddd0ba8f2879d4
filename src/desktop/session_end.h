// Tells when the system asks the program to end (a signal at log-out or from a script), so that it
// closes as by the operator and keeps what it should keep.
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace zepril {

class SessionEnd {
 public:
  explicit SessionEnd(std::function<void()> end);
  ~SessionEnd();
  SessionEnd(const SessionEnd&) = delete;
  SessionEnd& operator=(const SessionEnd&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zepril

// The loop of the program's one thread, as far as a room needs it.
#pragma once

#include <functional>

#include "platform/event.h"

namespace zepril {

class Loop {
 public:
  virtual ~Loop() = default;
  // Runs `step` now, also inside a step that is under way. What it has changed is shown then.
  virtual void RunStep(const std::function<void()>& step) = 0;
  void RunStep(const Event<>& event) {
    RunStep([&event] { event(); });
  }
  // `work` runs as a step of its own, in the order of posting, when the step under way has ended
  // with all that it leads to. It never runs before this returns.
  virtual void Post(std::function<void()> work) = 0;
};

}  // namespace zepril

// How long work tells how far it is. Nothing is shown of what takes less than 0.3 s.
#pragma once

#include <string_view>

namespace zepril {

class Progress {
 public:
  virtual ~Progress() = default;
  // `what` is done to `share`, 0 to 1. To be called often: it is cheap. While it shows, sockets
  // fill their buffers and the window is painted; no timer and no user event fires.
  virtual void Report(std::string_view what, double share) = 0;
  // The work has ended, well or not.
  virtual void Done() = 0;
};

}  // namespace zepril

// A packet engine on this computer, polled: the four operations by which the program speaks to it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/event.h"

namespace zepril {

class MonitorEngine {
 public:
  virtual ~MonitorEngine() = default;
  // Opens the link under the application's name and the station's call. False: not running.
  virtual bool AGWStartPoll(std::string_view application, std::string_view call) = 0;
  // Text of the next monitored frame, at most 4000 characters; empty when none waits.
  virtual std::string AGWGetData() = 0;
  // Sends one frame: header "DESTINATION,DIGI,DIGI" with the port, and its text.
  virtual bool AGWPutData(std::string_view header, std::string_view text) = 0;
  virtual void AGWClose() = 0;

  virtual bool LinkIsUp() const = 0;
  // What has not left yet never leaves.
  virtual void DropUnsent() = 0;
  // The link was lost, or is back; may be empty.
  Event<> LinkChanged;
};

}  // namespace zepril

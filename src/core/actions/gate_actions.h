// What reception hands to the gateway.
#pragma once

#include <string_view>

namespace zepril {

class GateActions {
 public:
  virtual ~GateActions() = default;
  // Raw monitor text as it came from the modem, before it is brought to normal form, and the name
  // of its dialect.
  virtual void GateMonitorBlock(std::string_view text, std::string_view dialect) = 0;
};

}  // namespace zepril

// What reception does with a message frame.
#pragma once

#include <string_view>

namespace zepril {

class MessageActions {
 public:
  virtual ~MessageActions() = default;
  // A received message: sender, information from its first ":" on, header line of the frame.
  virtual void MessageReceived(std::string_view from, std::string_view info,
                               std::string_view header) = 0;
};

}  // namespace zepril

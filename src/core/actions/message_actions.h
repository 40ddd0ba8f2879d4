// What reception does with a message frame.
#pragma once

#include <cstdint>
#include <string_view>

namespace zepril {

// A message as it was heard.
struct HeardMessage {
  std::string_view From;         // the sender
  std::string_view Info;         // information, from its first ":" on
  std::string_view Header;       // header line of the frame
  std::string_view Destination;  // of the header
  bool OverInternet = false;     // it was not heard but told of by a database
  std::int64_t AgeSeconds = 0;   // since it was sent; negative by a clock that is behind
};

class MessageActions {
 public:
  virtual ~MessageActions() = default;
  // Messages of another receive pass or page follow.
  virtual void PassBegins() {}
  // May hand control to the window system once.
  virtual void MessageReceived(const HeardMessage& message) = 0;
};

}  // namespace zepril

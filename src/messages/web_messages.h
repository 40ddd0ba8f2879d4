// Messages by way of a web form, for a station without a radio and for replies to such stations.
//
// They leave one after the other. While one is under way the main cycle rests; its end, a minute
// without an answer, or `Timer2` brings it back. What the form answers is not looked at.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "core/controls/map_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/identity.h"
#include "core/state/services.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/page_fetcher.h"

namespace zepril {

struct WebMessagesControls {
  WindowControls& Window;
  MapControls& Map;
  StatusControls& Status;
};

struct WebMessagesTools {
  PageFetcher& Pages;
  Clock& LocalClock;
  Timer& Timer1;
  Timer& Timer2;
};

class WebMessages {
 public:
  static constexpr double kPauseSeconds = 1.0;  // behind each
  static constexpr int kPatienceMilliseconds = 60000;
  // A form that can't be reached: the banner stays so long.
  static constexpr int kFailureMilliseconds = 2000;

  // `failed`: told the text of a message that did not arrive, and why; may be empty.
  using Failure = std::function<void(const std::string& frame_text, const std::string& reason)>;

  WebMessages(const IdentityState& identity, const ServicesState& services,
              WebMessagesControls controls, WebMessagesTools tools, Failure failed);
  ~WebMessages();
  WebMessages(const WebMessages&) = delete;
  WebMessages& operator=(const WebMessages&) = delete;

  // Hands the message over. Why that was not possible, in words; else an empty text.
  std::string Send(const std::string& frame_text);
  bool IsBusy() const { return !under_way_.empty(); }
  // The chat was closed: what the form has not yet been asked for is not sent. Replies stay.
  void DropWaiting();
  // Once a second: who does not answer is given up.
  void SecondPassed();

 private:
  struct Sending {
    std::int64_t Number = PageFetcher::kNone;
    std::string FrameText;
  };

  void ShowBanner();
  void PageCame(const Page& page);
  void FirstIsDone(const std::string& trouble);
  void Rest();

  const IdentityState& identity_;
  const ServicesState& services_;
  WebMessagesControls controls_;
  WebMessagesTools tools_;
  Failure failed_;
  std::deque<Sending> under_way_;  // in the order in which they were asked for
  double since_ = 0.0;             // monotonic seconds, when the first of them had its turn
};

}  // namespace zepril

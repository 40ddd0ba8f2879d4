// Asks for the form's address, and brings banner, pointer and timers back.
#include "messages/web_messages.h"

#include <utility>
#include <vector>

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "messages/message_texts.h"

namespace zepril {

WebMessages::WebMessages(const IdentityState& identity, const ServicesState& services,
                         WebMessagesControls controls, WebMessagesTools tools, Failure failed)
    : identity_(identity),
      services_(services),
      controls_(controls),
      tools_(tools),
      failed_(std::move(failed)) {}

WebMessages::~WebMessages() {
  // Those that wait first, so that none of them is begun.
  for (auto sending = under_way_.rbegin(); sending != under_way_.rend(); ++sending)
    tools_.Pages.Drop(sending->Number);
}

std::string WebMessages::Send(const std::string& frame_text) {
  if (services_.AprsCgiService.empty()) return chat_texts::kServiceOff;
  const std::int64_t number = tools_.Pages.Fetch(
      WebMessageUrl(services_.AprsCgiService, identity_.MyCallFull, frame_text),
      [this](const Page& page) { PageCame(page); }, Asking::Once);
  if (number == PageFetcher::kNone) return chat_texts::kServiceFull;
  if (under_way_.empty()) since_ = tools_.LocalClock.MonotonicSeconds();
  under_way_.push_back({number, frame_text});
  ShowBanner();
  return {};
}

void WebMessages::ShowBanner() {
  controls_.Window.Pointer = PointerShape::Hourglass;
  controls_.Map.Picture1.Pointer = PointerShape::Hourglass;
  tools_.Timer1.Stop();
  // Nothing else would bring the cycle back from a form that never answers.
  tools_.Timer2.Arm(kPatienceMilliseconds);
  Label& banner = controls_.Status.Text10;
  banner.Caption = chat_texts::kSendingOverInternet;
  banner.BackColour = state_colours::kSendingMessage;
  banner.Visible = true;
}

void WebMessages::PageCame(const Page& page) {
  if (page.Outcome == PageOutcome::Loaded) {
    // Before the pause, in which a second passes.
    FirstIsDone(page.IsGood() ? std::string()
                              : chat_texts::kServiceRefused.With({WholeNumber(page.Status)}));
    tools_.LocalClock.Wait(kPauseSeconds);
    if (under_way_.empty()) Rest();
    return;
  }
  FirstIsDone(chat_texts::kServiceSilent);
  // The banner stays until `Timer2` takes it away, or the next page does.
  if (under_way_.empty()) tools_.Timer2.Arm(kFailureMilliseconds);
}

void WebMessages::FirstIsDone(const std::string& trouble) {
  since_ = tools_.LocalClock.MonotonicSeconds();
  const Sending first = std::move(under_way_.front());
  under_way_.pop_front();
  // The banner is there for the next one as long.
  if (!under_way_.empty()) tools_.Timer2.Arm(kPatienceMilliseconds);
  if (!trouble.empty() && failed_) failed_(first.FrameText, trouble);
}

void WebMessages::Rest() {
  controls_.Status.Text10.Visible = false;
  controls_.Status.Text10.BackColour = state_colours::kCollectingMoni1;
  controls_.Window.Pointer = PointerShape::Default;
  controls_.Map.Picture1.Pointer = PointerShape::Default;
  tools_.Timer1.Enable();
}

void WebMessages::DropWaiting() {
  std::vector<Sending> dropped;
  std::erase_if(under_way_, [&](const Sending& sending) {
    if (tools_.Pages.IsUnderWay(sending.Number) || IsForWebOnly(sending.FrameText)) return false;
    dropped.push_back(sending);
    return true;
  });
  if (dropped.empty()) return;
  for (const Sending& sending : dropped)
    tools_.Pages.Drop(sending.Number);
  if (under_way_.empty()) Rest();
  // Who is told may look here again.
  for (const Sending& sending : dropped) {
    if (failed_) failed_(sending.FrameText, chat_texts::kChatClosed);
  }
}

void WebMessages::SecondPassed() {
  if (under_way_.empty()) return;
  // Pages of others may be before it in the line.
  const double now = tools_.LocalClock.MonotonicSeconds();
  if (!tools_.Pages.IsUnderWay(under_way_.front().Number)) since_ = now;
  const double waited = now - since_;
  if (waited * 1000.0 < kPatienceMilliseconds) return;
  const std::int64_t number = under_way_.front().Number;
  FirstIsDone(chat_texts::kServiceSilent);
  tools_.Pages.Drop(number);
  if (under_way_.empty()) Rest();
}

}  // namespace zepril

// Follows the link from pass to pass, and words a loss once.
#include "links/link_watch.h"

#include <utility>

namespace zepril {

LinkWatch::LinkWatch(const RadioState& radio, StatusControls& status, LinkWatchTools tools)
    : radio_(radio), status_(status), tools_(std::move(tools)) {
  tools_.Links.Changed = [this] { LinkChanged(); };
  status_.LinkNotice.Click = [this] { status_.LinkNotice.Visible = false; };
}

bool LinkWatch::IsUp() const {
  const RadioLink* link = tools_.Links.Active();
  return link && link->IsUp();
}

LinkLamp LinkWatch::Lamp() const {
  const RadioLink* link = tools_.Links.Active();
  const bool up = IsUp();
  LinkLamp lamp = LampOf({link != nullptr, up, tools_.CycleIsHeld(), radio_.LastDataSeconds,
                          lost_since_, tools_.LocalClock.MonotonicSeconds()});
  const std::string trouble = link ? link->Trouble() : std::string();
  if (!trouble.empty() && !up) lamp.ToolTip += "\n" + trouble;
  return lamp;
}

void LinkWatch::Renew() {
  if (!tools_.Links.Active() || IsUp()) {
    lost_since_ = -1.0;
  } else if (lost_since_ < 0.0) {
    lost_since_ = tools_.LocalClock.MonotonicSeconds();
  }
}

void LinkWatch::Started() {
  if (tools_.Links.Active() && !IsUp()) ShowNotice();
  Renew();
}

void LinkWatch::LinkChanged() {
  Renew();
  ShowNotice();
}

void LinkWatch::ShowNotice() {
  const RadioLink* link = tools_.Links.Active();
  const std::string notice = link && !link->IsUp() ? link->LostNotice() : std::string();
  status_.LinkNotice.Visible = !notice.empty();
  status_.LinkNotice.Caption = notice;
}

}  // namespace zepril

// Follows the link from pass to pass, and words a loss once.
#include "links/link_watch.h"

#include <utility>

#include "core/texts/notices.h"

namespace zepril {

LinkWatch::LinkWatch(const RadioState& radio, StatusControls& status, LinkWatchTools tools)
    : radio_(radio), status_(status), tools_(std::move(tools)) {
  tools_.RemoteEngine.LinkChanged = [this] { EngineChanged(tools_.RemoteEngine.LinkIsUp()); };
  tools_.LocalEngine.LinkChanged = [this] { EngineChanged(tools_.LocalEngine.LinkIsUp()); };
  status_.LinkNotice.Click = [this] { status_.LinkNotice.Visible = false; };
}

bool LinkWatch::HasLink() const {
  switch (static_cast<RadioMode>(radio_.RadioMode)) {
    case RadioMode::AgwLocal:
    case RadioMode::AgwRemote:
    case RadioMode::Pk232:
    case RadioMode::ScsTnc:
    case RadioMode::ScsPtc:
      return true;
    default:
      return false;
  }
}

bool LinkWatch::IsUp() const {
  switch (static_cast<RadioMode>(radio_.RadioMode)) {
    case RadioMode::AgwLocal:
      return tools_.LocalEngine.LinkIsUp();
    case RadioMode::AgwRemote:
      return tools_.RemoteEngine.LinkIsUp();
    default:
      return HasLink() && tools_.Modem.LinkIsUp();
  }
}

LinkLamp LinkWatch::Lamp() const {
  const bool up = IsUp();
  LinkLamp lamp = LampOf({HasLink(), up, tools_.CycleIsHeld(), radio_.LastDataSeconds, lost_since_,
                          tools_.LocalClock.MonotonicSeconds()});
  if (const std::string trouble = tools_.Modem.Trouble(); !trouble.empty() && !up) {
    lamp.ToolTip += "\n" + trouble;
  }
  return lamp;
}

void LinkWatch::Renew() {
  if (!HasLink() || IsUp()) {
    lost_since_ = -1.0;
  } else if (lost_since_ < 0.0) {
    lost_since_ = tools_.LocalClock.MonotonicSeconds();
  }
}

void LinkWatch::Started() {
  if (radio_.RadioMode == static_cast<int>(RadioMode::AgwLocal) && !IsUp()) EngineChanged(false);
  Renew();
}

void LinkWatch::ShowModemTrouble() {
  status_.LinkNotice.Caption = tools_.Modem.Trouble();
  status_.LinkNotice.Visible = !status_.LinkNotice.Caption.empty();
}

// Once at each loss, and no box: the lamp goes on telling. It goes with the loss.
void LinkWatch::EngineChanged(bool up) {
  Renew();
  status_.LinkNotice.Visible = !up;
  if (up) return;
  const bool local = radio_.RadioMode == static_cast<int>(RadioMode::AgwLocal);
  status_.LinkNotice.Caption =
      local ? notices::kLocalEngineSilent
            : notices::kRemoteEngineSilent.With({radio_.AgwHost, radio_.AgwTcpPort});
}

}  // namespace zepril

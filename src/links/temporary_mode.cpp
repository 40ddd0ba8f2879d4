// Sends the change of mode and the change back, once each.
#include "links/temporary_mode.h"

#include "core/radio_rules.h"
#include "core/texts/notices.h"

namespace zepril {
namespace {

constexpr const char* kRobust = "%BR300";
constexpr const char* kFsk = "%B300";

}  // namespace

TemporaryMode::TemporaryMode(const RadioState& radio, RawListControls& raw,
                             TerminalControls& terminal, SerialPort& port)
    : radio_(radio), terminal_(terminal), port_(port) {
  terminal_.Label49.Visible = false;
  raw.RawList.RightDown = [this] { SwitchOn(); };
  raw.RawList.RightUp = [this] { SwitchOff(); };
}

bool TemporaryMode::Applies() const {
  return HasSecondMode(radio_) && (radio_.BaudMode == "300R" || radio_.BaudMode == "300") &&
         !terminal_.Frame19.Visible;
}

void TemporaryMode::SwitchOn() {
  if (on_ || !Applies()) return;
  on_ = true;
  const bool robust = radio_.BaudMode == "300R";
  Send(robust ? kFsk : kRobust);
  terminal_.Label49.Caption = robust ? notices::kTemporaryFsk : notices::kTemporaryRobust;
  terminal_.Label49.Visible = true;
}

void TemporaryMode::SwitchOff() {
  if (!on_) return;
  on_ = false;
  Send(radio_.BaudMode == "300R" ? kRobust : kFsk);
  terminal_.Label49.Visible = false;
}

void TemporaryMode::Send(const std::string& command) {
  port_.Write("\x1B" + command + "\r");
}

}  // namespace zepril

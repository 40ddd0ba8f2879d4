// Shows the port fields of an interface, and marks what can't be in them while it is typed.
#include "station/start/port_fields.h"

#include "core/port_number.h"
#include "core/text_fields.h"
#include "core/texts/notices.h"
#include "core/texts/status_texts.h"
#include "station/start/port_choice.h"

namespace zepril {

PortFields::PortFields(StartPanelControls& controls, RadioInterfaces& interfaces,
                       DeviceList& devices)
    : controls_(controls), interfaces_(interfaces), devices_(devices) {
  controls_.Text3.Change = [this] { PortChanged(); };
  controls_.Text4.Change = [this] { SpeedChanged(); };
}

void PortFields::Keep() {
  if (shown_ == nullptr) return;
  shown_->Port = controls_.Text3.Text;
  shown_->Speed = controls_.Text4.Text;
}

void PortFields::Show() {
  const RadioInterface& chosen = interfaces_.Chosen();
  shown_ = chosen.Texts;
  for (Control* control :
       {static_cast<Control*>(&controls_.PortLabel), static_cast<Control*>(&controls_.SpeedLabel),
        static_cast<Control*>(&controls_.Text3), static_cast<Control*>(&controls_.Text4)}) {
    control->Visible = shown_ != nullptr;
  }
  controls_.PortLabel.Caption = chosen.Serial() ? status_texts::kCommPort : status_texts::kHostName;
  controls_.SpeedLabel.Caption =
      chosen.Serial() ? status_texts::kCommBaud : status_texts::kHostPort;
  controls_.PortFault.Caption.clear();
  controls_.Text3.Text = shown_ != nullptr ? shown_->Port : std::string();
  controls_.Text4.Text = shown_ != nullptr ? shown_->Speed : std::string();
  ReadDevices();
}

void PortFields::ReadDevices() {
  devices_.Read(interfaces_.Chosen().Serial());
}

void PortFields::DeviceListOpens() {
  ReadDevices();
  if (interfaces_.Chosen().Serial() && devices_.Empty()) {
    controls_.PortFault.Caption = notices::kNoDevice;
  }
}

std::string PortFields::ShownPort() const {
  const std::string port(Trim(controls_.Text3.Text));
  if (const auto number = PortNumberOfText(port))
    return status_texts::kPort.With({WholeNumber(*number)});
  return port.substr(port.rfind('/') + 1);
}

// Chosen from the list or typed.
void PortFields::PortChanged() {
  controls_.PortFault.Caption.clear();
  if (!interfaces_.Chosen().Serial()) return;
  devices_.TakeChosenRow();
  const auto number = PortNumberOfText(controls_.Text3.Text);
  if (number && !IsPortNumber(*number)) {
    controls_.PortFault.Caption = notices::kPortNumbers.With({WholeNumber(kHighestPortNumber)});
  }
}

void PortFields::SpeedChanged() {
  controls_.PortFault.Caption.clear();
  const std::string_view speed = Trim(controls_.Text4.Text);
  if (speed.empty() || Val(speed) > 0.0) return;
  controls_.PortFault.Caption =
      interfaces_.Chosen().Serial() ? notices::kSpeedIsNumber : notices::kPortIsNumber;
}

}  // namespace zepril

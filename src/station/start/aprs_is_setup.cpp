// Opens the panel, and takes its fields on OK.
#include "station/start/aprs_is_setup.h"

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {

AprsIsSetup::AprsIsSetup(StartPanelControls& controls, const RadioInterfaces& interfaces,
                         StartPanelSettings& settings, FieldStore& fields)
    : controls_(controls), interfaces_(interfaces), settings_(settings), fields_(fields) {
  controls_.AprsIsPanel.Visible = false;
  controls_.Command14.Click = [this] { Open(); };
  controls_.Command15.Caption = status_texts::kOk;
  controls_.Command15.Click = [this] { Command15Click(); };
}

void AprsIsSetup::Show() {
  const InternetState& held = settings_.Internet;
  if (!held.AprsIsServer.empty()) controls_.AprsIsServerField.Text = held.AprsIsServer;
  if (!held.AprsIsPort.empty()) controls_.AprsIsPortField.Text = held.AprsIsPort;
}

void AprsIsSetup::Follow() {
  controls_.Command14.Enabled = interfaces_.Chosen().MayGate();
}

void AprsIsSetup::Open() {
  controls_.Command1.Enabled = false;
  controls_.AprsIsPanel.Visible = true;
  controls_.AprsIsServerField.FocusWanted = true;
}

void AprsIsSetup::Command15Click() {
  settings_.Internet.AprsIsServer = Trim(controls_.AprsIsServerField.Text);
  settings_.Internet.AprsIsPort = Trim(controls_.AprsIsPortField.Text);
  controls_.AprsIsPanel.Visible = false;
  controls_.Command1.Enabled = true;
  fields_.StoreHeld();
}

}  // namespace zepril

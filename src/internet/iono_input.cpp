// Opens the panel, checks the typed numbers, and redraws the circles.
#include "internet/iono_input.h"

#include "core/iono_numbers.h"
#include "core/keys.h"
#include "core/texts/boxes.h"

namespace zepril {

IonoInput::IonoInput(InternetState& internet, MapViewState& view, IonoControls& controls,
                     MapControls& map, IonoInputTools tools)
    : internet_(internet), view_(view), controls_(controls), tools_(tools) {
  map.Check9.RightClick = [this] { Open(); };
  controls.IonoOk.Click = [this] { Apply(); };
  controls.IonoClose.Click = [this] { controls_.Frame18.Visible = false; };
  controls.FoptDetailed.Click = [this] {
    view_.FoptDetailed = controls_.FoptDetailed.Value != 0;
    if (view_.CirclesOn) tools_.Map.MapRedraw();
  };
  for (TextBox* field : {&controls.Text11, &controls.Text12}) {
    field->KeyDown = [this](KeyPress key) {
      if (key.Code == kEnterKey) Apply();
    };
  }
}

void IonoInput::Open() {
  tools_.Update.ShowValues();
  controls_.FoptDetailed.Value = view_.FoptDetailed ? 1 : 0;
  controls_.Frame18.Visible = true;
  if (!tools_.Update.IsAutomatic()) {
    controls_.Text11.FocusWanted = true;
    return;
  }
  controls_.IonoOk.FocusWanted = true;
  tools_.Timer1.Stop();
  tools_.Timer2.Arm(kWatchdogMilliseconds);
  tools_.Update.StartIonoUpdate();
}

void IonoInput::Apply() {
  if (tools_.Update.IsAutomatic()) {
    controls_.Frame18.Visible = false;
    return;
  }
  const auto sunspots = NumberUpTo(controls_.Text11.Text, kHighestSunspotNumber);
  if (!sunspots) return Refuse(controls_.Text11, boxes::kSunspotsRange);
  const auto k = NumberUpTo(controls_.Text12.Text, kHighestK);
  if (!k) return Refuse(controls_.Text12, boxes::kKRange);
  internet_.SunspotNumber = *sunspots;
  internet_.KpIndex = *k;
  controls_.Frame18.Visible = false;
  tools_.Settings.WriteConfigFromMainWindow();
  if (view_.CirclesOn) tools_.Map.MapRedraw();
}

void IonoInput::Refuse(TextBox& field, Text what) {
  tools_.Boxes.Tell(boxes::kTitle, what);
  field.FocusWanted = true;
}

}  // namespace zepril

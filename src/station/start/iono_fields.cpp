// Shows, locks and takes the two numbers.
#include "station/start/iono_fields.h"

#include <cmath>
#include <limits>

#include "core/text_fields.h"

namespace zepril {
namespace {

void TakeNumber(const TextBox& field, double& held) {
  const double number = Val(field.Text);
  if (std::fabs(number) < std::numeric_limits<double>::max()) held = number;
}

}  // namespace

IonoFields::IonoFields(StartPanelControls& controls, InternetState& held)
    : controls_(controls), held_(held) {
  controls_.Check8.Click = [this] { Follow(); };
}

void IonoFields::Show() {
  controls_.Text15.Text = ShortNumber(held_.SunspotNumber);
  controls_.Text16.Text = ShortNumber(held_.KpIndex);
  controls_.Check8.Value = held_.IonoAutoOn == 0 ? 0 : 1;
  Follow();
}

void IonoFields::Follow() {
  const bool by_hand = controls_.Check8.Value == 0;
  controls_.Text15.Enabled = by_hand;
  controls_.Text16.Enabled = by_hand;
}

void IonoFields::Take() {
  TakeNumber(controls_.Text15, held_.SunspotNumber);
  TakeNumber(controls_.Text16, held_.KpIndex);
  held_.IonoAutoOn = controls_.Check8.Value;
}

}  // namespace zepril

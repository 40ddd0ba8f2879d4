// Shows, locks and takes the two numbers.
#include "station/start/iono_fields.h"

#include <cmath>
#include <limits>

#include "core/iono_numbers.h"
#include "core/text_fields.h"
#include "core/texts/notices.h"

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
  controls_.Text15.Change = [this] { Mark(); };
  controls_.Text16.Change = [this] { Mark(); };
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
  Mark();
}

void IonoFields::Mark() {
  Label& fault = controls_.IonoFault;
  fault.Caption.clear();
  // Of what is not typed here nothing is said.
  if (controls_.Check8.Value != 0) return;
  if (!NumberUpTo(controls_.Text16.Text, kHighestK)) fault.Caption = notices::kKIs;
  if (!NumberUpTo(controls_.Text15.Text, kHighestSunspotNumber)) {
    fault.Caption = notices::kSunspotsAre;
  }
}

void IonoFields::Take() {
  TakeNumber(controls_.Text15, held_.SunspotNumber);
  TakeNumber(controls_.Text16, held_.KpIndex);
  held_.IonoAutoOn = controls_.Check8.Value;
}

}  // namespace zepril

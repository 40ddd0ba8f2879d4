// Opens with the object's values, and takes, deletes or leaves them.
#include "transmit/object_setup.h"

#include <string>

#include "core/centre_follow.h"
#include "core/text_fields.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {
namespace {

constexpr std::size_t kNameWidth = 9;

// Upper case and padded to its nine characters; a longer one is not cut, an empty one stays empty.
std::string ObjectNameOf(std::string_view typed) {
  const std::string name = Upper(Trim(typed));
  return name.empty() ? name : PadRight(name, kNameWidth);
}

}  // namespace

ObjectSetup::ObjectSetup(TransmissionState& transmission, MapViewState& view,
                         ObjectSetupControls& controls, MapControls& map,
                         TransmitControls& transmit, ObjectSetupTools tools)
    : transmission_(transmission),
      view_(view),
      controls_(controls),
      map_(map),
      transmit_(transmit),
      tools_(tools) {
  controls_.Frame11.Visible = false;
  transmit_.Check18.RightClick = [this] { Open(); };
  controls_.ObjectOk.Click = [this] { Apply(); };
  controls_.Command31.Click = [this] { Delete(); };
  controls_.Command32.Click = [this] { Cancel(); };
  controls_.ObjectOverlayField.Change = [this] { ShowSymbol(); };
  controls_.ObjectSymbolDown.Click = [this] { StepSymbol(-1); };
  controls_.ObjectSymbolUp.Click = [this] { StepSymbol(+1); };
}

void ObjectSetup::Open() {
  if (controls_.Frame11.Visible) return;
  tools_.Timer1.Stop();
  tools_.Timer2.Stop();
  FillFields();
  controls_.Frame11.Visible = true;
  controls_.ObjectNameField.FocusWanted = true;
  if (transmission_.ObjectName.empty()) return;
  // The map goes to the object and follows nobody.
  view_.ObjectCenterPending = true;
  FollowNobody(view_, map_);
  tools_.Map.MapRedraw();
}

void ObjectSetup::FillFields() {
  controls_.ObjectNameField.Text = Trim(transmission_.ObjectName);
  controls_.ObjectTextField.Text = transmission_.ObjectText;
  controls_.ObjectOverlayField.Text = transmission_.ObjectOverlay;
  controls_.SymbolIndex = transmission_.ObjectSymbol;
  ShowSymbol();
}

void ObjectSetup::StepSymbol(int direction) {
  controls_.SymbolIndex = SteppedSymbol(controls_.SymbolIndex, direction);
  ShowSymbol();
}

void ObjectSetup::ShowSymbol() {
  controls_.ObjectSymbolName.Caption = tools_.Symbols.Name(controls_.SymbolIndex);
  tools_.Preview.Show(controls_.SymbolIndex, OverlayOf(controls_.ObjectOverlayField.Text));
}

// Text, symbol and place; the name is the caller's.
void ObjectSetup::TakeFields() {
  transmission_.ObjectText = Trim(controls_.ObjectTextField.Text);
  transmission_.ObjectSymbol = controls_.SymbolIndex;
  transmission_.ObjectOverlay = OverlayOf(controls_.ObjectOverlayField.Text);
  transmission_.ObjectNorth = view_.CentreNorthKm;
  transmission_.ObjectEast = view_.CentreEastKm;
}

void ObjectSetup::Apply() {
  transmission_.ObjectName = ObjectNameOf(controls_.ObjectNameField.Text);
  TakeFields();
  // An object without a name is none on the air.
  if (transmission_.ObjectName.empty()) tools_.Switches.ObjectOff();
  if (transmission_.ObjectTxOn == 1) transmission_.LastObjectTime = 0;
  Close();
}

// Kept: no report tells others that the object has gone.
void ObjectSetup::Delete() {
  transmission_.ObjectName.clear();
  tools_.Switches.ObjectOff();
  TakeFields();
  Close();
}

void ObjectSetup::Close() {
  tools_.Settings.WriteConfigFromMainWindow();
  controls_.Frame11.Visible = false;
  tools_.Map.MapRedraw();
  tools_.Timer1.Enable();
}

void ObjectSetup::Cancel() {
  FillFields();
  controls_.Frame11.Visible = false;
  tools_.Timer1.Enable();
}

}  // namespace zepril

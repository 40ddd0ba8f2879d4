// Follows the map with the fields, reads what is typed, takes or cancels.
#include "map/qth_setup.h"

#include <utility>

#include "core/centre_follow.h"
#include "core/keys.h"
#include "core/position_text.h"
#include "core/text_fields.h"
#include "map/typed_position.h"

namespace zepril {
namespace {

// A blank inside would part it into two values.
std::string WithoutBlanks(const std::string& text) {
  std::string tight;
  for (const char c : text)
    if (c != ' ') tight += c;
  return tight;
}

std::string NorthText(double km) {
  return WithoutBlanks(RecordNorthText(RoundHalfEven(km * 1000.0)));
}

std::string EastText(double km) {
  return WithoutBlanks(RecordEastText(RoundHalfEven(km * 1000.0)));
}

}  // namespace

QthSetup::QthSetup(MapViewState& view, QthSetupControls& controls, MapControls& map,
                   QthSetupTools tools)
    : view_(view), controls_(controls), map_(map), tools_(tools) {
  map_.Option1.RightClick = [this] { Open(); };
  controls_.QthOk.Click = [this] { TakeCentre(); };
  controls_.Command22.Click = [this] { Cancel(); };
  for (TextBox* field : {&controls_.TextQthNorth, &controls_.TextQthEast}) {
    field->GotFocus = [this] { Begin(); };
    field->Change = [this] { Begin(); };
    field->KeyDown = [this](KeyPress key) {
      if (key.Code == kEnterKey && Typed()) JumpToTyped();
    };
  }
  controls_.QthRests.Visible = false;
  Tell({});
}

void QthSetup::Open() {
  controls_.Frame2.Visible = true;
  begun_ = false;
  Begin();
  Tell({});
  FollowNobody(view_, map_);
  tools_.Map.MapRedraw();
}

void QthSetup::Begin() {
  if (!controls_.Frame2.Visible || begun_) return;
  begun_ = true;
  controls_.QthRests.Visible = true;
  tools_.Timer1.Stop();
  tools_.Timer2.Stop();
}

bool QthSetup::Typed() const {
  return controls_.TextQthNorth.Text != shown_north_ || controls_.TextQthEast.Text != shown_east_;
}

void QthSetup::ShowFields() {
  if (!controls_.Frame2.Visible) return;
  const bool moved = view_.CentreNorthKm != shown_north_km_ || view_.CentreEastKm != shown_east_km_;
  if (Typed() && !moved) return;
  if (moved) Tell({});
  shown_north_km_ = view_.CentreNorthKm;
  shown_east_km_ = view_.CentreEastKm;
  shown_north_ = NorthText(view_.CentreNorthKm);
  shown_east_ = EastText(view_.CentreEastKm);
  controls_.TextQthNorth.Text = shown_north_;
  controls_.TextQthEast.Text = shown_east_;
}

// False, with the reason shown and the texts left, when it is no position.
bool QthSetup::JumpToTyped() {
  const TypedPosition typed = ReadTypedPosition(
      {controls_.TextQthNorth.Text, controls_.TextQthNorth.Text != shown_north_},
      {controls_.TextQthEast.Text, controls_.TextQthEast.Text != shown_east_}, view_);
  Tell(typed.Note);
  if (!typed.Place) return false;
  view_.QthNorthText = NorthText(typed.Place->NorthKm);
  view_.QthEastText = EastText(typed.Place->EastKm);
  JumpOnceToTyped(view_);
  // Entered: the fields show where the map is now, also when it was there before.
  shown_north_ = controls_.TextQthNorth.Text;
  shown_east_ = controls_.TextQthEast.Text;
  tools_.Map.MapRedraw();
  Tell(typed.Note);
  return true;
}

void QthSetup::TakeCentre() {
  if (Typed() && !JumpToTyped()) return;
  view_.OwnNorthKm = view_.CentreNorthKm;
  view_.OwnEastKm = view_.CentreEastKm;
  Close();
  if (PositionTaken) PositionTaken();
  tools_.Settings.WriteConfigFromMainWindow();
  tools_.Map.MapRedraw();
}

void QthSetup::Cancel() {
  Close();
  tools_.Timer1.Enable();
}

void QthSetup::Close() {
  controls_.Frame2.Visible = false;
  begun_ = false;
  controls_.QthRests.Visible = false;
  // What was typed and not entered is not there again at the next opening.
  controls_.TextQthNorth.Text = shown_north_;
  controls_.TextQthEast.Text = shown_east_;
  Tell({});
}

void QthSetup::Tell(std::string note) {
  controls_.QthNote.Visible = !note.empty();
  controls_.QthNote.Caption = std::move(note);
}

}  // namespace zepril

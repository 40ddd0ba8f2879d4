// Whether a report can be made, what it holds, and what is told of it.
#include "transmit/position_beacon.h"

#include "core/sent_text.h"
#include "core/text_fields.h"
#include "transmit/position_report.h"

namespace zepril {

bool PositionBeacon::PositionKnown() const {
  return sections_.View.OwnNorthKm != 0.0 || sections_.View.OwnEastKm != 0.0;
}

// A report that can't be made is told like one that can't be sent.
bool PositionBeacon::MaySend() const {
  const bool call = !Trim(sections_.Identity.MyCall).empty();
  if (!call) tools_.Sender.Refuse(Delivery::NoCall);
  if (call && !PositionKnown()) tools_.Sender.Refuse(Delivery::NoPosition);
  return call && PositionKnown();
}

void PositionBeacon::SendByHand() {
  if (tools_.Sender.IsBusy()) return tools_.Sender.Refuse(Delivery::StillLeaving);
  SendPositionBeacon();
}

void PositionBeacon::SendPositionBeacon() {
  if (!MaySend()) return;
  Send(NextComment());
}

void PositionBeacon::SendIdentification(const std::string& status) {
  if (!MaySend()) return;
  Send(status);
}

std::string PositionBeacon::NextComment() {
  TransmissionState& own = sections_.Transmission;
  own.InfoLineIndex = NextInfoLine(own.InfoLineIndex, own.InfoLineActive);
  const auto line = static_cast<std::size_t>(own.InfoLineIndex) - 1;
  return own.InfoLineActive[line] != 0 ? own.InfoLine[line] : std::string();
}

// "@" with the time when it is wanted and the clock was set from GPS, else "=". Both tell that the
// station takes messages.
std::string PositionBeacon::Prefix() const {
  if (sections_.Transmission.TxTimestamp != 1 || sections_.Gps.GpsTimeValid != 1) return "=";
  return "@" + TimeStamp();
}

std::string PositionBeacon::TimeStamp() const {
  return UtcStamp(tools_.LocalClock.Now(), sections_.Settings.UtcOffsetHours);
}

std::string PositionBeacon::PositionField(double north_km, double east_km, int symbol,
                                          const std::string& overlay) const {
  const MapViewState& view = sections_.View;
  const DegreeTexts texts =
      DegreeTextsOf(north_km, east_km, view.MapCentralMeridian, view.MapFalseEasting);
  return PositionFieldOfRow(texts, tools_.Symbols, symbol, overlay);
}

void PositionBeacon::Send(const std::string& comment) {
  const TransmissionState& own = sections_.Transmission;
  const MapViewState& view = sections_.View;
  ShowBusy(true);
  const std::string position =
      PositionField(view.OwnNorthKm, view.OwnEastKm, own.TxSymbolIndex, own.TxOverlay);
  // An engine would put control bytes on the air as they are.
  const std::string text = Prefix() + position + CommentField(comment, tools_.Disk);
  tools_.Sender.SendFrame(WithoutControlCharacters(text));
  ShowBusy(false);
}

void PositionBeacon::SendObjectReport() {
  if (!MaySend()) return;
  const TransmissionState& own = sections_.Transmission;
  ShowBusy(true);
  const std::string position =
      PositionField(own.ObjectNorth, own.ObjectEast, own.ObjectSymbol, own.ObjectOverlay);
  tools_.Sender.SendFrame(WithoutControlCharacters(
      ObjectReport(own.ObjectName, TimeStamp(), position, own.ObjectText)));
  ShowBusy(false);
}

void PositionBeacon::ShowBusy(bool busy) {
  const PointerShape shape = busy ? PointerShape::Hourglass : PointerShape::Default;
  tools_.Window.Pointer = shape;
  tools_.Map.Picture1.Pointer = shape;
}

}  // namespace zepril

// Asks, then sends the record that is shown.
#include "transmit/retransmission.h"

#include <string>

#include "core/radio_rules.h"
#include "core/station_record.h"
#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "transmit/position_report.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestRecord = 33;

// The record behind the line on the window, where each "&" stands twice.
std::string RecordText(const std::string& caption) {
  std::string text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    text += caption[at];
    if (caption[at] == '&' && at + 1 < caption.size() && caption[at + 1] == '&') ++at;
  }
  return text;
}

}  // namespace

Retransmission::Retransmission(const IdentityState& identity, const RadioState& radio,
                               const MapViewState& view, RecordPanelControls& record,
                               RetransmissionTools tools)
    : identity_(identity), radio_(radio), view_(view), record_(record), tools_(tools) {
  record_.Label20.Click = [this] { RetransmitStation(); };
}

void Retransmission::RetransmitStation() {
  if (HasNoRadio(radio_)) return;
  const std::string line = RecordText(record_.Label20.Caption);
  if (Trim(line).empty()) return;
  tools_.Timer1.Stop();
  const DialogAnswer answer = tools_.Boxes.Ask(boxes::kRetransmitTitle, boxes::kRetransmit,
                                               DialogButtons::YesNo, DialogAnswer::No);
  if (answer == DialogAnswer::Yes) Send(line);
  tools_.Timer1.Enable();
  if (answer == DialogAnswer::Yes) tools_.LocalClock.HandOver();
}

void Retransmission::Send(const std::string& line) {
  if (Trim(identity_.MyCall).empty() || line.size() < kShortestRecord) return;
  const StationRecord record(line);
  const DegreeTexts texts = DegreeTextsOf(record.NorthKm(), record.EastKm(),
                                          view_.MapCentralMeridian, view_.MapFalseEasting);
  // The second mode of an SCS TNC is left as it is here.
  tools_.Sender.SendFrame(
      RetransmittedReport(record, identity_.MyCallFull, tools_.LocalClock.Now().Day, texts),
      SecondMode::LeaveAsItIs);
}

}  // namespace zepril

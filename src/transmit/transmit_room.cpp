// How the parts that transmit are built, and what they ask of the links.
#include "transmit/transmit_room.h"

#include <algorithm>

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "transmit/identification.h"

namespace zepril {

TransmitRoom::TransmitRoom(TransmitSections sections, TransmitRoomControls controls,
                           TransmitTools tools)
    : Sender(tools.Links.Radios, tools.LocalClock),
      Outcome(controls.Transmit, tools.LocalClock),
      Beacon({sections.Identity, sections.Transmission, sections.View, sections.Gps,
              sections.Settings},
             {Sender, tools.Symbols, tools.Disk, tools.LocalClock, controls.Window, controls.Map}),
      Switches({sections.Transmission, sections.Chat, sections.Gps},
               {controls.Transmit, controls.Chat, controls.Record}, Beacon, tools.Map),
      TxSymbol(tools.TxSymbolSurface, controls.TxSetup.SymbolPicture, tools.Sheets, tools.Symbols),
      ObjectSymbol(tools.ObjectSymbolSurface, controls.ObjectSetup.ObjectSymbolPicture,
                   tools.Sheets, tools.Symbols),
      Setup({sections.Identity, sections.Radio, sections.Transmission, sections.Internet,
             sections.Received},
            controls.TxSetup, controls.Transmit, controls.Gate,
            {SetupJoins, tools.Settings, Switches, tools.Links.Radios, tools.LongWork,
             tools.Symbols, TxSymbol, tools.Timer1, tools.Timer2}),
      Object(sections.Transmission, sections.View, controls.ObjectSetup, controls.Map,
             controls.Transmit,
             {tools.Map, tools.Settings, tools.Symbols, ObjectSymbol, Switches, tools.Timer1,
              tools.Timer2}),
      Again(sections.Identity, sections.Radio, sections.View, controls.Record,
            {Sender, tools.Boxes, tools.LocalClock, tools.Timer1}),
      sections_(sections),
      controls_(controls),
      tools_(tools) {
  LinksRoom& links = tools_.Links;
  // What is being said to the modem is not broken into.
  Sender.HeldBack = [&links] { return links.Talk.IsOpen(); };
  Sender.Leaving = [this] { Outcome.Leaving(); };
  Sender.Left = [this](Delivery delivery) { Outcome.Tell(delivery); };
  Switches.TurnedOff = [&links] {
    if (RadioLink* link = links.Radios.Active()) link->DropUnsent();
  };
  controls_.Transmit.NextBeacon.Colour = state_colours::kOnTheAir;
  controls_.Transmit.NextBeacon.Visible = false;
}

void TransmitRoom::SendIdentification() {
  Beacon.SendIdentification(
      IdentificationText(sections_.Radio, sections_.Internet.IGateConnected == GateLink::Up));
}

void TransmitRoom::TerminalChanged(bool open) {
  for (Control* control : std::initializer_list<Control*>{
           &controls_.Transmit.Check6, &controls_.TxSetup.TxOk, &controls_.Record.Label20}) {
    control->Enabled = !open;
    if (open && !control->ToolTip.empty()) control->ToolTip = status_texts::kNotInTerminal;
  }
}

void TransmitRoom::ShowNextBeacon() {
  FillBar& bar = controls_.Transmit.NextBeacon;
  const TransmissionState& own = sections_.Transmission;
  bar.Visible = controls_.Transmit.Check6.Value == 1 && own.TxIntervalMinutes > 0;
  if (!bar.Visible) return;
  const std::int64_t interval = 60LL * own.TxIntervalMinutes;
  const std::int64_t gone = SecondsOf(tools_.LocalClock.Now()) - own.LastBeaconTime;
  const std::int64_t shown = std::clamp<std::int64_t>(gone, 0, interval);
  bar.FilledPx = static_cast<int>(shown * bar.FullWidthPx / interval);
  bar.ToolTip = status_texts::kNextReport.With({WholeNumber((interval - shown + 59) / 60)});
}

}  // namespace zepril

// The table of the start window: a row a control.
#include "core/texts/form0_texts.h"

#include "core/controls/start_panel_controls.h"
#include "core/texts/control_rows.h"

namespace zepril {
// Found by the table through its form.
static auto Groups(StartPanelControls& controls) {
  return std::tie(controls);
}

namespace {

using C = StartPanelControls;

// Name, control, caption, tool tip, called, while empty, key.
constexpr ControlRow<C> kTable[] = {
    {"Text8", On<&C::Text8>(), {}, {}, {"USER CALL"}},
    {"Fault", On<&C::Fault>()},
    {"Text5", On<&C::Text5>(), {}, {}, {"MONI CALL"}},
    {"Text1", On<&C::Text1>(), {}, {}, {"MAPS PATH"}},
    {"Text15", On<&C::Text15>(), {}, {"Sunspot number (1-180 are used)"}, {"SUNSPOT(R)"}},
    {"Text16", On<&C::Text16>(), {}, {"Planetary K index (0-9)"}, {"K"}},
    {"Check8",
     On<&C::Check8>(),
     Own("<- INET"),
     {"Fetch ionospherical data automatically via internet"}},
    {"IonoFault", On<&C::IonoFault>()},
    {"Option1", On<&C::Option1>(), Own("PK 232")},
    {"Option2", On<&C::Option2>(), Own("AGW PE")},
    {"Option9", On<&C::Option9>(), Own("AGW LAN")},
    {"Option10", On<&C::Option10>(), Own("-")},
    {"Option11", On<&C::Option11>(), Own("SCS TNC")},
    {"Option13", On<&C::Option13>(), Own("SCS PTC")},
    {"PortLabel", On<&C::PortLabel>()},
    {"Text3", On<&C::Text3>()},
    {"SpeedLabel", On<&C::SpeedLabel>()},
    {"Text4", On<&C::Text4>()},
    {"PortFault", On<&C::PortFault>()},
    {"Text6",
     On<&C::Text6>(),
     {},
     {"NMEA183-source (COM port number of GPS receiver or filename)"},
     {"NMEA PORT"}},
    {"Text17", On<&C::Text17>(), {}, {"Speed of the GPS receiver's port"}, {"NMEA BAUD"}},
    {"SetClockBox",
     On<&C::SetClockBox>(),
     Own("SET CLOCK"),
     {"The GPS sets the clock of this computer, where the system allows it"}},
    {"GpsFault", On<&C::GpsFault>()},
    {"Command14",
     On<&C::Command14>(),
     Own("IGATE APRS-IS SETUP"),
     {"Server of the gate from radio to internet"}},
    {"AprsIsPanel", On<&C::AprsIsPanel>()},
    {"AprsIsWords",
     On<&C::AprsIsWords>(),
     {{"If you use a radio interface at this computer and IGATE is activated in the TX SETUP, plus "
       "there is a connection to the internet, a simple IGATE (RF>INET) will be working. Down "
       "below you can change the chosen APRS-IS server address and port. The needed passcode will "
       "be generated automatically."}}},
    {"AprsIsServerField", On<&C::AprsIsServerField>(), {}, {}, {"APRS-IS SERVER"}},
    {"AprsIsPortField", On<&C::AprsIsPortField>(), {}, {}, {"SERVER PORT"}},
    {"Command15", On<&C::Command15>()},
    {"SetupText", On<&C::SetupText>()},
    {"SetupBar", On<&C::SetupBar>(), {}, {}, {"set-up of the modem"}},
    {"Command1", On<&C::Command1>(), Own("START")},
};

}  // namespace

void NameStartPanel(StartPanelControls& controls) {
  NameControls(controls, kTable);
  SayStartPanel(controls, 0);
}

void SayStartPanel(StartPanelControls& controls, int language) {
  SayControls(controls, kTable, language / 10 == 1);
}

}  // namespace zepril

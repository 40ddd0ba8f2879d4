// The controls of the start panel `Form0`, as far as they are on it.
#pragma once

#include "core/controls.h"

namespace zepril {

struct StartPanelControls {
  TextBox Text8;          // USER CALL
  OptionButton Option1;   // PK-232
  OptionButton Option2;   // packet engine on this computer
  OptionButton Option9;   // packet engine on another computer
  OptionButton Option10;  // no radio
  OptionButton Option11;  // SCS TNC
  OptionButton Option13;  // SCS PTC
  Label PortLabel;        // what Text3 is with this interface
  ComboBox Text3;         // serial port, offering the devices that are there, or host name
  Label SpeedLabel;       // what Text4 is
  TextBox Text4;          // speed of the serial port, or host port
  Label PortFault;        // what is wrong with the port, beside its fields
  ComboBox Text6;         // NMEA PORT: a serial port, offering the devices, or a file
  TextBox Text17;         // NMEA BAUD
  CheckBox SetClockBox;   // the GPS may set the computer's clock
  Label GpsFault;         // what is wrong with these
  TextBox Text5;          // MONI CALL
  TextBox Text1;          // MAPS PATH
  TextBox Text15;         // SUNSPOT(R)
  TextBox Text16;         // K
  CheckBox Check8;        // <- INET: both come from the internet
  Label IonoFault;        // what is wrong with the two
  Button Command14;       // IGATE APRS-IS SETUP
  Frame AprsIsPanel;
  Label AprsIsWords;          // what it is for
  TextBox AprsIsServerField;  // APRS-IS SERVER
  TextBox AprsIsPortField;    // SERVER PORT
  Button Command15;           // its OK
  Button Command1;            // START
  Label SetupText;            // what the set-up of a modem is doing
  FillBar SetupBar;           // how far it is
  Label Fault;                // what is missing or wrong, beside its field
};

}  // namespace zepril

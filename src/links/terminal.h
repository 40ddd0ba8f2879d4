// The terminal window: the operator talks to the serial modem himself.
//
// As long as it is open the main cycle stands still: nothing is decoded, nothing is transmitted,
// and what the modem prints is shown here only. A line that was typed half does not stay in the
// modem, which would put the next report behind it.
#pragma once

#include <functional>
#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/terminal_controls.h"
#include "core/state/radio.h"
#include "core/timer.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/serial_port.h"

namespace zepril {

struct TerminalTools {
  SerialPort& Port;
  MapActions& Map;
  Timer& Timer1;
  Timer& Timer2;
  Dialogs& Boxes;
};

class Terminal {
 public:
  // Beyond so many characters a field keeps only its last ones.
  static constexpr std::size_t kLongestText = 1000;
  static constexpr std::size_t kKeptText = 300;

  // Sets the events of the panel; the button is disabled until Enable.
  Terminal(const RadioState& radio, TerminalControls& controls, TerminalTools tools);
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  // There is a modem to talk to.
  void Enable();
  void Open();
  // Asks first what becomes of half a line.
  void Close();
  // The program ends: half a line is wiped without a question.
  void WipeHalfLine();
  bool IsOpen() const { return controls_.Frame19.Visible; }
  // The port has received something. Left alone while the terminal is closed.
  void DataArrived();
  // Whether the operator may open it just now; may be empty. Asked each time.
  std::function<bool()> MayOpen;
  // It was opened or closed; may be empty.
  Event<> Changed;

 private:
  void KeyTyped(char character);
  void CountTyped(char character);
  void SettleHalfLine();
  bool HasHalfLine() const;

  const RadioState& radio_;
  TerminalControls& controls_;
  TerminalTools tools_;
  std::size_t half_line_ = 0;  // characters that the modem holds without their end
};

}  // namespace zepril

// What a serial modem has written, handed on in whole lines, so that a tick never cuts one in two.
//
// The text lies in the state (`ModemText`) until it is handed on. Whoever reads from the port
// beside this (a conversation with the modem, the terminal) clears it: half a line of before must
// not run into a line of now.
#pragma once

#include <cstddef>
#include <string>

#include "core/state/reception.h"
#include "platform/serial_port.h"

namespace zepril {

class SerialText {
 public:
  // A line this long without its end is no line: it is thrown away.
  static constexpr std::size_t kLongestLine = 1000;
  // An unfinished line is handed on after this many passes, closed.
  static constexpr int kMostPasses = 3;

  SerialText(SerialPort& port, ReceptionState& reception) : port_(port), reception_(reception) {}

  // A receive pass begins: what is unfinished has waited for one pass more.
  void PassBegins();
  // Takes in what the port has received. True when there was something.
  bool Read();

  // Everything up to the last line end, as long as no header is torn from the information that
  // follows it in a line of its own ("... <UI>:"). What is unfinished waits until it is complete;
  // at most `kLongestLine` characters and `kMostPasses` passes, then it goes too, with a line end.
  std::string TakeFrames();
  // At most `most` characters: all, or else whole lines. Empty when the first line does not fit.
  std::string Take(std::size_t most);

  std::size_t Waiting() const { return reception_.ModemText.size(); }
  // Length of the first line that waits, its end included.
  std::size_t FirstLine() const;

 private:
  void DropOverlongLines();

  SerialPort& port_;
  ReceptionState& reception_;
};

}  // namespace zepril

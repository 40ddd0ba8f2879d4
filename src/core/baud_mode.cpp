// Labels of the speeds, and which radio interfaces are serial modems.
#include "core/baud_mode.h"

namespace zepril {

std::string BaudModeLabelOf(std::string_view baud_mode) {
  if (baud_mode == "300R") return "RPR 300";
  return std::string(baud_mode) + " Bd";
}

bool IsSerialModem(RadioMode mode) {
  return mode == RadioMode::Pk232 || mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc;
}

bool RelaysToAnotherMode(const RadioState& radio) {
  return radio.RadioMode == static_cast<int>(RadioMode::ScsTnc) && radio.CrossMode != "NONE" &&
         radio.CrossMode != radio.BaudMode;
}

}  // namespace zepril

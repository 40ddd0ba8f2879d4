// The interfaces of each rule.
#include "core/radio_rules.h"

namespace zepril {

bool HasNoRadio(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::None;
}

bool IsSerialModem(RadioMode mode) {
  return mode == RadioMode::Pk232 || mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc;
}

bool GateIsPossible(RadioMode mode) {
  return mode == RadioMode::AgwLocal || IsSerialModem(mode);
}

bool GateIsPossible(const RadioState& radio) {
  return GateIsPossible(ModeOf(radio));
}

bool MayHaveCompanion(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::AgwLocal;
}

bool HasFastSpeeds(RadioMode mode) {
  return mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc;
}

bool HasSecondMode(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::ScsTnc;
}

bool ListensOnTwoModes(const RadioState& radio) {
  return HasSecondMode(radio) && radio.HfDualOn == 1;
}

bool RelaysToAnotherMode(const RadioState& radio) {
  return HasSecondMode(radio) && radio.CrossMode != "NONE" && radio.CrossMode != radio.BaudMode;
}

bool LearnsItsCallAtStartOnly(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::ScsPtc;
}

}  // namespace zepril

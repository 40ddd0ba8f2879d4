// What the program keeps of itself: language, rhythm, clock offset, and values that are only
// carried.
#pragma once

#include <string>

namespace zepril {

struct SettingsState {
  int Language = 11;       // units: 1 English, 2 German, 3 Swedish; tens 1: tool tips on
  int UtcOffsetHours = 0;  // local time minus UTC
  int TickMilliseconds = 6000;
  bool WindowActive = false;
  std::string LayoutHint;  // WVER, set by hand only
  std::string PoiFile;
  std::string TrackFile;
  std::string TitleText;  // window title, kept at 90 columns or more
  int PanelWidthUnit = 15;
  std::string DigipeaterProgram;  // beside the engine; empty for the usual one
};

}  // namespace zepril

// The list of raw packets: opened and closed, and searched upwards for a text.
#pragma once

#include "core/controls/raw_list_controls.h"
#include "core/state/settings.h"
#include "core/timer.h"

namespace zepril {

class RawListSearch {
 public:
  // Sets the events of the controls; the object must outlive them.
  RawListSearch(RawListControls& controls, const SettingsState& settings, Timer& timer1);
  RawListSearch(const RawListSearch&) = delete;
  RawListSearch& operator=(const RawListSearch&) = delete;

  // Selects the next line above the selected one that holds the text, without regard to case; from
  // the top the search goes on at the end. Nothing found leaves the selection.
  void SearchUpwards();

 private:
  // The operator works in the list: the cycle, which would scroll it to its end, comes later.
  void SlowDown();

  RawListControls& controls_;
  const SettingsState& settings_;
  Timer& timer1_;
};

}  // namespace zepril

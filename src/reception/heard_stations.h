// The list of heard stations: every call once, the one heard last on top.
#pragma once

#include <string>
#include <vector>

#include "core/main_window_controls.h"
#include "core/station_store.h"
#include "reception/record_browser.h"

namespace zepril {

struct HeardStation {
  std::string Call;
  int Index = 0;  // of its newest record in the list of all stations
  friend bool operator==(const HeardStation&, const HeardStation&) = default;
};

// Distinct calls, newest first, at most `most`; blank records are passed over.
std::vector<HeardStation> HeardStations(const StationStore& store, std::size_t most = 6000);

class HeardStationsPanel {
 public:
  HeardStationsPanel(const StoresState& stores, MoniAllControls& controls, RecordBrowser& browser)
      : stores_(stores), controls_(controls), browser_(browser) {}

  // Opens the list, or closes it when it is open.
  void Command3Click();
  // Opens the record panel of the selected row's station.
  void HeardListClick();

 private:
  const StoresState& stores_;
  MoniAllControls& controls_;
  RecordBrowser& browser_;
};

}  // namespace zepril

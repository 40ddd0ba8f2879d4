// The list of heard stations: every call once with its age, distance and direction, the one heard
// last on top or in another order.
//
//   "QX1AB-9      12 min     7.4  045"   call, age, kilometres and degrees from the own position
#pragma once

#include <string>
#include <vector>

#include "core/controls/moni_all_controls.h"
#include "core/state/map_view.h"
#include "core/station_store.h"
#include "platform/clock.h"
#include "reception/record_browser.h"

namespace zepril {

struct HeardStation {
  std::string Call;
  int Index = 0;  // of its newest record in the list of all stations
  friend bool operator==(const HeardStation&, const HeardStation&) = default;
};

// Distinct calls, newest first, at most `most`; blank records are passed over.
std::vector<HeardStation> HeardStations(const StationStore& store, std::size_t most = 6000);

// How long ago in whole minutes, hours from 2 hours on, days from 2 days on: "12 min", "5 h", "3
// d". Times ahead of the clock are "0 min".
std::string AgeText(std::int64_t minutes);

// Columns of the list, and the orders it can stand in.
enum class HeardColumn { Call = 0, Age = 1, Distance = 2, Direction = 3 };

class HeardStationsPanel {
 public:
  HeardStationsPanel(const StoresState& stores, const MapViewState& view, MoniAllControls& controls,
                     RecordBrowser& browser, const Clock& clock);
  HeardStationsPanel(const HeardStationsPanel&) = delete;
  HeardStationsPanel& operator=(const HeardStationsPanel&) = delete;

  // Opens the list, or closes it when it is open.
  void Command3Click();
  // Opens the record panel of the selected row's station.
  void HeardListClick();
  // Renews the open list; the selected station stays selected, and what stands at the top of a list
  // that was scrolled stays there. A row that is being pressed stays under the pointer: the renewal
  // waits.
  void Renew();
  // A tick begins. A press that was made while the program waited, or worked long, is meant for the
  // rows that were seen then: after such a tick the list is renewed here, at the beginning of the
  // next one.
  void TickBegins();
  // Stations were received. The list is renewed at once when the tick is too young for a press.
  void Received();
  // Another order; the same one again turns it round.
  void OrderBy(HeardColumn column);

 private:
  struct Row {
    std::string Call;
    std::int64_t AgeMinutes = 0;
    double DistanceKm = -1.0;  // below 0: not known
    double BearingDeg = 0.0;
  };

  std::vector<Row> Rows() const;
  void Sort(std::vector<Row>& rows) const;
  int RowOf(const std::string& call) const;
  std::string CallAt(int row) const;
  void Fill();
  void ShowOrder();

  const StoresState& stores_;
  const MapViewState& view_;
  MoniAllControls& controls_;
  RecordBrowser& browser_;
  const Clock& clock_;
  std::vector<Row> rows_;  // as shown
  HeardColumn order_ = HeardColumn::Age;
  bool turned_ = false;
  bool waits_ = false;  // the list is renewed at the next tick
  double tick_began_ = 0.0;
};

}  // namespace zepril

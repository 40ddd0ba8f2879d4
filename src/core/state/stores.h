// The station stores and the selection in them.
#pragma once

#include <string>

#include "core/station_store.h"

namespace zepril {

struct StoresState {
  StationStore MoniAllRecords{3000};  // all stations heard, newest last
  StationStore Moni1Records{9999};    // history of the followed station, oldest first

  std::string SelectedStationCall;  // whose records the browser steps through
  int SelectedRecordIndex = 0;      // 1-based, into the list of that call

  int LogsOn = 0;  // write _LOG_, _LOGL_ and _LOGRAW_
  // A log or the history could not be written in this run. The first time costs the frames that
  // wait behind; from then on it is known, and costs nothing.
  bool FileFailed = false;
};

}  // namespace zepril

// A history file of any content: what is loaded is written and read back the same, and thinning
// leaves a part of it in its order.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/history_thinning.h"
#include "core/quiet_actions.h"
#include "core/state/gps.h"
#include "reception/followed_history.h"
#include "tests/doubles/memory_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zepril::IdentityState identity;
  zepril::StoresState stores;
  zepril::FollowedStationState followed;
  zepril::MapViewState map;
  zepril::GpsState gps;
  zepril::AlarmState alarms;
  zepril::WindowControls window;
  zepril::MapControls map_bar;
  zepril::Moni1Controls moni1;
  zepril::StatusControls status;
  zepril::MemoryFiles disk;
  zepril::QuietActions settings;
  identity.MapSystemFolder = "M";
  zepril::DistanceAlarm alarm(alarms, identity, followed, map, status, window);
  zepril::FollowedHistory history(identity, stores, followed, map, gps, moni1, map_bar, alarm, disk,
                                  settings, status.FileNotice);

  // Loading, and a second start on what the first one left.
  const std::string path = "M\\LOG\\QX7KB.TXT";
  disk.Contents[path] = std::string(reinterpret_cast<const char*>(data), size);
  history.LoadAtStart();
  const std::vector<zepril::StationRecord> loaded = stores.Moni1Records.All();
  if (loaded.size() > 9998) std::abort();
  std::vector<zepril::StationRecord> readable = loaded;
  zepril::KeepReadable(readable, 9998);
  history.LoadAtStart();
  // A record whose line was cut too short by the trimming may leave a gap behind it.
  std::vector<zepril::StationRecord> expected = loaded;
  zepril::CutAtGap(expected, 30);
  if (readable == loaded && stores.Moni1Records.All() != expected) std::abort();

  // Written and read back, every record that makes a valid line is there again.
  stores.Moni1Records.Assign(loaded);
  if (!history.WriteAndReadBack() || stores.Moni1Records.All() != readable) std::abort();

  // Thinning keeps the order and the first record.
  std::vector<zepril::StationRecord> thinned = readable;
  zepril::ThinByDistance(thinned, static_cast<double>(readable.size()) / 2.0);
  auto from = readable.begin();
  for (const zepril::StationRecord& record : thinned) {
    from = std::find(from, readable.end(), record);
    if (from == readable.end()) std::abort();
    ++from;
  }
  if (!readable.empty() && (thinned.empty() || thinned.front() != readable.front())) std::abort();
  return 0;
}

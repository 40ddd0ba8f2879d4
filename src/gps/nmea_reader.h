// The GPS at each tick: from the last sentences of the source to the own position, the clock, the
// line over the map, the way and the track, and what the map follows.
#pragma once

#include <optional>
#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/gps_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/state/gps.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "gps/nmea_sentences.h"
#include "gps/nmea_source.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/event.h"

namespace zepril {

struct NmeaSections {
  const SettingsState& Settings;
  GpsState& Gps;
  MapViewState& View;
};

struct NmeaControls {
  GpsControls& Gps;
  MapControls& Map;
  const TransmitControls& Transmit;
};

struct NmeaTools {
  NmeaSource& Source;
  const Clock& LocalClock;
  DesktopActions& Desktop;
  MapActions& Map;
};

class NmeaReader {
 public:
  // So long after the operator has moved the map it stays where he put it.
  static constexpr double kHandsOffSeconds = 30.0;
  // So long a sentence is true: of one that stays the last its position would be taken again and
  // again.
  static constexpr double kLongestTrueSeconds = 60.0;
  // So long its time is good enough for the computer's clock.
  static constexpr double kLongestTimeTrueSeconds = 10.0;

  // Sets the event of `GpsNote`.
  NmeaReader(NmeaSections sections, NmeaControls controls, NmeaTools tools);
  NmeaReader(const NmeaReader&) = delete;
  NmeaReader& operator=(const NmeaReader&) = delete;

  // The start of the run: of a setting that can be no source no tick will tell.
  void Begin();
  // Once a tick. Whatever can't be read leaves the old position.
  void ReadNmea();

  // A position was taken: the way for the navigation program, when it is kept, and the track. Each
  // may be empty.
  Event<> SaveWay;
  Event<> SaveTrack;

 private:
  void ReadSentences();
  void NoteManualMove();
  void SetClock(const NmeaPair& pair, double seconds_ago);
  void TakePosition(const NmeaPosition& position);
  void NotePositionTime(double seconds_ago);
  bool MapIsLeftAlone() const;
  void GoToOwnPosition();
  bool FixIsFresh() const;
  std::string NoteWords() const;
  void ShowNote();

  NmeaSections sections_;
  NmeaControls controls_;
  NmeaTools tools_;
  std::string clock_told_;                  // date and time by which the clock was set last
  std::optional<LocalTime> last_position_;  // when the last one that was taken came
  std::string closed_note_;
};

}  // namespace zepril

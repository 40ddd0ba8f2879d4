// The centre of the map in outside viewers, and a place that was copied there as centre of the map.
//
// Nothing but the place is handed over. Windows of other programs are neither found nor closed nor
// typed into: what is fetched is what the operator has copied himself.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/viewer_controls.h"
#include "core/state/followed_station.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/services.h"
#include "core/state/stores.h"
#include "core/texts/text.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/files.h"
#include "viewers/outside_links.h"

namespace zepril {

struct OutsideViewersSections {
  const IdentityState& Identity;
  const FollowedStationState& Followed;
  const StoresState& Stores;
  const ServicesState& Services;
  MapViewState& View;
};

struct OutsideViewersControls {
  ViewerControls& Viewers;
  MapControls& Map;
  const ReadoutControls& Readouts;
};

struct OutsideViewersTools {
  Files& Disk;
  Clock& LocalClock;
  DesktopActions& Desktop;
  MapActions& Map;
  Timer& Timer1;
  Timer& Timer2;
};

class OutsideViewers {
 public:
  // The main cycle leaves the operator alone so long when he has gone to the globe.
  static constexpr int kLookingMs = 30000;

  // Sets the events of the buttons.
  OutsideViewers(OutsideViewersSections sections, OutsideViewersControls controls,
                 OutsideViewersTools tools);
  OutsideViewers(const OutsideViewers&) = delete;
  OutsideViewers& operator=(const OutsideViewers&) = delete;

  // Writes `ProgramFolder`\ZEPRIL.KML and has it opened.
  void ShowInGoogleEarth();
  void FetchFromGoogleEarth();
  void ShowInMinKarta();
  void ShowInNorgeskart();
  void ShowInKarttapaikka();
  void ShowInGoogleMaps();
  void FetchFromGoogleMaps();

 private:
  using UrlMaker = std::string (*)(std::string_view host, const OutsidePlace& place);

  void OpenGlobe();
  void ShowPage(Text service, const std::string& host, UrlMaker url);
  std::string GlobeLabel(const OutsidePlace& place) const;
  void CentreOn(const std::optional<Geodetic>& place, Text without);
  void Tell(const std::string& words);

  OutsideViewersSections sections_;
  OutsideViewersControls controls_;
  OutsideViewersTools tools_;
  bool opening_ = false;
};

}  // namespace zepril

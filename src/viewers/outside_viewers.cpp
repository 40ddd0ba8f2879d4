// Opens the pages and the globe's file, and goes to the place on the clipboard.
#include "viewers/outside_viewers.h"

#include "core/centre_follow.h"
#include "core/texts/file_troubles.h"
#include "core/texts/viewer_texts.h"
#include "viewers/picture_viewer.h"

namespace zepril {
namespace {

constexpr double kBeforeGlobeSeconds = 0.5;
constexpr double kBeforeRedrawSeconds = 0.1;

}  // namespace

OutsideViewers::OutsideViewers(OutsideViewersSections sections, OutsideViewersControls controls,
                               OutsideViewersTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  ViewerControls& buttons = controls_.Viewers;
  buttons.GlobeShow.Click = [this] { ShowInGoogleEarth(); };
  buttons.GlobeFetch.Click = [this] { FetchFromGoogleEarth(); };
  buttons.MinKarta.Click = [this] { ShowInMinKarta(); };
  buttons.Norgeskart.Click = [this] { ShowInNorgeskart(); };
  buttons.Karttapaikka.Click = [this] { ShowInKarttapaikka(); };
  buttons.GoogleMapsShow.Click = [this] { ShowInGoogleMaps(); };
  buttons.GoogleMapsFetch.Click = [this] { FetchFromGoogleMaps(); };
  Tell({});
}

// ---- The globe ------------------------------------------------------------------------------

void OutsideViewers::ShowInGoogleEarth() {
  // In its waits the operator is heard, and may press again.
  if (opening_) return;
  opening_ = true;
  OpenGlobe();
  opening_ = false;
}

void OutsideViewers::OpenGlobe() {
  Tell({});
  tools_.LocalClock.WaitPumping(kBeforeGlobeSeconds);
  tools_.Timer1.Stop();
  tools_.Timer2.Stop();
  tools_.Timer2.Arm(kLookingMs);
  const OutsidePlace place = PlaceOfCentre(sections_.View);
  const std::string path = sections_.Identity.ProgramFolder + "\\ZEPRIL.KML";
  // An old file would lead to another place.
  if (!tools_.Disk.Replace(path, GlobeFile(GlobeLabel(place), place))) {
    tools_.Timer2.Stop();
    tools_.Timer1.Enable();
    return Tell(viewer_texts::kGlobeFileUnwritten.With({path, WordsOf(tools_.Disk.Trouble())}));
  }
  tools_.LocalClock.WaitPumping(kBeforeGlobeSeconds);
  tools_.Desktop.Open(FileAddress(tools_.Disk.NativePath(path)));
}

std::string OutsideViewers::GlobeLabel(const OutsidePlace& place) const {
  const bool follows = sections_.View.CentreFollow == Following::Station;
  if (!follows || sections_.Stores.Moni1Records.Count() == 0) return PlaceLabel(place);
  return sections_.Followed.Moni1Call + "  " + controls_.Readouts.Label11.Caption;
}

void OutsideViewers::FetchFromGoogleEarth() {
  CentreOn(PlaceInGlobeText(tools_.Desktop.ClipboardText()), viewer_texts::kNoGlobePlace);
}

void OutsideViewers::FetchFromGoogleMaps() {
  CentreOn(PlaceInMapAddress(tools_.Desktop.ClipboardText()), viewer_texts::kNoMapPlace);
}

void OutsideViewers::CentreOn(const std::optional<Geodetic>& place, Text without) {
  if (!place) return Tell(without);
  Tell({});
  const CentreKm centre = CentreAt(*place, sections_.View);
  sections_.View.CentreNorthKm = centre.North;
  sections_.View.CentreEastKm = centre.East;
  FollowNobody(sections_.View, controls_.Map);
  sections_.View.ManualMapMove = true;
  tools_.LocalClock.WaitPumping(kBeforeRedrawSeconds);
  tools_.Map.MapRedraw();
}

// ---- Web maps -------------------------------------------------------------------------------

void OutsideViewers::ShowInMinKarta() {
  ShowPage(viewer_texts::kMinKarta, sections_.Services.MinKarta, MinKartaUrl);
}

void OutsideViewers::ShowInNorgeskart() {
  ShowPage(viewer_texts::kNorgeskart, sections_.Services.Norgeskart, NorgeskartUrl);
}

void OutsideViewers::ShowInKarttapaikka() {
  ShowPage(viewer_texts::kKarttapaikka, sections_.Services.Karttapaikka, KarttapaikkaUrl);
}

void OutsideViewers::ShowInGoogleMaps() {
  ShowPage(viewer_texts::kGoogleMaps, sections_.Services.GoogleMaps, GoogleMapsUrl);
}

void OutsideViewers::ShowPage(Text service, const std::string& host, UrlMaker url) {
  if (host.empty()) return Tell(viewer_texts::kNoHost.With({service}));
  Tell({});
  tools_.Desktop.Open(url(host, PlaceOfCentre(sections_.View)));
}

void OutsideViewers::Tell(const std::string& words) {
  controls_.Viewers.ViewerNote.Caption = words;
  controls_.Viewers.ViewerNote.Visible = !words.empty();
}

}  // namespace zepril

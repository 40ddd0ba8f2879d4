// Internet support over doubles: reception with its stores, pages that the test answers, virtual
// time. The station QX7KB follows QX7GW; both services have a host.
#pragma once

#include <string>

#include "core/controls/internet_controls.h"
#include "core/controls/iono_controls.h"
#include "core/state/services.h"
#include "core/text_fields.h"
#include "internet/internet_room.h"
#include "tests/doubles/fake_pages.h"
#include "tests/reception/reception_support.h"

namespace zepril {

struct InternetWorld : Reception {
  // `pages`: real ones in place of those that the test answers.
  explicit InternetWorld(PageFetcher* pages = nullptr) : Fetcher(pages ? *pages : Pages) {
    Services.AprsRestService = "http://rest.example";
    Services.AprsCgiService = "http://cgi.example";
    Followed.Moni1Call = "QX7GW";
    Followed.Moni1LogPath = Log("QX7GW.TXT");
    Time.SetNow({2024, 5, 14, 12, 35, 0});
    Timer1.FollowClock(Time);
    Controls.Status.Text10.Visible = false;
    // As the tick does before its step.
    Map.CentreNorthKm = 5800.0;
    Map.CentreEastKm = 400.0;
  }

  // What a tick does when the minute has come.
  void FetchMoni1() {
    ShowBanner();
    Net.Support.FetchMoni1();
  }
  void FetchMoniAll() {
    ShowBanner();
    Net.Support.FetchMoniAll();
  }
  void ShowBanner() {
    Timer1.Stop();
    Controls.Status.Text10.Caption = "COLLECTING";
    Controls.Status.Text10.Visible = true;
    Controls.Window.Pointer = PointerShape::Hourglass;
    Controls.Map.Picture1.Pointer = PointerShape::Hourglass;
  }
  bool IsAtRest() const {
    return Timer1.Enabled() && !Controls.Status.Text10.Visible &&
           Controls.Window.Pointer == PointerShape::Default &&
           Controls.Map.Picture1.Pointer == PointerShape::Default;
  }
  void Click(CheckBox& box, int value) {
    box.Value = value;
    box.Click();
  }
  void SwitchOn() { Click(Controls.Moni1.Check22, 1); }
  void SwitchAreaOn() { Click(Controls.MoniAll.Check23, 1); }

  // A line of the service; the position is a minute of arc north for each minute of the hour.
  static std::string Line(const std::string& time, const std::string& call = "QX7GW",
                          const std::string& info = {}) {
    const std::string position = "!48" + time.substr(14, 2) + ".15N/00805.20E>Test";
    return time + " " + call + ">APRS,WIDE1-1*,qAR,QX7AB:" + (info.empty() ? position : info) +
           "\r\n";
  }
  static std::string Station(const std::string& call, const std::string& time,
                             const std::string& lat, const std::string& lon = "13.4052") {
    return R"({"callsign":")" + call + R"(","type":"S","posreceived":")" + time + R"(","lat":)" +
           lat + R"(,"lon":)" + lon + R"(,"symbolcode":">","symboltable":"/","comment":"x"},)";
  }
  // With more behind the last station than the end of a reply needs.
  static std::string Area(const std::string& stations) {
    return "[" + stations + "{" + std::string(110, ' ') + "}]";
  }

  const std::string& Words() const { return Told.Moni1State.Caption; }
  const std::string& AreaWords() const { return Told.MoniAllState.Caption; }
  int HistoryCount() const { return Stores.Moni1Records.Count(); }
  const StationRecord& NewestOfHistory() const { return Stores.Moni1Records.At(HistoryCount()); }

  ServicesState Services;
  IonoControls Iono;
  InetControls Told;
  FakePages Pages;
  PageFetcher& Fetcher;
  Timer Timer2{3000};
  InternetRoom Net{{Identity, Internet, Map, Stores, Followed, Settings, Services},
                   {Iono, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Window,
                    Controls.Status, Told},
                   {Boxes, Time, Fetcher, Symbols, Room.Keeper, Room.Choice, Actions, Actions,
                    Actions, Actions, Timer1, Timer2}};
};

}  // namespace zepril

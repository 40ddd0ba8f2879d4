// How the parts of reception are built, and what a pass is followed by.
#include "reception/reception_room.h"

namespace zepril {

ReceptionRoom::ReceptionRoom(ReceptionSections sections, ReceptionRoomControls controls,
                             ReceptionTools tools)
    : Link(sections.Radio, sections.Internet, tools.Heard, tools.Gate),
      Distance(sections.Alarms, sections.Identity, sections.Followed, sections.View,
               controls.Status, controls.Window),
      History(sections.Identity, sections.Stores, sections.Followed, sections.View, sections.Gps,
              controls.Moni1, controls.Map, Distance, tools.Disk, tools.Settings,
              controls.Status.FileNotice),
      Browser(sections.Stores, sections.View, controls.Record, controls.Map, History, tools.Boxes,
              tools.Map),
      Heard(sections.Stores, sections.View, controls.MoniAll, Browser, tools.LocalClock),
      Choice(sections.Identity, sections.Stores, sections.Followed, controls.Moni1, controls.Record,
             {tools.Disk, tools.LocalClock, History, Browser, tools.Map, tools.Settings,
              tools.Timer1}),
      Finder(sections.View, sections.Stores, controls.MoniAll, controls.Record, tools.Map,
             tools.Timer1),
      Keeper({sections.Identity, sections.Stores, sections.View, sections.Alarms},
             {History, Browser, Distance, controls.Status.FileNotice}, tools.LocalClock,
             tools.Disk),
      Pass({sections.Identity, sections.Received, sections.View, sections.Settings},
           {Link, Keeper, tools.Map, tools.Messages, tools.Emergencies}, tools.Symbols,
           tools.LocalClock, tools.Timer1, controls.RawList) {
  Label& notice = controls.Status.FileNotice;
  notice.Click = [&notice] { notice.Visible = false; };
  controls.MoniAll.Check3.Click = [&alarms = sections.Alarms, &box = controls.MoniAll.Check3] {
    alarms.MoniAllAlarmOn = box.Value;
  };
}

void ReceptionRoom::Receive() {
  Pass.Run();
  Heard.Received();
}

}  // namespace zepril

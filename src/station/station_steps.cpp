// What each step of tick, start and stop calls in the rooms.
#include "station/station_steps.h"

#include "station/data_folders.h"
#include "station/run_settings.h"
#include "station/station_rooms.h"

namespace zepril {

TickSteps TickOrder(StationRooms& rooms) {
  TickSteps tick;
  tick.PollAprsIsLink = [&rooms] { rooms.Gateway.Link.IGateTick(); };
  tick.WatchCompanion = [&rooms] { rooms.Gateway.Digipeater.Watch(); };
  tick.RunScanSwitchHandler = [&rooms] { rooms.Internet.Scan.RunScanSwitchHandler(); };
  tick.KeepSecondModeMonitored = [&rooms] { rooms.Links.KeepSecondModeMonitored(); };
  tick.ChangeFollowedStation = [&rooms] { rooms.Reception.Choice.FollowTyped(); };
  tick.ShowEmergencyPanel = [&rooms] { rooms.Emergencies.ShowAgain(); };
  tick.SendIdentification = [&rooms] { rooms.Transmit.SendIdentification(); };
  tick.StartIonoUpdate = [&rooms] { rooms.Internet.Update.StartIonoUpdate(); };
  tick.FetchMoni1 = [&rooms] { rooms.Internet.Support.FetchMoni1(); };
  tick.FetchMoniAll = [&rooms] { rooms.Internet.Support.FetchMoniAll(); };
  tick.PollGps = [&rooms] { rooms.Gps.Reader.ReadNmea(); };
  tick.RunReceivePass = [&rooms] {
    rooms.Messages.Heard.PassBegins();
    rooms.Reception.Receive();
  };
  tick.RunChatPass = [&rooms] { rooms.Messages.Sender.RetryPass(); };
  tick.SendObjectReport = [&rooms] { rooms.Transmit.Beacon.SendObjectReport(); };
  tick.SendBeacon = [&rooms] { rooms.Transmit.Beacon.SendPositionBeacon(); };
  return tick;
}

StartSteps StartOrder(StationRooms& rooms) {
  StartSteps start;
  start.ReadConfig = [&rooms] {
    ReadRunSettings(rooms.Given.FileSystem, rooms.State);
    rooms.Gateway.Digipeater.Program = rooms.State.Settings.DigipeaterProgram;
    rooms.Controls.Moni1.Check1.Value = rooms.State.Followed.Moni1AlarmOn;
  };
  start.SetOwnNames = [&rooms] {
    SetOwnNames(rooms.State);
    rooms.Gps.Way.DecideNavigation();
  };
  start.ScanMapLibrary = [&rooms] {
    MakeDataFolders(rooms.Given.FileSystem, rooms.State.Identity);
    rooms.Map.Library.MapLibraryScan();
  };
  start.LoadHistory = [&rooms] { rooms.Reception.Choice.LoadAtStart(); };
  start.OpenLink = [&rooms] {
    const bool open = rooms.Links.Open();
    if (open) rooms.Gateway.Digipeater.Begin();
    return open;
  };
  start.OpenGpsPort = [&rooms] {
    rooms.Gps.Source.Open();
    rooms.Gps.Reader.Begin();
  };
  start.RestoreTracksPlacesAndChat = [&rooms] {
    rooms.Gps.Tracks.RestoreAtStart();
    rooms.Viewers.Places.RestoreAtStart();
    rooms.Messages.RestoreAtStart();
  };
  start.ShowTitleMarkers = [&rooms] { rooms.ShowTitle(); };
  start.StartIonoUpdate = [&rooms] { rooms.Internet.Update.StartIonoUpdate(); };
  start.SetLabels = [&rooms] { rooms.SetLabels(); };
  start.ShowAndDrawMap = [&rooms] {
    rooms.Controls.Map.Picture1.Visible = true;
    rooms.Map.Redrawer.MapRedraw();
  };
  start.RunTerminalHandler = [&rooms] { rooms.Links.RunTerminalHandler(); };
  return start;
}

StopSteps StopOrder(StationRooms& rooms) {
  StopSteps stop;
  stop.CloseSound = [&rooms] {
    if (rooms.Given.Speaker) rooms.Given.Speaker->Stop();
  };
  stop.StopPageLoading = [&rooms] {
    constexpr double kPauseSeconds = 0.2;
    rooms.Given.Pages->Stop();
    rooms.Given.LocalClock.Wait(kPauseSeconds);
  };
  stop.StopPicturePanel = [&rooms] { rooms.Viewers.Pictures.ClosePicture(); };
  stop.LeaveLink = [&rooms] {
    rooms.Internet.Stop();
    rooms.Gateway.Digipeater.End();
    rooms.Links.Leave();
  };
  stop.ClosePorts = [&rooms] {
    rooms.Links.ClosePort();
    rooms.Gps.Source.Close();
    rooms.Gateway.Link.Close();
    // A page that came later would be worked on in a program that has ended.
    rooms.Given.Pages->Stop();
  };
  stop.WriteNavigationFiles = [&rooms] { rooms.Gps.Way.EndWay(); };
  stop.MergeConfigAtExit = [&rooms] {
    MergeRunSettings(rooms.Given.FileSystem, rooms.State, rooms.Controls.Scales);
  };
  stop.DeleteRunFiles = [&rooms] { rooms.Map.Library.DeleteIndexFiles(); };
  return stop;
}

}  // namespace zepril

// The keys of `ZEPRIL.INI` in the start panel's order, and what is put right behind a read.
#include "config/start_panel_settings.h"

#include <algorithm>
#include <cmath>

#include "config/config_file.h"
#include "core/text_fields.h"

namespace zepril {

StartPanelSettings DefaultStartPanelSettings(const std::string& program_folder,
                                             const std::string& temp) {
  StartPanelSettings settings;
  settings.TempFolder = temp.empty() ? program_folder : Upper(temp);
  const std::string download = std::string("ZEPRIL DOWNLOAD: ") + kProductAddress;
  settings.InfoLine = {"", "using ZEPRIL", download, "using ZEPRIL", download, "using ZEPRIL"};
  return settings;
}

ConfigFields StartPanelFields(StartPanelSettings& s) {
  ConfigFields f;
  f.push_back(IntField("LANG", s.Language));
  f.push_back(FoldedTextField("USER", s.MyCall));
  f.push_back(FoldedTextField("MSYS", s.MapZoneName));
  f.push_back(FolderField("UMAPS", s.MapsPath));
  f.push_back(PlainTextField("M0002", s.StoredVariants[5]));
  f.push_back(PlainTextField("M0010", s.StoredVariants[4]));
  f.push_back(PlainTextField("M0050", s.StoredVariants[3]));
  f.push_back(PlainTextField("M0200", s.StoredVariants[2]));
  f.push_back(PlainTextField("M1000", s.StoredVariants[1]));
  f.push_back(PlainTextField("M5000", s.StoredVariants[0]));
  f.push_back(FolderField("TEMP", s.TempFolder));
  f.push_back(NmeaSourceField("NMEA", s.NmeaSource));
  f.push_back(NmeaBaudField("NBAUD", s.NmeaBaud));
  f.push_back(IntField("MODEM", s.RadioMode));
  f.push_back(IntField("COM", s.TncPort));
  f.push_back(PlainTextField("TBAUD", s.TncBaud));
  f.push_back(RealField("SCOMP", s.ScsPort));
  f.push_back(PlainTextField("SBAUD", s.ScsBaud));
  f.push_back(PlainTextField("HOSTC", s.AgwHost));
  f.push_back(PlainTextField("HOSTP", s.AgwTcpPort));
  f.push_back(PlainTextField("HBAUD", s.BaudMode));
  f.push_back(PlainTextField("CALL", s.Moni1Call));
  f.push_back(ByteField("DISA", s.Moni1AlarmOn));
  f.push_back(IntField("DIST", s.AlarmDistanceKm));
  f.push_back(RealField("UTCD", s.UtcOffsetHours));
  f.push_back(ByteField("SLOG", s.Moni1ThinningOn));
  f.push_back(ByteField("LOGS", s.LogsOn));
  f.push_back(UpperTextField("TXID", s.MySsid));
  f.push_back(IntervalField("TXON", s.TxIntervalMinutes));
  f.push_back(UpperTextField("TXTO", s.TxDestination));
  f.push_back(UpperTextField("TXPA", s.TxPath));
  AddNumbered(f, "TXPM", "", s.TxPathMemory, UpperTextField);
  f.push_back(ByteField("TXTIM", s.TxTimestamp));
  AddNumbered(f, "TXI", "", s.InfoLine, PlainTextField);
  AddNumbered(f, "TXI", "A", s.InfoLineActive, ByteField);
  AddNumbered(f, "TXM", "", s.InfoLineMemory, PlainTextField);
  f.push_back(IntField("TXAF", s.TxAudioLevel));
  f.push_back(IntField("TXAFC", s.TxAfc));
  f.push_back(ByteField("DIGI", s.DigiOn));
  f.push_back(FoldedTextField("XBAUD", s.CrossMode));
  f.push_back(IntField("TXSY", s.TxSymbolIndex));
  f.push_back(OverlayField("TXSS", s.TxOverlay));
  f.push_back(RealField("UTN", s.CentreNorthKm));
  f.push_back(RealField("UTE", s.CentreEastKm));
  f.push_back(RealField("UUN", s.OwnNorthKm));
  f.push_back(RealField("UUE", s.OwnEastKm));
  f.push_back(ObjectNameField("ONAM", s.ObjectName));
  f.push_back(PlainTextField("OTXT", s.ObjectText));
  f.push_back(IntField("OSYM", s.ObjectSymbol));
  f.push_back(PlainTextField("OSYN", s.ObjectOverlay));
  f.push_back(RealField("OUTN", s.ObjectNorth));
  f.push_back(RealField("OUTE", s.ObjectEast));
  f.push_back(IntField("NOAT", s.KeepReadOnlyMarks));
  f.push_back(RealField("SSPT", s.SunspotNumber));
  f.push_back(RealField("KIND", s.KpIndex));
  f.push_back(ByteField("IONA", s.IonoAutoOn));
  f.push_back(PlainTextField("POIF", s.PoiFile));
  f.push_back(PlainTextField("TRKF", s.TrackFile));
  f.push_back(PlainTextField("AIPRT", s.AprsIsPort));
  f.push_back(PlainTextField("AISRV", s.AprsIsServer));
  f.push_back(ByteField("IGATE", s.IGateOn));
  // The full read passes the layout hint over: the first-run scan has it.
  ConfigField hint = PlainTextField("WVER", s.LayoutHint);
  hint.Take = [](std::string_view) {};
  f.push_back(hint);
  return f;
}

std::string NormalisedMapZone(std::string_view zone) {
  constexpr double kHighestZone = 60.0;
  if (zone.empty() || zone.front() != 'U') return "U33";
  const double number = std::min(std::fabs(Val(zone.substr(1))), kHighestZone);
  return "U" + ZeroPadded(ToWhole(number), 2);
}

bool ReadConfigForStartPanel(Files& files, const std::string& program_folder,
                             StartPanelSettings& s) {
  const std::string path = ConfigPath(program_folder);
  const FirstRunScan scan = ScanForFirstRun(files, path);
  s.LayoutHint = scan.LayoutHint;
  const ConfigFields fields = StartPanelFields(s);
  files.ReadLines(path, [&](std::string_view line) {
    TakeConfigLine(fields, line);
    return true;
  });
  // After the read: what must not stay as it came.
  s.MapZoneName = NormalisedMapZone(s.MapZoneName);
  s.MapSystemFolder = program_folder + "\\" + s.MapZoneName;
  s.TxOverlay = s.TxOverlay.empty() ? "A" : s.TxOverlay.substr(0, 1);
  s.AlarmDistanceKm = std::clamp(s.AlarmDistanceKm, 1, 100);
  return scan.Configured;
}

bool WriteConfigFromStartPanel(Files& files, const std::string& program_folder,
                               StartPanelSettings& s) {
  return files.Replace(ConfigPath(program_folder), GiveConfigLines(StartPanelFields(s)));
}

}  // namespace zepril

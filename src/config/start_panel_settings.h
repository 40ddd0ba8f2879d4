// The settings as the start panel holds them, and its reader and writer of `ZEPRIL.INI`.
//
// The panel holds a few values with fractions that the main window rounds: a file goes through two
// readers, and they do not quite agree. Kept, since both are in use one after the other.
#pragma once

#include <array>
#include <string>

#include "config/config_field.h"
#include "platform/files.h"

namespace zepril {

// Defaults that the project chooses.
inline constexpr const char* kProductAddress = "https://zepril.example";
inline constexpr const char* kDefaultAprsIsServer = "rotate.aprs2.net";

struct StartPanelSettings {
  int Language = 11;
  std::string MyCall;
  std::string MapZoneName = "U33";
  std::string MapsPath = R"(C:\ZEPRIL\U33)";
  std::array<std::string, 6> StoredVariants;  // M5000, M1000, M0200, M0050, M0010, M0002
  std::string TempFolder;
  std::string NmeaSource;
  std::string NmeaBaud = "4800";
  int RadioMode = 0;
  int TncPort = 2;
  std::string TncBaud = "1200";
  double ScsPort = 3;
  std::string ScsBaud = "38400";
  std::string AgwHost = "QX7KB0";
  std::string AgwTcpPort = "8000";
  std::string BaudMode = "300";
  std::string Moni1Call = "QX7KB";
  int Moni1AlarmOn = 0;
  int AlarmDistanceKm = 10;
  double UtcOffsetHours = 0;
  int Moni1ThinningOn = 0;
  int LogsOn = 0;
  std::string MySsid;
  int TxIntervalMinutes = 0;
  std::string TxDestination = "ZEPR";
  std::string TxPath = "WIDE1-1";
  std::array<std::string, 4> TxPathMemory;
  int TxTimestamp = 0;
  std::array<std::string, 6> InfoLine;
  std::array<int, 6> InfoLineActive{1, 1, 1, 1, 1, 1};
  std::array<std::string, 6> InfoLineMemory;
  int TxAudioLevel = 300;  // mV
  int TxAfc = 0;
  int DigiOn = 0;
  std::string CrossMode = "NONE";
  int TxSymbolIndex = 14;
  std::string TxOverlay = "A";
  double CentreNorthKm = 0;
  double CentreEastKm = 0;
  double OwnNorthKm = 0;
  double OwnEastKm = 0;
  std::string ObjectName;
  std::string ObjectText;
  int ObjectSymbol = 0;
  std::string ObjectOverlay;
  double ObjectNorth = 0;
  double ObjectEast = 0;
  int KeepReadOnlyMarks = 0;  // NOAT
  double SunspotNumber = 40;
  double KpIndex = 2;
  int IonoAutoOn = 1;
  std::string PoiFile;
  std::string TrackFile;
  std::string AprsIsPort = "14580";
  std::string AprsIsServer = kDefaultAprsIsServer;
  int IGateOn = 0;
  std::string LayoutHint;  // WVER

  std::string MapSystemFolder;
};

// The defaults of a first run. `temp`: the environment's TEMP, empty when there is none.
StartPanelSettings DefaultStartPanelSettings(const std::string& program_folder,
                                             const std::string& temp);

// All eighty keys in the order of the file.
ConfigFields StartPanelFields(StartPanelSettings& settings);

// First-run scan, full read and the steps after it. `settings` holds the defaults before.
// True when the file has been through START once.
bool ReadConfigForStartPanel(Files& files, const std::string& program_folder,
                             StartPanelSettings& settings);
// Rewrites the file whole, all eighty keys. False, and an unchanged file, when it can't be written.
bool WriteConfigFromStartPanel(Files& files, const std::string& program_folder,
                               StartPanelSettings& settings);

// The map system brought to "U" and two digits: "U8" -> "U08", "U-33" -> "U33", "U75" -> "U60";
// empty or not beginning with "U" -> "U33".
std::string NormalisedMapZone(std::string_view zone);

}  // namespace zepril

// The keys of `ZEPRIL.INI` in the main window's order, their fallbacks, and the merge at exit.
#include "config/main_window_settings.h"

#include <algorithm>
#include <string_view>

#include "config/config_file.h"
#include "config/start_panel_settings.h"
#include "core/baud_mode.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kMostMergedLines = 100;
constexpr std::array<std::string_view, 6> kScaleKeys = {
    "M5000=", "M1000=", "M0200=", "M0050=", "M0010=", "M0002="};

ConfigField OnWriting(ConfigField field, std::function<std::string()> give) {
  field.Give = std::move(give);
  return field;
}

// A coordinate of the last centre. Its text is kept too: how it ends tells a picture's place.
ConfigField CentreField(std::string key, double& held, std::string& text) {
  ConfigField field = RealField(std::move(key), held);
  field.Take = [&text, take = field.Take](std::string_view value) {
    text = Trim(value);
    take(value);
  };
  return field;
}

// The last map of a scale: read here, written by the merge at exit alone.
ConfigField VariantField(std::string key, std::string& held) {
  return OnWriting(UpperTextField(std::move(key), held), nullptr);
}

// The SSID, and with it the name on the air: the call must stand before it in the file.
ConfigField SsidField(RuntimeState& state) {
  IdentityState& identity = state.Identity;
  return {"TXID",
          [&identity](std::string_view value) {
            identity.MySsid = Upper(Trim(value));
            identity.MyCall = Trim(identity.MyCall);
            if (!identity.MyCall.empty()) {
              identity.MyCallFull = FullCall(identity.MyCall, identity.MySsid);
            }
          },
          [&identity] { return identity.MySsid; }};
}

void SetFallbackValues(RuntimeState& state) {
  const StartPanelSettings defaults =
      DefaultStartPanelSettings(state.Identity.ProgramFolder, std::string());
  state.Radio.TncPort = 1;
  state.Radio.ScsPort = 3;
  state.Followed.Moni1AlarmOn = 1;
  state.Transmission.ObjectSymbol = 37;
  state.Identity.MapsPath = R"(C:\ZEPRIL)";
  state.Identity.TempFolder = state.Identity.ProgramFolder;
  state.Identity.MapZoneName = "U33";
  state.Transmission.InfoLine = defaults.InfoLine;
  state.Internet.AprsIsServer = defaults.AprsIsServer;
}

void DeriveNames(RuntimeState& state) {
  IdentityState& identity = state.Identity;
  // No SSID line, or one before the call: the bare call goes on the air.
  if (identity.MyCallFull.empty()) identity.MyCallFull = identity.MyCall;
  identity.MapSystemFolder = identity.ProgramFolder + "\\" + identity.MapZoneName;
  state.Radio.BaudModeLabel = BaudModeLabelOf(state.Radio.BaudMode);
}

// As every writer of the file has it: a number that overflowed is none.
std::string RealText(double number) {
  return RealField("", number).Give();
}

// Replaces each line that begins with one of the keys; appends what was not found, in key order.
template <std::size_t N>
void MergeKeys(std::vector<std::string>& lines, const std::array<std::string_view, N>& keys,
               const std::array<std::string, N>& values) {
  std::array<bool, N> found{};
  for (std::string& line : lines) {
    for (std::size_t at = 0; at < N; ++at) {
      if (!line.starts_with(keys[at])) continue;
      line = std::string(keys[at]) + values[at];
      found[at] = true;
      break;
    }
  }
  for (std::size_t at = 0; at < N; ++at) {
    if (!found[at]) lines.push_back(std::string(keys[at]) + values[at]);
  }
}

}  // namespace

std::string FullCall(std::string_view call, std::string_view ssid) {
  const double number = Val(ssid);
  std::string full(call);
  if (number > 0.0 && number < 16.0) full += "-" + std::string(ssid);
  return full;
}

ConfigFields MainWindowFields(RuntimeState& state) {
  IdentityState& identity = state.Identity;
  RadioState& radio = state.Radio;
  TransmissionState& tx = state.Transmission;
  MapViewState& map = state.Map;
  InternetState& net = state.Internet;
  ConfigFields f;
  f.push_back(IntField("LANG", state.Settings.Language));
  f.push_back(FoldedTextField("USER", identity.MyCall));
  f.push_back(FoldedTextField("MSYS", identity.MapZoneName));
  f.push_back(FolderField("UMAPS", identity.MapsPath));
  f.push_back(VariantField("M0002", map.StoredVariants[5]));
  f.push_back(VariantField("M0010", map.StoredVariants[4]));
  f.push_back(VariantField("M0050", map.StoredVariants[3]));
  f.push_back(VariantField("M0200", map.StoredVariants[2]));
  f.push_back(VariantField("M1000", map.StoredVariants[1]));
  f.push_back(VariantField("M5000", map.StoredVariants[0]));
  f.push_back(FolderField("TEMP", identity.TempFolder));
  f.push_back(NmeaSourceField("NMEA", state.Gps.NmeaSource));
  f.push_back(NmeaBaudField("NBAUD", state.Gps.NmeaBaud));
  f.push_back(IntField("MODEM", radio.RadioMode));
  f.push_back(IntField("COM", radio.TncPort));
  f.push_back(PlainTextField("TBAUD", radio.TncBaud));
  f.push_back(RealField("SCOMP", radio.ScsPort));
  f.push_back(PlainTextField("SBAUD", radio.ScsBaud));
  f.push_back(PlainTextField("HOSTC", radio.AgwHost));
  f.push_back(PlainTextField("HOSTP", radio.AgwTcpPort));
  f.push_back(PlainTextField("HBAUD", radio.BaudMode));
  f.push_back(PlainTextField("CALL", state.Followed.Moni1Call));
  f.push_back(ByteField("DISA", state.Followed.Moni1AlarmOn));
  f.push_back(IntField("DIST", state.Alarms.AlarmDistanceKm));
  // A whole number here: the start panel's fraction is rounded and lost at the next write.
  f.push_back(IntField("UTCD", state.Settings.UtcOffsetHours));
  f.push_back(ByteField("SLOG", state.Followed.Moni1ThinningOn));
  f.push_back(ByteField("LOGS", state.Stores.LogsOn));
  f.push_back(SsidField(state));
  f.push_back(IntervalField("TXON", tx.TxIntervalMinutes));
  f.push_back(UpperTextField("TXTO", tx.TxDestination));
  f.push_back(UpperTextField("TXPA", tx.TxPath));
  AddNumbered(f, "TXPM", "", tx.TxPathMemory, UpperTextField);
  f.push_back(ByteField("TXTIM", tx.TxTimestamp));
  AddNumbered(f, "TXI", "", tx.InfoLine, PlainTextField);
  AddNumbered(f, "TXI", "A", tx.InfoLineActive, IntField);
  AddNumbered(f, "TXM", "", tx.InfoLineMemory, PlainTextField);
  f.push_back(IntField("TXAF", radio.TxAudioLevel));
  f.push_back(IntField("TXAFC", radio.TxAfc));
  f.push_back(ByteField("DIGI", radio.DigiOn));
  f.push_back(FoldedTextField("XBAUD", radio.CrossMode));
  f.push_back(IntField("TXSY", tx.TxSymbolIndex));
  f.push_back(OverlayField("TXSS", tx.TxOverlay));
  f.push_back(CentreField("UTN", map.CentreNorthKm, map.StoredNorthText));
  f.push_back(CentreField("UTE", map.CentreEastKm, map.StoredEastText));
  f.push_back(RealField("UUN", map.OwnNorthKm));
  f.push_back(RealField("UUE", map.OwnEastKm));
  f.push_back(ObjectNameField("ONAM", tx.ObjectName));
  f.push_back(PlainTextField("OTXT", tx.ObjectText));
  f.push_back(IntField("OSYM", tx.ObjectSymbol));
  f.push_back(PlainTextField("OSYN", tx.ObjectOverlay));
  f.push_back(RealField("OUTN", tx.ObjectNorth));
  f.push_back(RealField("OUTE", tx.ObjectEast));
  f.push_back(RealField("SSPT", net.SunspotNumber));
  f.push_back(RealField("KIND", net.KpIndex));
  f.push_back(ByteField("IONA", net.IonoAutoOn));
  f.push_back(PlainTextField("POIF", state.Settings.PoiFile));
  f.push_back(PlainTextField("TRKF", state.Settings.TrackFile));
  f.push_back(PlainTextField("AIPRT", net.AprsIsPort));
  f.push_back(PlainTextField("AISRV", net.AprsIsServer));
  f.push_back(ByteField("IGATE", net.IGateOn));
  f.push_back(UpperTextField("WVER", state.Settings.LayoutHint));
  return f;
}

void ReadConfigForMainWindow(Files& files, RuntimeState& state) {
  SetFallbackValues(state);
  const ConfigFields fields = MainWindowFields(state);
  files.ReadLines(ConfigPath(state.Identity.ProgramFolder), [&](std::string_view line) {
    TakeConfigLine(fields, line);
    return true;
  });
  DeriveNames(state);
}

bool WriteConfigFromMainWindow(Files& files, RuntimeState& state) {
  return files.Replace(ConfigPath(state.Identity.ProgramFolder),
                       GiveConfigLines(MainWindowFields(state)));
}

bool MergeConfigAtExit(Files& files, const std::string& program_folder, const LastValues& values) {
  const std::string path = ConfigPath(program_folder);
  // All lines, in their order.
  auto lines = ReadTrimmedLines(files, path, kMostMergedLines);
  if (!lines) return false;
  // The current map of each scale.
  std::array<std::string, 6> maps;
  for (std::size_t at = 0; at < maps.size(); ++at) {
    maps[at] = Upper(Trim(Mid(values.CurrentMaps[at], 6)));
  }
  MergeKeys(*lines, kScaleKeys, maps);
  // The centre, then the own position.
  MergeKeys<2>(*lines, {"UTN=", "UTE="},
               {RealText(values.CentreNorthKm), RealText(values.CentreEastKm)});
  MergeKeys<2>(*lines, {"UUN=", "UUE="}, {RealText(values.OwnNorthKm), RealText(values.OwnEastKm)});
  // Back as it stands.
  if (lines->size() > kMostMergedLines) return false;
  return files.Replace(path, JoinLines(*lines));
}

}  // namespace zepril

// The table of the settings, and what runs over it.
#include "config/settings_table.h"

#include <algorithm>
#include <array>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr SettingForm kText{SettingKind::Text};
constexpr SettingForm kUpper{SettingKind::Upper};
constexpr SettingForm kFolded{SettingKind::Folded};
constexpr SettingForm kFolder{SettingKind::Folder};
constexpr SettingForm kNmeaSource{SettingKind::NmeaSource};
constexpr SettingForm kNmeaBaud{SettingKind::NmeaBaud};
constexpr SettingForm kObjectName{SettingKind::ObjectName};
constexpr SettingForm kOverlay{SettingKind::Overlay};
constexpr SettingForm kByte{SettingKind::Whole, 0, 255};
constexpr SettingForm kInt{SettingKind::Whole, -32768, 32767};
constexpr SettingForm kInterval{SettingKind::Interval, 0, 32767};
constexpr SettingForm kReal{SettingKind::Real};
constexpr SettingForm kNone{};
// The last map of a scale: the main window reads it, and the merge at exit alone writes it again.
constexpr OfEachWindow<SettingForm> kLastMap{kText, ReadOnly(kFolded)};
// The start panel has the hint from the first-run scan, not from the full read.
constexpr OfEachWindow<SettingForm> kHint{WriteOnly(kText), kUpper};
// The main window has no use for it and does not write it.
constexpr OfEachWindow<SettingForm> kOfStartPanel{kInt, kNone};
constexpr OfEachWindow<SettingForm> kActiveMark{kByte, kInt};

constexpr const char* kDownload = "ZEPRIL DOWNLOAD: https://zepril.example";
constexpr const char* kUsing = "using ZEPRIL";

// The name on the air: the call, with "-" and the SSID when its number is 1 to 15. The call must
// stand before the SSID in the file.
void NameOnTheAir(const SettingSections& sections, std::string_view) {
  IdentityState& identity = *std::get<IdentityState*>(sections);
  identity.MyCall = Trim(identity.MyCall);
  if (identity.MyCall.empty()) return;
  const double number = Val(identity.MySsid);
  identity.MyCallFull = identity.MyCall;
  if (number > 0.0 && number < 16.0) identity.MyCallFull += "-" + identity.MySsid;
}

// Of the last centre the text is kept too: how it ends tells a picture's place.
void KeepNorthText(const SettingSections& sections, std::string_view value) {
  std::get<MapViewState*>(sections)->StoredNorthText = Trim(value);
}
void KeepEastText(const SettingSections& sections, std::string_view value) {
  std::get<MapViewState*>(sections)->StoredEastText = Trim(value);
}

using Identity = IdentityState;
using Radio = RadioState;
using Tx = TransmissionState;
using Map = MapViewState;
using Net = InternetState;
using Followed = FollowedStationState;

// clang-format off
constexpr std::array kSettings = {
    Setting{"LANG", kInt, "11", kIn<&SettingsState::Language>},
    Setting{"USER", kFolded, "", kIn<&Identity::MyCall>},
    Setting{"MSYS", kFolded, "U33", kIn<&Identity::MapZoneName>},
    Setting{"UMAPS", kFolder, {R"(C:\ZEPRIL\U33)", R"(C:\ZEPRIL)"}, kIn<&Identity::MapsPath>},
    Setting{"M0002", kLastMap, "", kIn<&Map::StoredVariants, 5>, nullptr, 6},
    Setting{"M0010", kLastMap, "", kIn<&Map::StoredVariants, 4>, nullptr, 5},
    Setting{"M0050", kLastMap, "", kIn<&Map::StoredVariants, 3>, nullptr, 4},
    Setting{"M0200", kLastMap, "", kIn<&Map::StoredVariants, 2>, nullptr, 3},
    Setting{"M1000", kLastMap, "", kIn<&Map::StoredVariants, 1>, nullptr, 2},
    Setting{"M5000", kLastMap, "", kIn<&Map::StoredVariants, 0>, nullptr, 1},
    Setting{"TEMP", kFolder, "", kIn<&Identity::TempFolder>},
    Setting{"NMEA", kNmeaSource, "", kIn<&GpsState::NmeaSource>},
    Setting{"NBAUD", kNmeaBaud, "4800", kIn<&GpsState::NmeaBaud>},
    Setting{"MODEM", kInt, "0", kIn<&Radio::RadioMode>},
    Setting{"COM", kInt, {"2", "1"}, kIn<&Radio::TncPort>},
    Setting{"TBAUD", kText, "1200", kIn<&Radio::TncBaud>},
    Setting{"SCOMP", kReal, "3", kIn<&Radio::ScsPort>},
    Setting{"SBAUD", kText, "38400", kIn<&Radio::ScsBaud>},
    Setting{"HOSTC", kText, "QX7KB0", kIn<&Radio::AgwHost>},
    Setting{"HOSTP", kText, "8000", kIn<&Radio::AgwTcpPort>},
    Setting{"HBAUD", kText, "300", kIn<&Radio::BaudMode>},
    Setting{"CALL", kText, "QX7KB", kIn<&Followed::Moni1Call>},
    Setting{"DISA", kByte, {"0", "1"}, kIn<&Followed::Moni1AlarmOn>},
    Setting{"DIST", {HeldTo(1, 100), kInt}, "10", kIn<&AlarmState::AlarmDistanceKm>},
    // A whole number in the main window: a fraction is rounded there and lost at the next write.
    Setting{"UTCD", {kReal, kInt}, "0",
            {kIn<&StartPanelValues::UtcOffsetHours>, kIn<&SettingsState::UtcOffsetHours>}},
    Setting{"SLOG", kByte, "0", kIn<&Followed::Moni1ThinningOn>},
    Setting{"LOGS", kByte, "0", kIn<&StoresState::LogsOn>},
    Setting{"TXID", kUpper, "", kIn<&Identity::MySsid>, NameOnTheAir},
    Setting{"TXON", kInterval, "0", kIn<&Tx::TxIntervalMinutes>},
    Setting{"TXTO", kUpper, "ZEPR", kIn<&Tx::TxDestination>},
    Setting{"TXPA", kUpper, "WIDE1-1", kIn<&Tx::TxPath>},
    Setting{"TXPM1", kUpper, "", kIn<&Tx::TxPathMemory, 0>},
    Setting{"TXPM2", kUpper, "", kIn<&Tx::TxPathMemory, 1>},
    Setting{"TXPM3", kUpper, "", kIn<&Tx::TxPathMemory, 2>},
    Setting{"TXPM4", kUpper, "", kIn<&Tx::TxPathMemory, 3>},
    Setting{"TXTIM", kByte, "0", kIn<&Tx::TxTimestamp>},
    Setting{"TXI1", kText, "", kIn<&Tx::InfoLine, 0>},
    Setting{"TXI2", kText, kUsing, kIn<&Tx::InfoLine, 1>},
    Setting{"TXI3", kText, kDownload, kIn<&Tx::InfoLine, 2>},
    Setting{"TXI4", kText, kUsing, kIn<&Tx::InfoLine, 3>},
    Setting{"TXI5", kText, kDownload, kIn<&Tx::InfoLine, 4>},
    Setting{"TXI6", kText, kUsing, kIn<&Tx::InfoLine, 5>},
    Setting{"TXI1A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 0>},
    Setting{"TXI2A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 1>},
    Setting{"TXI3A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 2>},
    Setting{"TXI4A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 3>},
    Setting{"TXI5A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 4>},
    Setting{"TXI6A", kActiveMark, "1", kIn<&Tx::InfoLineActive, 5>},
    Setting{"TXM1", kText, "", kIn<&Tx::InfoLineMemory, 0>},
    Setting{"TXM2", kText, "", kIn<&Tx::InfoLineMemory, 1>},
    Setting{"TXM3", kText, "", kIn<&Tx::InfoLineMemory, 2>},
    Setting{"TXM4", kText, "", kIn<&Tx::InfoLineMemory, 3>},
    Setting{"TXM5", kText, "", kIn<&Tx::InfoLineMemory, 4>},
    Setting{"TXM6", kText, "", kIn<&Tx::InfoLineMemory, 5>},
    Setting{"TXAF", kInt, "300", kIn<&Radio::TxAudioLevel>},
    Setting{"TXAFC", kInt, "0", kIn<&Radio::TxAfc>},
    Setting{"DIGI", kByte, "0", kIn<&Radio::DigiOn>},
    Setting{"XBAUD", kFolded, "NONE", kIn<&Radio::CrossMode>},
    Setting{"TXSY", kInt, "14", kIn<&Tx::TxSymbolIndex>},
    Setting{"TXSS", kOverlay, "A", kIn<&Tx::TxOverlay>},
    Setting{"UTN", kReal, "0", kIn<&Map::CentreNorthKm>, KeepNorthText, 7},
    Setting{"UTE", kReal, "0", kIn<&Map::CentreEastKm>, KeepEastText, 8},
    Setting{"UUN", kReal, "0", kIn<&Map::OwnNorthKm>, nullptr, 9},
    Setting{"UUE", kReal, "0", kIn<&Map::OwnEastKm>, nullptr, 10},
    Setting{"ONAM", kObjectName, "", kIn<&Tx::ObjectName>},
    Setting{"OTXT", kText, "", kIn<&Tx::ObjectText>},
    Setting{"OSYM", kInt, {"0", "37"}, kIn<&Tx::ObjectSymbol>},
    Setting{"OSYN", kText, "", kIn<&Tx::ObjectOverlay>},
    Setting{"OUTN", kReal, "0", kIn<&Tx::ObjectNorth>},
    Setting{"OUTE", kReal, "0", kIn<&Tx::ObjectEast>},
    Setting{"NOAT", kOfStartPanel, "0", kIn<&StartPanelValues::KeepReadOnlyMarks>},
    Setting{"SSPT", kReal, "40", kIn<&Net::SunspotNumber>},
    Setting{"KIND", kReal, "2", kIn<&Net::KpIndex>},
    Setting{"IONA", kByte, "1", kIn<&Net::IonoAutoOn>},
    Setting{"POIF", kText, "", kIn<&SettingsState::PoiFile>},
    Setting{"TRKF", kText, "", kIn<&SettingsState::TrackFile>},
    Setting{"AIPRT", kText, "14580", kIn<&Net::AprsIsPort>},
    Setting{"AISRV", kText, "rotate.aprs2.net", kIn<&Net::AprsIsServer>},
    Setting{"IGATE", kByte, "0", kIn<&Net::IGateOn>},
    Setting{"WVER", kHint, "", kIn<&SettingsState::LayoutHint>},
};
// clang-format on

// A form of one type on a place of another would read or write nonsense.
constexpr bool FormFits(SettingForm form, const SettingPlace& place) {
  if (form.Kind == SettingKind::None) return true;
  if (IsTextForm(form)) return std::holds_alternative<TextPlace>(place.Value);
  if (IsWholeForm(form)) return std::holds_alternative<WholePlace>(place.Value);
  return IsRealForm(form) && std::holds_alternative<RealPlace>(place.Value);
}

constexpr bool RowIsSound(const Setting& setting) {
  const SettingForm main_form = setting.Form.MainWindow;
  const SettingPlace& main_place = setting.Place.MainWindow;
  return FormFits(setting.Form.StartPanel, setting.Place.StartPanel) &&
         FormFits(main_form, main_place) &&
         (main_form.Kind == SettingKind::None || !main_place.StartPanelOnly);
}

static_assert(kSettings.size() == 80);
static_assert(std::all_of(kSettings.begin(), kSettings.end(), RowIsSound));

template <typename Holder>
SettingSections SectionsIn(Holder& holder, StartPanelValues* start_panel) {
  return {&holder.Identity, &holder.Radio,    &holder.Transmission, &holder.Stores,
          &holder.Followed, &holder.Map,      &holder.Gps,          &holder.Internet,
          &holder.Alarms,   &holder.Settings, start_panel};
}

}  // namespace

std::span<const Setting> AllSettings() {
  return kSettings;
}

SettingSections SectionsOf(StartPanelSettings& settings) {
  return SectionsIn(settings, &settings.StartPanel);
}

SettingSections SectionsOf(RuntimeState& state) {
  return SectionsIn(state, nullptr);
}

void SetFallbacks(SettingsWindow window, const SettingSections& sections) {
  for (const Setting& setting : kSettings)
    SetFallback(setting, window, sections);
}

bool TakeSettingLine(SettingsWindow window, const SettingSections& sections,
                     std::string_view line) {
  const std::string_view trimmed = Trim(line);
  const std::size_t equals = trimmed.find('=');
  if (equals == std::string_view::npos) return false;
  const std::string_view key = trimmed.substr(0, equals);
  for (const Setting& setting : kSettings) {
    if (!EqualFolded(setting.Key, key)) continue;
    TakeSetting(setting, window, sections, trimmed.substr(equals + 1));
    return true;
  }
  return false;
}

std::string GiveSettingLines(SettingsWindow window, const SettingSections& sections) {
  std::string text;
  for (const Setting& setting : kSettings) {
    const SettingForm form = setting.Form.For(window);
    if (form.Kind == SettingKind::None || !form.Written) continue;
    text += std::string(setting.Key) + "=" + GiveSetting(setting, window, sections) + "\r\n";
  }
  return text;
}

}  // namespace zepril

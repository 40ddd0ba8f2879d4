// A setting of the configuration file: its key, form and fallback, and where it lives in the state.
//
// The start panel and the main window both hold the settings, in sections of the same kind, and do
// not quite agree on a few of them: a column that differs tells the start panel's first.
#pragma once

#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>

#include "config/setting_form.h"
#include "core/state/alarms.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/radio.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/state/transmission.h"

namespace zepril {

// Which window's columns hold.
enum class SettingsWindow { StartPanel, MainWindow };

// What the start panel alone holds.
struct StartPanelValues {
  double UtcOffsetHours = 0.0;  // with its fraction, which the main window rounds
  int KeepReadOnlyMarks = 0;
};

// The sections of one window. Those of a section that a caller has no settings of may be null.
using SettingSections = std::tuple<IdentityState*, RadioState*, TransmissionState*, StoresState*,
                                   FollowedStationState*, MapViewState*, GpsState*, InternetState*,
                                   AlarmState*, SettingsState*, StartPanelValues*>;

// A column: told once where both windows agree.
template <typename T>
struct OfEachWindow {
  T StartPanel;
  T MainWindow;

  template <typename Both>
  requires std::is_convertible_v<Both, T>
  constexpr OfEachWindow(const Both& both) : StartPanel(both), MainWindow(both) {}
  constexpr OfEachWindow(T start_panel, T main_window)
      : StartPanel(start_panel), MainWindow(main_window) {}

  constexpr const T& For(SettingsWindow window) const {
    return window == SettingsWindow::StartPanel ? StartPanel : MainWindow;
  }
};

// Where a value lives. An enum is held by its number; a number without a name is kept.
struct TextPlace {
  std::string& (*Value)(const SettingSections&);
};
struct WholePlace {
  int (*Get)(const SettingSections&);
  void (*Set)(const SettingSections&, int);
};
struct RealPlace {
  double& (*Value)(const SettingSections&);
};
struct SettingPlace {
  std::variant<TextPlace, WholePlace, RealPlace> Value;
  bool StartPanelOnly;
};

struct Setting {
  std::string_view Key;  // upper case, without "="
  OfEachWindow<SettingForm> Form;
  OfEachWindow<std::string_view> Fallback;  // as it would stand in the file
  OfEachWindow<SettingPlace> Place;
  // What else a line of the key brings about, given the value behind the "=".
  void (*AlsoTaken)(const SettingSections&, std::string_view) = nullptr;
  int AtExit = 0;  // its turn in the merge at exit, from 1; 0: not merged
};

// ---- Places ---------------------------------------------------------------------------------

template <typename Section, typename Value>
Section SectionOfField(Value Section::*);

// The field, or of an array the element.
template <auto kField, std::size_t... kElement>
auto& HeldIn(const SettingSections& sections) {
  using Section = decltype(SectionOfField(kField));
  auto& held = std::get<Section*>(sections)->*kField;
  if constexpr (sizeof...(kElement) == 0) {
    return held;
  } else {
    return (held[kElement], ...);
  }
}

template <auto kField, std::size_t... kElement>
constexpr SettingPlace MakePlace() {
  constexpr auto kHeld = &HeldIn<kField, kElement...>;
  using Value = std::remove_reference_t<decltype(kHeld(std::declval<const SettingSections&>()))>;
  constexpr bool kStartPanelOnly =
      std::is_same_v<decltype(SectionOfField(kField)), StartPanelValues>;
  if constexpr (std::is_same_v<Value, std::string>) {
    return {TextPlace{kHeld}, kStartPanelOnly};
  } else if constexpr (std::is_same_v<Value, double>) {
    return {RealPlace{kHeld}, kStartPanelOnly};
  } else {
    return {WholePlace{[](const SettingSections& s) { return static_cast<int>(kHeld(s)); },
                       [](const SettingSections& s, int v) { kHeld(s) = static_cast<Value>(v); }},
            kStartPanelOnly};
  }
}

// kIn<&RadioState::TncPort>, kIn<&TransmissionState::InfoLine, 2>
template <auto kField, std::size_t... kElement>
inline constexpr SettingPlace kIn = MakePlace<kField, kElement...>();

// ---- One setting ----------------------------------------------------------------------------

void SetFallback(const Setting& setting, SettingsWindow window, const SettingSections& sections);
// `value`: what stands behind the "=".
void TakeSetting(const Setting& setting, SettingsWindow window, const SettingSections& sections,
                 std::string_view value);
std::string GiveSetting(const Setting& setting, SettingsWindow window,
                        const SettingSections& sections);

}  // namespace zepril

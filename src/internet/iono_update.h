// Keeps sunspot number and K index current by two pages of the internet, one after the other as far
// as they are needed: an observatory's page first, a daily text for what is missing then.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/iono_controls.h"
#include "core/controls/status_controls.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/services.h"
#include "core/texts/text.h"
#include "platform/clock.h"
#include "platform/page_fetcher.h"

namespace zepril {

struct IonoUpdateTools {
  PageFetcher& Pages;
  const Clock& LocalClock;
  MapActions& Map;
  SettingsActions& Settings;
};

class IonoUpdate {
 public:
  // A page that has not come by then has failed.
  static constexpr double kPatienceSeconds = 30.0;

  IonoUpdate(InternetState& internet, const MapViewState& view, const ServicesState& services,
             IonoControls& controls, StatusControls& status, IonoUpdateTools tools);
  ~IonoUpdate();
  IonoUpdate(const IonoUpdate&) = delete;
  IonoUpdate& operator=(const IonoUpdate&) = delete;

  // The operator wants it, and a page has an address.
  bool IsAutomatic() const;
  // Begins an update, anew where one is under way. False when no page has an address, which the
  // status tells.
  bool StartIonoUpdate();
  // Once a second: who does not answer is given up.
  void SecondPassed();
  // The values in use, in the fields of the panel; those of the internet can't be typed over. The
  // status tells when nothing updates them.
  void ShowValues();

 private:
  void LoadIonoPageB();
  void Ask(const std::string& address);
  void PageCame(const Page& page);
  // Nothing: the page could not be had.
  void Answered(const std::optional<std::string>& text);
  void TakePageA(std::string_view text);
  void TakePageB(std::string_view text);
  // False when the daily text lacks what is needed.
  bool TakeFromPageB(std::string_view text);
  void TakeSunspots(double value);
  void TakeK(double value);
  void Updated(Text status);
  void Failed();
  void RedrawCircles();

  InternetState& internet_;
  const MapViewState& view_;
  const ServicesState& services_;
  IonoControls& controls_;
  Label& status_;
  IonoUpdateTools tools_;
  std::int64_t page_ = PageFetcher::kNone;  // under way
  bool is_page_b_ = false;
  std::optional<double> since_;  // monotonic seconds, when its turn was noticed
};

}  // namespace zepril

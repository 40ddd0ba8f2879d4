// Asks for the pages, takes their numbers, and says how that went.
#include "internet/iono_update.h"

#include <utility>

#include "core/clock_text.h"
#include "core/text_fields.h"
#include "core/texts/iono_texts.h"
#include "internet/body_text.h"
#include "internet/iono_pages.h"

namespace zepril {

IonoUpdate::IonoUpdate(InternetState& internet, const MapViewState& view,
                       const ServicesState& services, IonoControls& controls,
                       StatusControls& status, IonoUpdateTools tools)
    : internet_(internet),
      view_(view),
      services_(services),
      controls_(controls),
      status_(status.IonoLabel),
      tools_(tools) {}

IonoUpdate::~IonoUpdate() {
  tools_.Pages.Drop(page_);
}

bool IonoUpdate::IsAutomatic() const {
  const bool has_address = !services_.IonoPageA.empty() || !services_.IonoPageB.empty();
  return internet_.IonoAutoOn == 1 && has_address;
}

bool IonoUpdate::StartIonoUpdate() {
  tools_.Pages.Drop(std::exchange(page_, PageFetcher::kNone));
  internet_.LastIonoTimer = tools_.LocalClock.SecondsSinceMidnight();
  status_.ToolTip.clear();
  if (services_.IonoPageA.empty() && services_.IonoPageB.empty()) {
    status_.Caption = iono_texts::kNoAddress;
    return false;
  }
  status_.Caption = iono_texts::kUpdating;
  internet_.IonoNeedSunspot = true;
  internet_.IonoNeedK = true;
  is_page_b_ = false;
  Ask(services_.IonoPageA);
  return true;
}

void IonoUpdate::LoadIonoPageB() {
  is_page_b_ = true;
  Ask(services_.IonoPageB);
}

void IonoUpdate::Ask(const std::string& address) {
  since_.reset();
  if (!address.empty()) {
    status_.ToolTip = iono_texts::kAsking.With({address});
    page_ = tools_.Pages.Fetch(address, [this](const Page& page) { PageCame(page); });
  }
  if (page_ == PageFetcher::kNone) Answered(std::nullopt);
}

void IonoUpdate::PageCame(const Page& page) {
  page_ = PageFetcher::kNone;
  Answered(page.IsGood() ? std::optional(BodyText(page)) : std::nullopt);
}

void IonoUpdate::SecondPassed() {
  if (page_ == PageFetcher::kNone || !tools_.Pages.IsUnderWay(page_)) return;
  const double now = tools_.LocalClock.MonotonicSeconds();
  since_ = since_.value_or(now);
  if (now - *since_ < kPatienceSeconds) return;
  tools_.Pages.Drop(std::exchange(page_, PageFetcher::kNone));
  Answered(std::nullopt);
}

void IonoUpdate::Answered(const std::optional<std::string>& text) {
  if (is_page_b_) return TakePageB(text.value_or(std::string()));
  if (text) return TakePageA(*text);
  LoadIonoPageB();
}

void IonoUpdate::TakePageA(std::string_view text) {
  internet_.IonoNeedSunspot = true;
  internet_.IonoNeedK = true;
  const IonoPageAValues values = ParseIonoPageA(text);
  if (values.KpIndex) TakeK(*values.KpIndex);
  if (values.SunspotNumber) TakeSunspots(*values.SunspotNumber);
  if (!internet_.IonoNeedSunspot && !internet_.IonoNeedK) {
    return Updated(iono_texts::kUpdatedByPageA);
  }
  status_.Caption = iono_texts::kUpdateFailed;  // for the moment
  LoadIonoPageB();
}

void IonoUpdate::TakePageB(std::string_view text) {
  if (!TakeFromPageB(text)) Failed();
}

bool IonoUpdate::TakeFromPageB(std::string_view text) {
  const IonoPageBValues values = ParseIonoPageB(text);
  if (!values.IsPage) return false;
  if (internet_.IonoNeedSunspot) {
    if (!values.SunspotNumber) return false;
    TakeSunspots(*values.SunspotNumber);
    if (!internet_.IonoNeedK) {
      Updated(iono_texts::kUpdatedByBoth);
      return true;
    }
  }
  if (!values.KpIndex) return false;
  TakeK(*values.KpIndex);
  Updated(iono_texts::kUpdatedByPageB);
  return true;
}

void IonoUpdate::TakeSunspots(double value) {
  internet_.SunspotNumber = value;
  internet_.IonoNeedSunspot = false;
  controls_.Text11.Text = iono_texts::kFromInternet.With({ShortNumber(value)});
}

void IonoUpdate::TakeK(double value) {
  internet_.KpIndex = value;
  internet_.IonoNeedK = false;
  controls_.Text12.Text = iono_texts::kFromInternet.With({ShortNumber(value)});
}

void IonoUpdate::Updated(Text status) {
  const std::string time = ClockText(tools_.LocalClock.Now());
  status_.Caption = status.With({time});
  status_.ToolTip = iono_texts::kAnswered.With(
      {time, ShortNumber(internet_.SunspotNumber), ShortNumber(internet_.KpIndex)});
  tools_.Settings.WriteConfigFromMainWindow();
  RedrawCircles();
}

// What one of the pages gave stays in use.
void IonoUpdate::Failed() {
  const std::string time = ClockText(tools_.LocalClock.Now());
  status_.Caption = iono_texts::kUpdateFailed;
  if (!internet_.IonoNeedK) {
    status_.ToolTip = iono_texts::kOnlyKAnswered.With({time, ShortNumber(internet_.KpIndex)});
  } else if (!internet_.IonoNeedSunspot) {
    status_.ToolTip =
        iono_texts::kOnlySunspotsAnswered.With({time, ShortNumber(internet_.SunspotNumber)});
  } else {
    status_.ToolTip = iono_texts::kNotAnswered.With({time});
    return;
  }
  RedrawCircles();
}

void IonoUpdate::RedrawCircles() {
  if (view_.CirclesOn) tools_.Map.MapRedraw();
}

void IonoUpdate::ShowValues() {
  const bool automatic = IsAutomatic();
  const Text form = automatic ? iono_texts::kFromInternet : Text{"%1"};
  controls_.Text11.Text = form.With({ShortNumber(internet_.SunspotNumber)});
  controls_.Text12.Text = form.With({ShortNumber(internet_.KpIndex)});
  controls_.Text11.Enabled = !automatic;
  controls_.Text12.Enabled = !automatic;
  if (automatic) return;
  status_.Caption = internet_.IonoAutoOn == 1 ? iono_texts::kNoAddress : iono_texts::kByHand;
  status_.ToolTip.clear();
}

}  // namespace zepril

// When a page is asked for, what is shown meanwhile, and what becomes of it.
#include "internet/inet_support.h"

#include <algorithm>
#include <utility>

#include "core/clock_text.h"
#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "core/texts/internet_texts.h"
#include "geodesy/conversions.h"
#include "internet/body_text.h"
#include "internet/inet_requests.h"

namespace zepril {
namespace {

constexpr std::uint32_t kCollectingFromRest = state_colours::kSendingMessage;  // one for both
constexpr const char* kRestKey = "APRSRESTSERVICE";
constexpr const char* kCgiKey = "APRSCGISERVICE";

std::string NumberText(int number) {
  return WholeNumber(number);
}

}  // namespace

InetSupport::InetSupport(InetSupportSections sections, InetSupportControls controls,
                         InetSupportTools tools)
    : sections_(sections),
      controls_(controls),
      tools_(tools),
      lines_({sections.Identity, sections.View, sections.Settings},
             {tools.Keeper, tools.Symbols, tools.LocalClock}),
      area_({sections.Stores, sections.View, sections.Settings},
            {tools.Keeper, tools.Symbols, tools.LocalClock}) {
  controls_.Moni1.Check22.Click = [this] { Moni1Clicked(); };
  controls_.Moni1.Check22.RightClick = [this] { Moni1RightClicked(); };
  controls_.MoniAll.Check23.Click = [this] { MoniAllClicked(); };
  Renew();
}

InetSupport::~InetSupport() {
  Stop();
}

// ---- Switches -------------------------------------------------------------------------------

// Support lasts a quarter of an hour from here on.
void InetSupport::Operated() {
  sections_.Internet.InetSwitchTime = tools_.LocalClock.SecondsSinceMidnight();
}

bool InetSupport::SwitchMoni1(bool on) {
  CheckBox& box = controls_.Moni1.Check22;
  Operated();
  if (on) {
    sections_.Internet.InetTries = 0;
    moni1_.Words.clear();
    if (HostOf(sections_.Services, sections_.Internet.InetSource).empty()) {
      LoseService(moni1_, box, sections_.Internet.InetSource);
      return false;
    }
  } else if (moni1_.UnderWay) {
    Drop(moni1_);
    Rest();
  }
  box.Value = on ? 1 : 0;
  moni1_.WasOn = on;
  Renew();
  return true;
}

void InetSupport::TellMoni1(std::string words) {
  moni1_.Words = std::move(words);
  Renew();
}

void InetSupport::Moni1Clicked() {
  const bool on = controls_.Moni1.Check22.Value == 1;
  SwitchMoni1(on);
  if (!on) moni1_.Words.clear();
  Renew();
  if (!on && Moni1SwitchedOff) Moni1SwitchedOff();
}

// The other source, from the next fetch on.
void InetSupport::Moni1RightClicked() {
  InternetSource& source = sections_.Internet.InetSource;
  source = source == InternetSource::RestService ? InternetSource::CgiService
                                                 : InternetSource::RestService;
  Operated();
  if (controls_.Moni1.Check22.Value == 1 && HostOf(sections_.Services, source).empty()) {
    LoseService(moni1_, controls_.Moni1.Check22, source);
  }
  Renew();
}

void InetSupport::MoniAllClicked() {
  CheckBox& box = controls_.MoniAll.Check23;
  Operated();
  moni_all_.Words.clear();
  moni_all_.WasOn = box.Value == 1;
  if (box.Value != 1 && moni_all_.UnderWay) {
    Drop(moni_all_);
    Rest();
  }
  if (box.Value == 1 && sections_.Services.AprsRestService.empty()) {
    LoseService(moni_all_, box, InternetSource::RestService);
  }
  Renew();
}

// A service without an address is off, and so is its switch.
void InetSupport::LoseService(Kind& kind, CheckBox& box, InternetSource source) {
  const bool was_asking = kind.UnderWay.has_value();
  Drop(kind);
  box.Value = 0;
  kind.WasOn = false;
  kind.Words =
      internet_texts::kNoService.With({source == InternetSource::CgiService ? kCgiKey : kRestKey});
  if (was_asking) Rest();
  Renew();
}

// ---- Asking ---------------------------------------------------------------------------------

void InetSupport::FetchMoni1() {
  constexpr int kMostTries = 3;
  InternetState& internet = sections_.Internet;
  const InternetSource source = internet.InetSource;
  // Switched off, or a panel was opened, while the window system had control.
  if (controls_.Moni1.Check22.Value != 1 || IsHeld()) return Rest();
  const std::string& host = HostOf(sections_.Services, source);
  if (host.empty()) {
    LoseService(moni1_, controls_.Moni1.Check22, source);
    return Rest();
  }
  // One that is still awaited is not asked for twice; one of a station that is left does not count.
  if (moni1_.UnderWay && !IsOfFollowed(*moni1_.UnderWay)) Drop(moni1_);
  if (moni1_.UnderWay) return;
  internet.LastMoni1InternetMinute = HhMmNow();
  if (Trim(sections_.Followed.Moni1Call).empty()) {
    Rest();
    return TellMoni1(internet_texts::kNoStation);
  }
  internet.InetTries = std::min(internet.InetTries + 1, kMostTries);
  const StationStore& history = sections_.Stores.Moni1Records;
  const int hours = HoursToAsk(history.Count() > 0 ? history.At(history.Count()).DateAndTime() : "",
                               tools_.LocalClock.Now());
  if (source == InternetSource::RestService)
    controls_.Status.Text10.BackColour = kCollectingFromRest;
  Ask(moni1_, RawAddress(source, host, sections_.Followed.Moni1Call, hours),
      sections_.Followed.Moni1Call, &InetSupport::Moni1Came);
  // It would take the switch of MONI 1 away from under an area that is silent.
  if (moni1_.UnderWay) tools_.Timer2.Arm(kPatienceMilliseconds);
}

// The map's centre in degrees, and everything around it.
void InetSupport::FetchMoniAll() {
  constexpr double kMetresPerKm = 1000.0;
  if (controls_.MoniAll.Check23.Value != 1 || IsHeld()) return Rest();
  const std::string& host = sections_.Services.AprsRestService;
  if (host.empty()) {
    LoseService(moni_all_, controls_.MoniAll.Check23, InternetSource::RestService);
    return Rest();
  }
  if (moni_all_.UnderWay) return;
  sections_.Internet.LastMoniAllInternetMinute = HhMmNow();
  const MapViewState& view = sections_.View;
  const Geodetic centre = UtmToGeodetic(view.MapCentralMeridian, view.CentreEastKm * kMetresPerKm,
                                        view.CentreNorthKm * kMetresPerKm, view.MapFalseEasting);
  Ask(moni_all_, AreaAddress(host, centre), {}, &InetSupport::MoniAllCame);
}

void InetSupport::Ask(Kind& kind, const std::string& address, std::string call,
                      void (InetSupport::*came)(const Page& page)) {
  const std::int64_t number =
      tools_.Pages.Fetch(address, [this, came](const Page& page) { (this->*came)(page); });
  if (number == PageFetcher::kNone) {
    kind.Words = internet_texts::kTooManyWait.With({ClockNow()});
    Rest();
    return Renew();
  }
  failed_at_.reset();  // the banner is of this fetch now
  sections_.Internet.WebRequestUrl = address;
  kind.UnderWay = {number, sections_.Internet.InetSource, std::move(call), ClockNow(),
                   tools_.LocalClock.MonotonicSeconds()};
  Renew();
}

// ---- What comes -----------------------------------------------------------------------------

void InetSupport::Moni1Came(const Page& page) {
  const Asked asked = std::move(*std::exchange(moni1_.UnderWay, std::nullopt));
  DecodedLines decoded;
  if (controls_.Moni1.Check22.Value != 1 || IsHeld() || !IsOfFollowed(asked)) {
    // Given up by `Timer2`, by the limit of time or by a press; or of a station that is left.
    moni1_.Words = internet_texts::kPassedOver.With({ClockNow()});
  } else if (const auto trouble = TroubleOf(page)) {
    moni1_.Words = *trouble;
    // The banner stays until `Timer2` takes it away, and the switch with it.
    if (page.Outcome == PageOutcome::Failed) {
      tools_.Timer2.Arm(kFailureMilliseconds);
      failed_at_ = tools_.LocalClock.MonotonicSeconds();
      return Renew();
    }
  } else {
    decoded = TakeLines(asked, BodyText(page));
  }
  Rest();
  Renew();
  ShowNew(decoded.Level);
  HandOnMessages(decoded);
}

DecodedLines InetSupport::TakeLines(const Asked& asked, const std::string& body) {
  DecodedLines decoded;
  std::string& lines = sections_.Internet.InetRawText;
  lines = LinesOf(asked, body);
  if (!lines.empty()) decoded = lines_.DecodeInetLines(lines);
  lines.clear();
  if (decoded.Lines > 0) {
    moni1_.Words = internet_texts::kLines.With(
        {ClockNow(), NumberText(decoded.Lines), NumberText(decoded.Stored)});
  }
  return decoded;
}

bool InetSupport::IsOfFollowed(const Asked& asked) const {
  return EqualFolded(Trim(asked.Call), Trim(sections_.Followed.Moni1Call));
}

// The lines of a page by the service that was asked, and what there is to say where it has none.
std::string InetSupport::LinesOf(const Asked& asked, const std::string& body) {
  const bool is_cgi = asked.Source == InternetSource::CgiService;
  const bool says_no_data = SaysNoData(body);
  const bool tells_nothing = says_no_data || Trim(body).empty();
  moni1_.Words =
      (tells_nothing ? internet_texts::kNoData : internet_texts::kOddAnswer).With({ClockNow()});
  // Among the packets of the other service the words may be part of one.
  sections_.Internet.InetNoData = is_cgi && says_no_data;
  if (sections_.Internet.InetNoData) return {};
  return is_cgi ? LinesOfCgiReply(body, asked.Call) : LinesOfRestReply(body);
}

void InetSupport::MoniAllCame(const Page& page) {
  moni_all_.UnderWay.reset();
  sections_.Internet.LastMoniAllInternetMinute = HhMmNow();
  if (controls_.MoniAll.Check23.Value != 1 || IsHeld()) {
    moni_all_.Words = internet_texts::kPassedOver.With({ClockNow()});
    return Rest();
  }
  if (!tools_.LocalClock.EndAsked()) tools_.LocalClock.Wait(kPauseSeconds);
  const auto trouble = TroubleOf(page);
  if (trouble) {
    moni_all_.Words = *trouble;
  } else {
    TakeArea(BodyText(page));
  }
  Rest();
  Renew();
}

void InetSupport::TakeArea(const std::string& body) {
  constexpr std::size_t kTooShort = 100;
  moni_all_.Words = internet_texts::kNoData.With({ClockNow()});
  if (body.size() <= kTooShort) return;
  const DecodedArea decoded = area_.DecodeInetArea(body);
  moni_all_.Words = internet_texts::kStations.With(
      {ClockNow(), NumberText(decoded.Stations), NumberText(decoded.Stored)});
  tools_.Map.MapRedraw();
}

std::optional<std::string> InetSupport::TroubleOf(const Page& page) {
  const std::string time = ClockNow();
  if (page.Outcome == PageOutcome::TooLarge) return internet_texts::kTooLarge.With({time});
  if (page.Outcome == PageOutcome::Failed) return internet_texts::kNoAnswer.With({time});
  if (!page.IsGood()) return internet_texts::kRefused.With({time, NumberText(page.Status)});
  return std::nullopt;
}

void InetSupport::ShowNew(FrameLevel level) {
  if (level == FrameLevel::Nothing) return;
  if (level == FrameLevel::Emergency) return tools_.Emergencies.ShowEmergency();
  tools_.Map.MapRedraw();
}

// Last of all: control may go to the window system on the way.
void InetSupport::HandOnMessages(const DecodedLines& decoded) {
  if (decoded.Messages.empty()) return;
  tools_.Messages.PassBegins();
  for (const InetMessage& message : decoded.Messages) {
    tools_.Messages.MessageReceived({message.From, message.Info, message.Header,
                                     message.Destination, true, message.AgeSeconds});
  }
}

// ---- The end of a fetch ---------------------------------------------------------------------

void InetSupport::Drop(Kind& kind) {
  if (!kind.UnderWay) return;
  const std::int64_t number = kind.UnderWay->Number;
  kind.UnderWay.reset();
  tools_.Pages.Drop(number);
}

bool InetSupport::IsBannerOfMessage() const {
  const Label& banner = controls_.Status.Text10;
  return banner.Visible && banner.Caption == std::string(chat_texts::kSendingOverInternet);
}

// The banner of a message that is being sent stays: whoever sends it takes it away.
void InetSupport::Rest() {
  if (IsBannerOfMessage()) return;
  Label& banner = controls_.Status.Text10;
  banner.Visible = false;
  banner.BackColour = state_colours::kCollectingMoni1;
  controls_.Window.Pointer = PointerShape::Default;
  controls_.Map.Picture1.Pointer = PointerShape::Default;
  tools_.Timer2.Stop();
  if (!IsHeld()) tools_.Timer1.Enable();
}

void InetSupport::SecondPassed() {
  // `Timer2` has fired, or the time was up, before the page came.
  if (moni1_.UnderWay && controls_.Moni1.Check22.Value != 1) {
    Drop(moni1_);
    moni1_.WasOn = false;
    moni1_.Words = internet_texts::kNoAnswer.With({ClockNow()});
  }
  EndFailure();
  GiveUpSilent(moni1_);
  GiveUpSilent(moni_all_);
  Renew();
}

// `Timer2` ends a failed fetch, unless a panel or a key has stopped it meanwhile.
void InetSupport::EndFailure() {
  if (!failed_at_) return;
  const double passed = tools_.LocalClock.MonotonicSeconds() - *failed_at_;
  if (passed * 1000.0 < kFailureMilliseconds) return;
  failed_at_.reset();
  if (!controls_.Status.Text10.Visible || IsBannerOfMessage()) return;
  controls_.Moni1.Check22.Value = 0;
  moni1_.WasOn = false;
  Rest();
}

// Pages of others are before it in the line, and its service is not silent yet. Those are given up
// in their turn, so that this one's comes. A shorter time of `Timer2` is that of a press.
void InetSupport::WaitForTurn(Kind& kind) {
  kind.UnderWay->Since = tools_.LocalClock.MonotonicSeconds();
  const bool is_watched =
      tools_.Timer2.Enabled() && tools_.Timer2.IntervalMs() == kPatienceMilliseconds;
  if (&kind == &moni1_ && is_watched) tools_.Timer2.Arm(kPatienceMilliseconds);
}

void InetSupport::GiveUpSilent(Kind& kind) {
  if (!kind.UnderWay) return;
  if (!tools_.Pages.IsUnderWay(kind.UnderWay->Number)) return WaitForTurn(kind);
  const double waited = tools_.LocalClock.MonotonicSeconds() - kind.UnderWay->Since;
  if (waited * 1000.0 < kPatienceMilliseconds) return;
  Drop(kind);
  kind.Words = internet_texts::kNoAnswer.With({ClockNow()});
  if (&kind == &moni1_) {
    controls_.Moni1.Check22.Value = 0;
    kind.WasOn = false;
  }
  Rest();
}

void InetSupport::Stop() {
  Drop(moni1_);
  Drop(moni_all_);
}

// ---- Words ----------------------------------------------------------------------------------

void InetSupport::Renew() {
  controls_.Moni1.Check22.Caption = internet_texts::kSource.With(
      {sections_.Internet.InetSource == InternetSource::CgiService ? "2" : "1"});
  NoteSwitchedOff(moni1_, controls_.Moni1.Check22);
  NoteSwitchedOff(moni_all_, controls_.MoniAll.Check23);
  const int share = 1 + controls_.MoniAll.Check23.Value;
  std::string state =
      StateOf(moni1_, controls_.Moni1.Check22, sections_.Internet.LastMoni1InternetMinute, share);
  if (ScanPlace) state = internet_texts::kScan.With({ScanPlace(), state});
  controls_.Words.Moni1State.Caption = internet_texts::kOfMoni1.With({state});
  constexpr int kAreaMinutes = 4;
  controls_.Words.MoniAllState.Caption = internet_texts::kOfMoniAll.With(
      {StateOf(moni_all_, controls_.MoniAll.Check23, sections_.Internet.LastMoniAllInternetMinute,
               kAreaMinutes)});
}

// The tick has switched it off.
void InetSupport::NoteSwitchedOff(Kind& kind, const CheckBox& box) {
  constexpr double kSecondsPerMinute = 60.0;
  if (box.Value == 1) {
    kind.WasOn = true;
  } else if (std::exchange(kind.WasOn, false) && !kind.UnderWay) {
    const double on_for =
        tools_.LocalClock.SecondsSinceMidnight() - sections_.Internet.InetSwitchTime;
    const double limit = sections_.Internet.InetMaxOnSeconds;
    if (on_for > limit || on_for < -limit) {
      kind.Words =
          internet_texts::kTimeIsUp.With({NumberText(static_cast<int>(limit / kSecondsPerMinute))});
    }
  }
}

std::string InetSupport::StateOf(const Kind& kind, const CheckBox& box, int last_minute,
                                 int every) const {
  if (kind.UnderWay) return internet_texts::kAsking.With({kind.UnderWay->At});
  if (!kind.Words.empty()) return kind.Words;
  if (box.Value != 1) return internet_texts::kOff;
  // The first minute at which the whole quotient has changed.
  LocalTime next = tools_.LocalClock.Now();
  const auto quotient = [every](const LocalTime& t) { return (t.Hour * 100 + t.Minute) / every; };
  while (quotient(next) == last_minute / every)
    next = TimeOfSeconds(SecondsOf(next) + 60);
  return internet_texts::kWaits.With({ClockText(next)});
}

std::string InetSupport::ClockNow() const {
  return ClockText(tools_.LocalClock.Now());
}

int InetSupport::HhMmNow() const {
  const LocalTime now = tools_.LocalClock.Now();
  return now.Hour * 100 + now.Minute;
}

}  // namespace zepril

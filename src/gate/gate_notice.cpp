// Tells the stages apart and words them.
#include "gate/gate_notice.h"

#include "core/clock_text.h"
#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/gate_texts.h"

namespace zepril {
namespace {

std::string GatedWords(const LocalTime& since, const GateTally& tally) {
  if (tally.Lines == 0) return gate_texts::kConnected.With({ClockText(since)});
  const std::string lines = tally.Lines == 1 ? std::string(gate_texts::kOneLine)
                                             : gate_texts::kLines.With({WholeNumber(tally.Lines)});
  return gate_texts::kGated.With({ClockText(since), lines, ClockText(tally.FirstAt)});
}

Text ReasonText(NotGated why) {
  switch (why) {
    case NotGated::ForbiddenPath:
      return gate_texts::kForbiddenPath;
    case NotGated::ForwardedOrQuery:
      return gate_texts::kForwardedOrQuery;
    case NotGated::SeveralLines:
      return gate_texts::kSeveralLines;
    case NotGated::Repeat:
      return gate_texts::kRepeat;
    case NotGated::NotTaken:
      return gate_texts::kNotTaken;
    case NotGated::Nothing:
    case NotGated::NoFrame:
      break;
  }
  return gate_texts::kNoFrame;
}

}  // namespace

GateStage GateStageOf(const InternetState& internet, const RadioState& radio, bool connected,
                      bool refused) {
  if (!GateIsPossible(radio)) return GateStage::NotHere;
  if (Val(internet.AprsIsPasscode) <= 0.0) return GateStage::NoPasscode;
  if (internet.IGateOn != Gate::On) return GateStage::Off;
  if (internet.AprsIsServer.empty()) return GateStage::NoServer;
  if (internet.IGateConnected == GateLink::Up && connected) return GateStage::LoggedIn;
  if (!connected) return GateStage::Connecting;
  return refused ? GateStage::Refused : GateStage::LoggingIn;
}

std::string GateStageWords(GateStage stage, const std::string& server, const LocalTime& since,
                           const GateTally& tally) {
  switch (stage) {
    case GateStage::NoPasscode:
      return std::string(gate_texts::kNoPasscode);
    case GateStage::NotHere:
      return std::string(gate_texts::kNotHere);
    case GateStage::Off:
      return std::string(gate_texts::kOff);
    case GateStage::NoServer:
      return std::string(gate_texts::kNoServer);
    case GateStage::Connecting:
      return gate_texts::kConnecting.With({server, ClockText(since)});
    case GateStage::LoggingIn:
      return gate_texts::kLoggingIn.With({server, ClockText(since)});
    case GateStage::Refused:
      return gate_texts::kRefused.With({server, ClockText(since)});
    case GateStage::LoggedIn:
      break;
  }
  return GatedWords(since, tally);
}

std::string LastNotGatedWords(const GateTally& tally) {
  if (tally.NotGated == 0) return {};
  return gate_texts::kLastNotGated.With(
      {ClockText(tally.LastNotAt), std::string(ReasonText(tally.LastWhy))});
}

void GateNotice::Renew() {
  const GateStage stage = GateStageOf(internet_, radio_, link_.IsConnected(), link_.IsRefused());
  if (stage != stage_) {
    stage_ = stage;
    since_ = clock_.Now();
  }
  Label& words = controls_.GateWords;
  words.Caption = GateStageWords(stage, internet_.AprsIsServer, since_, gate_.Tally());
  words.ToolTip = LastNotGatedWords(gate_.Tally());
}

}  // namespace zepril

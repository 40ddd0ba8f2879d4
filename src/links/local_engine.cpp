// Starts, closes and feeds the engine under the station's call.
#include "links/local_engine.h"

#include "core/texts/notices.h"

namespace zepril {
namespace {

constexpr double kEngineSeconds = 2.0;

}  // namespace

LocalEngine::LocalEngine(const IdentityState& identity, const TransmissionState& transmission,
                         MonitorEngine& engine, Clock& clock)
    : identity_(identity), transmission_(transmission), engine_(engine), clock_(clock) {
  engine_.LinkChanged = [this] {
    if (Changed) Changed();
  };
}

bool LocalEngine::Open() {
  const std::string name = identity_.MyCallFull.empty() ? "MYCALL" : identity_.MyCallFull;
  if (engine_.AGWStartPoll("ZEPRIL", name)) return true;
  // The engine might just be starting. Without it the program runs on, and tries again.
  clock_.Wait(kEngineSeconds);
  engine_.AGWStartPoll("ZEPRIL", name);
  return true;
}

std::string LocalEngine::LostNotice() const {
  return std::string(notices::kLocalEngineSilent);
}

bool LocalEngine::Send(std::string_view text, SecondMode /*second_mode*/) {
  return engine_.AGWPutData(transmission_.TxDestination + "," + transmission_.TxPath, text);
}

void LocalEngine::TakeNewSettings(Progress& /*progress*/) {
  engine_.AGWClose();
  clock_.Wait(kEngineSeconds);
  Open();
}

}  // namespace zepril

// Hands frames to the engine by way of the state, and words its loss.
#include "links/remote_engine.h"

#include "core/texts/notices.h"

namespace zepril {

RemoteEngine::RemoteEngine(const RadioState& radio, TransmissionState& transmission,
                           AgwLink& engine)
    : radio_(radio), transmission_(transmission), engine_(engine) {
  engine_.LinkChanged = [this] {
    if (Changed) Changed();
  };
}

std::string RemoteEngine::LostNotice() const {
  return notices::kRemoteEngineSilent.With({radio_.AgwHost, radio_.AgwTcpPort});
}

bool RemoteEngine::Send(std::string_view text, SecondMode /*second_mode*/) {
  transmission_.AgwTxText = text;
  return engine_.SendAgwUnproto();
}

}  // namespace zepril

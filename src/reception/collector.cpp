#include "reception/collector.h"

#include "reception/agw_monitor.h"
#include "reception/pk232_monitor.h"

namespace zepril {

Collector::Collector(RadioState& radio, ReceptionState& reception, const InternetState& internet,
                     Clock& clock, MonitorEngine& engine, SerialPort& modem, GateActions& gate)
    : radio_(radio),
      reception_(reception),
      internet_(internet),
      clock_(clock),
      engine_(engine),
      modem_(modem),
      gate_(gate) {}

void Collector::Collect(std::string& collected) {
  switch (static_cast<RadioMode>(radio_.RadioMode)) {
    case RadioMode::AgwLocal:
      return CollectFromEngine(collected);
    case RadioMode::Pk232:
      return CollectFromPk232(collected);
    case RadioMode::AgwRemote:
      return CollectFromRemoteEngine(collected);
    case RadioMode::ScsTnc:
      return CollectFromScs(ScsDialect::Tnc, collected);
    case RadioMode::ScsPtc:
      return CollectFromScs(ScsDialect::Ptc, collected);
    case RadioMode::None:
      return;
  }
}

void Collector::CollectFromEngine(std::string& collected) {
  // An engine that delivers without end must not keep the pass for ever.
  constexpr int kMostTexts = 4096;
  for (int texts = 0; texts < kMostTexts && collected.size() <= kLongestReceiveBuffer; ++texts) {
    const std::string text = engine_.AGWGetData();
    if (text.empty()) return;
    DataCame();
    HandToGate(text);
    // Kept: a text of another form ends the collecting; later frames wait for the next pass.
    if (!HasAgwForm(text)) return;
    AppendAgwFrame(text, collected);
  }
}

void Collector::CollectFromRemoteEngine(std::string& collected) {
  constexpr std::size_t kShortest = 20;
  if (radio_.AgwConnected == 0) return;
  std::string& buffer = radio_.AgwRxBuffer;
  if (buffer.size() > kLongestReceiveBuffer) buffer.clear();

  std::size_t taken = 0;
  while (buffer.size() - taken >= kShortest) {
    const std::size_t pair = buffer.find("\r\r", taken);
    if (pair == std::string::npos) break;
    std::string_view piece(buffer.data() + taken, pair + 2 - taken);
    taken = pair + 2;
    DataCame();
    // A frame's text begins with the port digit before ":Fm "; other pieces are thrown away.
    const std::size_t from = piece.find(":Fm ");
    if (from == std::string_view::npos || from == 0) continue;
    piece.remove_prefix(from - 1);
    if (!HasAgwForm(piece)) break;
    AppendAgwFrame(piece, collected);
  }
  buffer.erase(0, taken);
}

void Collector::CollectFromPk232(std::string& collected) {
  const std::string input = modem_.ReadAll();
  if (!input.empty()) DataCame();
  const std::string_view text = Pk232Text(input);
  if (text.empty()) return;
  collected += text;
  HandToGate(text);
}

// Reads until the modem falls silent for a moment. False when the text is to wait: it still grows,
// or it has grown too long and is thrown away.
bool Collector::ReadScsText() {
  constexpr double kPauseSeconds = 0.01;
  constexpr int kMostGrowths = 5;
  constexpr std::size_t kLongest = 1000;
  std::string& text = reception_.ScsRxBuffer;
  const std::size_t before = text.size();
  text += modem_.ReadAll();
  bool silent = false;
  for (int growths = 0; growths < kMostGrowths && !silent;) {
    clock_.Wait(kPauseSeconds);
    const std::string more = modem_.ReadAll();
    text += more;
    silent = more.empty();
    if (!silent) ++growths;
  }
  if (text.size() > before) DataCame();
  if (text.size() > kLongest) {
    text.clear();
    return false;
  }
  return silent && !text.empty();
}

void Collector::CollectFromScs(ScsDialect dialect, std::string& collected) {
  if (!ReadScsText()) return;
  std::string& text = reception_.ScsRxBuffer;
  const std::size_t taken = TakeScsFrames(text, dialect, collected);
  if (!collected.empty()) HandToGate(std::string_view(text).substr(0, taken));
  text.erase(0, taken);
}

void Collector::HandToGate(std::string_view text) {
  constexpr std::size_t kShortestForGate = 11;
  if (internet_.IGateConnected == 1 && text.size() >= kShortestForGate) {
    gate_.GateMonitorBlock(text);
  }
}

void Collector::DataCame() {
  radio_.LastDataSeconds = clock_.MonotonicSeconds();
}

}  // namespace zepril

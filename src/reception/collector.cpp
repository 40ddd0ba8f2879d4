// What each radio interface has to hand over in a pass, with the bounds of each.
#include "reception/collector.h"

#include "reception/agw_monitor.h"
#include "reception/pk232_monitor.h"

namespace zepril {
namespace {

// Most text of an SCS modem that is looked at in one go.
constexpr std::size_t kLongestScsText = 1000;

}  // namespace

Collector::Collector(RadioState& radio, ReceptionState& reception, const InternetState& internet,
                     Clock& clock, MonitorEngine& engine, SerialPort& modem, GateActions* gate)
    : radio_(radio),
      reception_(reception),
      internet_(internet),
      clock_(clock),
      engine_(engine),
      modem_text_(modem, reception),
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
  if (modem_text_.Read()) DataCame();
  const std::string input = modem_text_.TakeFrames();
  const std::string_view text = Pk232Text(input);
  if (text.empty()) return;
  collected += text;
  HandToGate(text);
}

// What the modem has written, as far as there is room for it. True when there was something.
bool Collector::TakeScsText() {
  std::string& text = reception_.ScsRxBuffer;
  if (modem_text_.Read()) DataCame();
  const std::string more = modem_text_.Take(kLongestScsText - text.size());
  text += more;
  return !more.empty();
}

// Reads until the modem falls silent for a moment, or enough is there. False when the text is to
// wait, for it still grows.
bool Collector::ReadScsText() {
  constexpr double kPauseSeconds = 0.01;
  constexpr int kMostGrowths = 5;
  std::string& text = reception_.ScsRxBuffer;
  if (text.size() > kLongestScsText) text.clear();
  TakeScsText();
  bool silent = false;
  for (int growths = 0; growths < kMostGrowths && !silent; ++growths) {
    clock_.Wait(kPauseSeconds);
    silent = !TakeScsText();
  }
  return silent && !text.empty();
}

void Collector::CollectFromScs(ScsDialect dialect, std::string& collected) {
  if (!ReadScsText()) return;
  std::string& text = reception_.ScsRxBuffer;
  const std::size_t taken = TakeScsFrames(text, dialect, collected);
  if (!collected.empty()) HandToGate(std::string_view(text).substr(0, taken));
  text.erase(0, taken);
  if (taken == 0) MakeRoomForScsText();
}

// Text that is no frame would keep out what waits in the link: its oldest lines go.
void Collector::MakeRoomForScsText() {
  std::string& text = reception_.ScsRxBuffer;
  while (!text.empty() && text.size() + modem_text_.FirstLine() > kLongestScsText) {
    const std::size_t line_end = text.find('\n');
    text.erase(0, line_end == std::string::npos ? line_end : line_end + 1);
  }
}

std::size_t Collector::Waiting() const {
  const auto mode = static_cast<RadioMode>(radio_.RadioMode);
  return mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc ? modem_text_.Waiting() : 0;
}

void Collector::HandToGate(std::string_view text) {
  constexpr std::size_t kShortestForGate = 11;
  if (gate_ && internet_.IGateConnected == GateLink::Up && text.size() >= kShortestForGate) {
    gate_->GateMonitorBlock(text);
  }
}

void Collector::DataCame() {
  radio_.LastDataSeconds = clock_.MonotonicSeconds();
}

}  // namespace zepril

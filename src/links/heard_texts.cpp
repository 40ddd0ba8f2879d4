// What each radio interface has to hand over, with the bounds of each.
#include "links/heard_texts.h"

#include "links/modem_kind.h"

namespace zepril {
namespace {

constexpr std::string_view kEngineDialect = "AGW";
// Most text that is looked at in one go of a modem that is read until it falls silent.
constexpr std::size_t kLongestPiece = 1000;

}  // namespace

// ---- Packet engines -----------------------------------------------------------------------------

std::string_view LocalEngineText::Dialect() const {
  return kEngineDialect;
}

std::string_view LocalEngineText::Next() {
  text_ = engine_.AGWGetData();
  if (!text_.empty()) radio_.LastDataSeconds = clock_.MonotonicSeconds();
  return text_;
}

std::string_view RemoteEngineText::Dialect() const {
  return kEngineDialect;
}

std::string_view RemoteEngineText::Next() {
  constexpr std::size_t kShortest = 20;
  if (radio_.AgwConnected == 0) return {};
  std::string& buffer = radio_.AgwRxBuffer;
  if (buffer.size() > kLongestReceiveBuffer) buffer.clear();
  while (buffer.size() >= kShortest) {
    const std::size_t pair = buffer.find("\r\r");
    if (pair == std::string::npos) break;
    text_ = buffer.substr(0, pair + 2);
    buffer.erase(0, pair + 2);
    radio_.LastDataSeconds = clock_.MonotonicSeconds();
    // A frame's text begins with the port digit before ":Fm ".
    const std::size_t from = text_.find(":Fm ");
    if (from == std::string::npos || from == 0) continue;
    text_.erase(0, from - 1);
    return text_;
  }
  return {};
}

// ---- Serial modems ------------------------------------------------------------------------------

std::string_view ModemHeard::Dialect() const {
  const ModemKind* kind = ModemKindOf(ModeOf(radio_));
  return kind ? kind->Dialect : std::string_view();
}

bool ModemHeard::ReadsUntilSilent() const {
  const ModemKind* kind = ModemKindOf(ModeOf(radio_));
  return kind && kind->ReadsUntilSilent;
}

std::string_view ModemHeard::Next() {
  return ReadsUntilSilent() ? NextUntilSilent() : NextLines();
}

std::string_view ModemHeard::NextLines() {
  Read();
  lines_ = text_.TakeFrames();
  return lines_;
}

// Until the modem falls silent for a moment, or enough is there. Text that still grows waits.
std::string_view ModemHeard::NextUntilSilent() {
  constexpr double kPauseSeconds = 0.01;
  constexpr int kMostGrowths = 5;
  std::string& text = reception_.ScsRxBuffer;
  if (text.size() > kLongestPiece) text.clear();
  TakeMore();
  bool silent = false;
  for (int growths = 0; growths < kMostGrowths && !silent; ++growths) {
    clock_.Wait(kPauseSeconds);
    silent = !TakeMore();
  }
  return silent ? std::string_view(text) : std::string_view();
}

void ModemHeard::Read() {
  if (text_.Read()) radio_.LastDataSeconds = clock_.MonotonicSeconds();
}

// What the modem has written, as far as there is room for it. True when there was something.
bool ModemHeard::TakeMore() {
  std::string& text = reception_.ScsRxBuffer;
  Read();
  const std::string more = text_.Take(kLongestPiece - text.size());
  text += more;
  return !more.empty();
}

void ModemHeard::Taken(std::size_t count) {
  if (!ReadsUntilSilent()) return;
  reception_.ScsRxBuffer.erase(0, count);
  if (count == 0) MakeRoom();
}

// Text that is no frame would keep out what waits in the link: its oldest lines go.
void ModemHeard::MakeRoom() {
  std::string& text = reception_.ScsRxBuffer;
  while (!text.empty() && text.size() + text_.FirstLine() > kLongestPiece) {
    const std::size_t line_end = text.find('\n');
    text.erase(0, line_end == std::string::npos ? line_end : line_end + 1);
  }
}

std::size_t ModemHeard::Waiting() const {
  return ReadsUntilSilent() ? text_.Waiting() : 0;
}

}  // namespace zepril

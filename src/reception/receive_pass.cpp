// The pass in its order, and what each frame leads to: stored, dropped, given up.
#include "reception/receive_pass.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "reception/direct_marking.h"
#include "reception/raw_list.h"
#include "reception/record_builder.h"

namespace zepril {
namespace {

// With more characters than these waiting the next frame is taken at once.
constexpr std::size_t kWaitingAfterNothing = 400;
constexpr std::size_t kWaitingAfterRecord = 150;

}  // namespace

ReceivePass::ReceivePass(Sections sections, Partners partners, const SymbolTable& symbols,
                         Clock& clock, Timer& timer1, ListBox* raw_list)
    : identity_(sections.Identity),
      reception_(sections.Reception),
      map_(sections.Map),
      settings_(sections.Settings),
      link_(partners.Link),
      keeper_(partners.Keeper),
      map_drawing_(partners.MapDrawing),
      messages_(partners.Messages),
      emergencies_(partners.Emergencies),
      symbols_(symbols),
      clock_(clock),
      timer1_(timer1),
      raw_list_(raw_list) {}

void ReceivePass::Run() {
  // A link that delivers without end must not keep the tick for ever.
  constexpr int kMostFrames = 5000;
  map_behind_ = false;
  link_waiting_ = std::numeric_limits<std::size_t>::max();
  link_.PassBegins();
  Next next = Next::Again;
  for (int frames = 0; next == Next::Again && frames < kMostFrames; ++frames) {
    next = Collect() ? TakeFrame() : Recover();
  }
  if (next == Next::Again) LeaveWithoutFrame();
  ShowRawList();
}

// Brings in what the link has: marks direct senders, lists and logs the text, and puts it behind
// what awaits decoding. False when the log can't be written.
bool ReceivePass::Collect() {
  collected_.clear();
  link_.Collect(collected_);
  if (collected_.empty()) return true;
  MarkDirectSenders(collected_);
  AddRawText(collected_, reception_);
  raw_list_behind_ = true;
  reception_.RxBuffer += collected_;
  if (reception_.RxBuffer.size() > kLongestReceiveBuffer) reception_.RxBuffer.clear();
  return keeper_.LogRaw(collected_);
}

// Cuts one frame out of the waiting text and sees it through.
ReceivePass::Next ReceivePass::TakeFrame() {
  switch (CutFrame(reception_.RxBuffer, frame_text_)) {
    case CutOutcome::NoHeader:
    case CutOutcome::Incomplete:
      return LinkHoldsMore() ? Next::Again : LeaveWithoutFrame();
    case CutOutcome::Stuck:
      return GiveUp();
    case CutOutcome::Dropped:
      return AfterFrame(Drop(DropReason::NoLineFeed));
    case CutOutcome::Frame:
      break;
  }
  timer1_.Hold();
  ++counts_.Frames;
  reception_.PacketInfoText.clear();
  reception_.TimestampStale = 0;
  own_echo_ = false;
  const std::optional<FrameLevel> level = Decode();
  if (!level) return Recover();
  // Behind the own echo the pass starts again from the top, however little waits.
  if (own_echo_) return Next::Again;
  return AfterFrame(*level);
}

// Header, packet, record, stores: the road of one frame.
std::optional<FrameLevel> ReceivePass::Decode() {
  switch (AnalyseHeader(frame_text_, identity_.MyCallFull, reception_.OwnHeaderPattern, frame_)) {
    case HeaderOutcome::Frame:
      break;
    case HeaderOutcome::OwnGatedBack:
      return Drop(DropReason::OwnGatedBack);
    case HeaderOutcome::TooShort:
      return Drop(DropReason::HeaderTooShort);
    case HeaderOutcome::NotMarked:
      return Drop(DropReason::NotMarked);
    case HeaderOutcome::OwnEcho:
      own_echo_ = true;
      return Drop(DropReason::OwnEcho);
  }

  const DecodeContext context{clock_.Now(), settings_.UtcOffsetHours, map_.MapCentralMeridian,
                              map_.MapFalseEasting};
  const DecodeResult result = DecodePacket(frame_, context, symbols_, packet_);
  if (result.Outcome == DecodeOutcome::Recovery) return std::nullopt;
  reception_.PacketInfoText = packet_.PacketInfoText;
  reception_.TimestampStale = packet_.TimestampStale ? 1 : 0;
  if (packet_.IsMessage) {
    if (messages_)
      messages_->MessageReceived(
          {packet_.PacketCall, packet_.PacketInfo, frame_.Header, packet_.PacketDestination});
  }
  if (result.Outcome == DecodeOutcome::Dropped) return Drop(result.Reason);
  reception_.SymbolIndex = packet_.SymbolIndex;

  const StationRecord record = BuildRecord(packet_);
  // Kept: an emergency is told of before the test for repeats, so a copy heard over a second
  // digipeater is told of too; only the first one is shown.
  if (packet_.PacketIsEmergency) keeper_.RaiseEmergency(record);
  return Store(record);
}

std::optional<FrameLevel> ReceivePass::Store(const StationRecord& record) {
  const std::optional<FrameLevel> level = keeper_.Store(record);
  counts_.Stored = keeper_.Stored();
  counts_.Repeats = keeper_.Repeats();
  if (level != FrameLevel::Nothing) map_behind_ = true;
  return level;
}

FrameLevel ReceivePass::Drop(DropReason reason) {
  ++counts_.Drops[static_cast<std::size_t>(reason)];
  return FrameLevel::Nothing;
}

// More waits in the link than one go takes, and less than when no frame was found before.
bool ReceivePass::LinkHoldsMore() {
  const std::size_t before = std::exchange(link_waiting_, link_.Waiting());
  return link_waiting_ > (map_behind_ ? kWaitingAfterRecord : kWaitingAfterNothing) &&
         link_waiting_ < before;
}

// What the frame has led to decides how the pass goes on.
ReceivePass::Next ReceivePass::AfterFrame(FrameLevel level) {
  const std::size_t waiting = reception_.RxBuffer.size() + link_.Waiting();
  switch (level) {
    case FrameLevel::Nothing:
      return waiting > kWaitingAfterNothing ? Next::Again : LeaveAfterNothing();
    case FrameLevel::MoniAll:
    case FrameLevel::Moni1:
      if (waiting > kWaitingAfterRecord) return Next::Again;
      if (map_behind_) Redraw();
      return Next::Leave;
    case FrameLevel::Emergency:
      emergencies_.ShowEmergency();
      map_behind_ = false;
      return Next::Leave;
  }
  return Next::Leave;
}

// No frame waits: the cycle goes on, and records stored before in this pass come on the map.
ReceivePass::Next ReceivePass::LeaveWithoutFrame() {
  timer1_.Enable();
  if (map_behind_) Redraw();
  return Next::Leave;
}

// Nothing came of the last frame: the cycle goes on, and a map that is behind (the GPS has moved)
// is painted.
ReceivePass::Next ReceivePass::LeaveAfterNothing() {
  constexpr int kFewColours = 16;
  timer1_.Enable();
  if (map_behind_ || !map_.MapDrawn) Redraw();
  if (settings_.WindowActive || map_.ColourDepthBits < kFewColours) map_drawing_.MapRefresh();
  return Next::Leave;
}

ReceivePass::Next ReceivePass::GiveUp() {
  Redraw();
  return Next::Leave;
}

// The one recovery of every failure in the pass. Kept: whatever waits behind the frame that failed
// is lost with it. What comes later is not: a line feed stands before its first frame, as at start.
ReceivePass::Next ReceivePass::Recover() {
  ++counts_.Recoveries;
  reception_.RxBuffer = "\n";
  collected_.clear();
  Redraw();
  return Next::Leave;
}

void ReceivePass::Redraw() {
  map_behind_ = false;
  map_drawing_.MapRedraw();
}

void ReceivePass::ShowRawList() {
  if (raw_list_behind_ && raw_list_ != nullptr) ShowRawLines(reception_, *raw_list_);
  raw_list_behind_ = false;
}

}  // namespace zepril

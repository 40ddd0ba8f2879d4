// The receive pass: run by each tick, it collects what the radio link has delivered, cuts frames
// out of it, decodes them and stores what they tell.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/message_actions.h"
#include "core/controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/reception.h"
#include "core/state/settings.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "reception/collector.h"
#include "reception/decoded_packet.h"
#include "reception/frame_cutter.h"
#include "reception/header_analysis.h"
#include "reception/packet_decoder.h"
#include "reception/record_keeper.h"

namespace zepril {

// What the passes have done since the program began.
struct ReceptionCounts {
  std::int64_t Frames = 0;  // cut out of the buffer
  std::int64_t Stored = 0;
  std::int64_t Repeats = 0;
  std::int64_t Recoveries = 0;
  std::array<std::int64_t, kDropReasons> Drops{};  // by DropReason
};

class ReceivePass {
 public:
  // The parts of the state that the pass works on.
  struct Sections {
    const IdentityState& Identity;
    ReceptionState& Reception;
    MapViewState& Map;
    const SettingsState& Settings;
  };
  // The other concerns of reception, and what the pass asks of other rooms.
  struct Partners {
    Collector& Link;
    RecordKeeper& Keeper;
    MapActions& MapDrawing;
    MessageActions* Messages;  // may be missing
    EmergencyActions& Emergencies;
  };

  // `raw_list` may be missing: then no list is filled.
  ReceivePass(Sections sections, Partners partners, const SymbolTable& symbols, Clock& clock,
              Timer& timer1, ListBox* raw_list);

  void Run();

  const ReceptionCounts& Counts() const { return counts_; }

 private:
  // How the pass goes on after a frame.
  enum class Next { Again, Leave };

  bool Collect();
  Next TakeFrame();
  Next AfterFrame(FrameLevel level);
  bool LinkHoldsMore();
  Next GiveUp();
  Next Recover();
  Next LeaveWithoutFrame();
  Next LeaveAfterNothing();
  // Nothing: the one recovery is to run.
  std::optional<FrameLevel> Decode();
  std::optional<FrameLevel> Store(const StationRecord& record);
  FrameLevel Drop(DropReason reason);
  void Redraw();
  void ShowRawList();

  const IdentityState& identity_;
  ReceptionState& reception_;
  MapViewState& map_;
  const SettingsState& settings_;

  Collector& link_;
  RecordKeeper& keeper_;
  MapActions& map_drawing_;
  MessageActions* messages_;
  EmergencyActions& emergencies_;

  const SymbolTable& symbols_;
  Clock& clock_;
  Timer& timer1_;
  ListBox* raw_list_;
  ReceptionCounts counts_;

  // Of the pass under way; kept for their memory.
  std::string collected_;
  std::string frame_text_;
  AnalysedFrame frame_;
  DecodedPacket packet_;
  std::size_t link_waiting_ = 0;  // in the link, when no frame was found last
  bool own_echo_ = false;
  bool map_behind_ = false;  // something was stored that the map does not show yet
  bool raw_list_behind_ = false;
};

}  // namespace zepril

// A heard station's position sent once more, after a question.
#pragma once

#include "core/controls/record_panel_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/radio.h"
#include "core/timer.h"
#include "links/frame_sender.h"
#include "platform/clock.h"
#include "platform/dialogs.h"

namespace zepril {

struct RetransmissionTools {
  FrameSender& Sender;
  Dialogs& Boxes;
  Clock& LocalClock;
  Timer& Timer1;
};

class Retransmission {
 public:
  // Sets the click of `Label20`, the line that shows the selected record.
  Retransmission(const IdentityState& identity, const RadioState& radio, const MapViewState& view,
                 RecordPanelControls& record, RetransmissionTools tools);
  Retransmission(const Retransmission&) = delete;
  Retransmission& operator=(const Retransmission&) = delete;

  // Asks, and sends the position of the record shown. Nothing without a radio or a record.
  void RetransmitStation();

 private:
  void Send(const std::string& line);

  const IdentityState& identity_;
  const RadioState& radio_;
  const MapViewState& view_;
  RecordPanelControls& record_;
  RetransmissionTools tools_;
};

}  // namespace zepril

// Shows on the start panel how far long work of START is, from 0.3 s on, ten times a second.
#pragma once

#include <optional>

#include "core/controls/start_panel_controls.h"
#include "core/progress.h"
#include "platform/clock.h"

namespace zepril {

class StartProgress final : public Progress {
 public:
  StartProgress(Clock& clock, StartPanelControls& controls) : clock_(clock), controls_(controls) {}

  // While it shows, control is handed over: nothing can be changed, but the window can be closed.
  void Report(std::string_view what, double share) override;
  void Done() override;

 private:
  Clock& clock_;
  StartPanelControls& controls_;
  std::optional<double> begun_;  // monotonic seconds
  std::optional<double> shown_;
};

}  // namespace zepril

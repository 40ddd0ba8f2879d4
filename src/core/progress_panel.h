// Shows the progress of long work over the map: from 0.3 s on, ten times a second; over 3 s also
// the time that is left.
#pragma once

#include <optional>

#include "core/controls/progress_controls.h"
#include "core/progress.h"
#include "platform/clock.h"

namespace zepril {

class ProgressPanel final : public Progress {
 public:
  static constexpr double kShownAfterSeconds = 0.3;
  static constexpr double kShownEverySeconds = 0.1;
  static constexpr double kTimeLeftAfterSeconds = 3.0;

  ProgressPanel(Clock& clock, ProgressControls& controls) : clock_(clock), controls_(controls) {}

  void Report(std::string_view what, double share) override;
  void Done() override;

 private:
  Clock& clock_;
  ProgressControls& controls_;
  std::optional<double> begun_;  // monotonic seconds
  double shown_ = 0.0;
};

}  // namespace zepril

// Uses the line and the bar of the modem's set-up, which has ended by then.
#include "station/start/start_progress.h"

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {

void StartProgress::Report(std::string_view what, double share) {
  constexpr double kShownAfterSeconds = 0.3;
  constexpr double kShownEverySeconds = 0.1;
  const double now = clock_.MonotonicSeconds();
  begun_ = begun_.value_or(now);
  if (now - *begun_ < kShownAfterSeconds) return;
  if (shown_ && now - *shown_ < kShownEverySeconds) return;
  shown_ = now;
  const double done = std::clamp(share, 0.0, 1.0);
  controls_.SetupText.Caption =
      status_texts::kProgress.With({what, WholeNumber(ToWhole(Int(done * 100.0)))});
  FillBar& bar = controls_.SetupBar;
  bar.FilledPx = static_cast<int>(ToWhole(done * bar.FullWidthPx));
  controls_.SetupText.Visible = true;
  bar.Visible = true;
  clock_.HandOver();
}

void StartProgress::Done() {
  begun_.reset();
  if (!shown_) return;
  shown_.reset();
  controls_.SetupText.Visible = false;
  controls_.SetupBar.Visible = false;
  // A close that was asked for meanwhile is heard before the main window opens.
  clock_.HandOver();
}

}  // namespace zepril

// When the panel appears and is renewed, and how the time that is left is told.
#include "core/progress_panel.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {

void ProgressPanel::Report(std::string_view what, double share) {
  const double now = clock_.MonotonicSeconds();
  if (!begun_) {
    begun_ = now;
    shown_ = now;
  }
  const double gone = now - *begun_;
  if (gone < kShownAfterSeconds || now - shown_ < kShownEverySeconds) return;
  shown_ = now;
  const double done = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0.0;
  std::string text =
      status_texts::kProgress.With({what, WholeNumber(ToWhole(std::floor(done * 100.0)))});
  if (gone >= kTimeLeftAfterSeconds && done > 0.0) {
    const double left = gone / done - gone;
    text += status_texts::kTimeLeft.With({WholeNumber(ToWhole(std::ceil(left)))});
  }
  controls_.ProgressText.Caption = text;
  controls_.ProgressBar.FilledPx =
      static_cast<int>(ToWhole(done * controls_.ProgressBar.FullWidthPx));
  controls_.ProgressPanel.Visible = true;
  // The window is painted in a wait, however short.
  clock_.Wait(0.0);
}

void ProgressPanel::Done() {
  begun_.reset();
  controls_.ProgressPanel.Visible = false;
}

}  // namespace zepril

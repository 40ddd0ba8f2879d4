// Which timer and which press may act when: in a step, in each kind of wait, behind a step.
#include "platform/qt/qt_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <utility>

namespace zepril {
namespace {

constexpr double kHandOverSeconds = 0.002;

}  // namespace

QtLoop::QtLoop() = default;

QtLoop::~QtLoop() {
  ForgetTimers();
}

void QtLoop::ForgetTimers() {
  for (const auto& driven : driven_)
    driven->Subject->Changed = nullptr;
  driven_.clear();
}

void QtLoop::Drive(const DrivenTimer& timer) {
  driven_.push_back(std::make_unique<Driven>());
  Driven& driven = *driven_.back();
  driven.Subject = timer.Subject;
  driven.Pumped = timer.Pumped;
  driven.Clockwork = std::make_unique<QTimer>();
  driven.Clockwork->setTimerType(Qt::CoarseTimer);
  QObject::connect(driven.Clockwork.get(), &QTimer::timeout, [this, &driven] { Fire(driven); });
  const auto follow = [&driven] {
    driven.Due = false;
    if (driven.Subject->Enabled()) {
      driven.Clockwork->start(driven.Subject->NextMs());
    } else {
      driven.Clockwork->stop();
    }
  };
  timer.Subject->Changed = follow;
  follow();
}

bool QtLoop::MayFire(const Driven& driven) const {
  if (held_ > 0) return false;
  return depth_ == 0 || (driven.Pumped && pumping_ > 0);
}

void QtLoop::Fire(Driven& driven) {
  if (!MayFire(driven)) {
    driven.Due = true;
    return;
  }
  driven.Due = false;
  if (!driven.Subject->Enabled()) return;
  driven.Subject->Fired();
  if (!driven.Subject->Elapsed) return;
  RunStep(driven.Subject->Elapsed);
}

void QtLoop::FireDue() {
  for (const auto& driven : driven_) {
    if (driven->Due && MayFire(*driven)) Fire(*driven);
  }
}

void QtLoop::RunStep(const std::function<void()>& step) {
  ++depth_;
  const int outer_pumping = pumping_;
  pumping_ = 0;
  step();
  pumping_ = outer_pumping;
  --depth_;
  if (ControlsOut) ControlsOut();
  if (depth_ == 0) {
    waited_ = 0.0;
    hold_.Release();
  }
  if (!InStep()) StepsAreOver();
}

void QtLoop::StepsAreOver() {
  StepEnded();
  RunPosted();
  // What fell due meanwhile comes from the loop, not from inside this step.
  QTimer::singleShot(0, &alive_, [this] { CatchUp(); });
}

void QtLoop::CatchUp() {
  if (InStep()) return;  // it comes again behind that
  RunPosted();
  if (late_) TakeLatePresses();
  RunKeptPress();
  FireDue();
}

void QtLoop::Post(std::function<void()> work) {
  posted_.push_back(std::move(work));
  // Inside a step its end looks for it.
  if (!InStep()) QTimer::singleShot(0, &alive_, [this] { CatchUp(); });
}

void QtLoop::RunPosted() {
  if (in_posted_ || InStep()) return;
  in_posted_ = true;
  while (!posted_.empty()) {
    const std::function<void()> work = std::move(posted_.front());
    posted_.pop_front();
    RunStep(work);
  }
  in_posted_ = false;
}

// Everything that came during a wait is looked at before any of it acts.
void QtLoop::TakeLatePresses() {
  catching_up_ = true;
  ++held_;
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  --held_;
  catching_up_ = false;
  late_ = false;
  if (ControlsOut) ControlsOut();
  StepsAreOver();
}

// One at a time: it may wait again, and be followed by more.
void QtLoop::RunKeptPress() {
  if (kept_.empty() || InStep()) return;
  const KeptPress first = kept_.front();
  kept_.erase(kept_.begin());
  RunStep(first.Step);
}

void QtLoop::TakeNoMorePresses() {
  deaf_ = true;
  kept_.clear();
}

void QtLoop::Press(const void* control, Presses in_waits, const std::function<void()>& step) {
  if (deaf_ || end_asked_) return;
  // Behind what is kept already, presses keep their order.
  const bool waits = !(depth_ > 0) && (late_ || !kept_.empty());
  if (!waits) return RunStep(step);
  if (in_waits == Presses::Dropped) return;
  const bool known = std::any_of(kept_.begin(), kept_.end(), [control](const KeptPress& kept) {
    return control != nullptr && kept.Control == control;
  });
  if (!known) kept_.push_back({control, step});
}

void QtLoop::Hold(const std::function<void()>& step) {
  ++held_;
  if (ControlsOut) ControlsOut();
  step();
  --held_;
}

void QtLoop::PumpFor(double seconds, bool user_events) {
  if (ControlsOut) ControlsOut();
  const double end = MonotonicSeconds() + seconds;
  const auto flags = user_events
                         ? QEventLoop::ProcessEventsFlags(QEventLoop::AllEvents)
                         : QEventLoop::ProcessEventsFlags(QEventLoop::ExcludeUserInputEvents);
  QTimer alarm;
  alarm.setSingleShot(true);
  alarm.setTimerType(Qt::PreciseTimer);
  alarm.start(static_cast<int>(std::max(seconds, 0.0) * 1000.0));
  do {
    QCoreApplication::processEvents(flags | QEventLoop::WaitForMoreEvents);
  } while (MonotonicSeconds() < end && alarm.isActive());
}

void QtLoop::Wait(double seconds) {
  if (depth_ > 0) late_ = true;
  if (depth_ > 0 && waited_ >= kLongStepSeconds) return WaitInALongStep(seconds);
  ++held_;
  PumpFor(seconds, false);
  --held_;
  waited_ += std::max(seconds, 0.0);
  // User events that were passed over lie unnoticed until something wakes the dispatcher.
  if (auto* dispatcher = QAbstractEventDispatcher::instance()) dispatcher->wakeUp();
}

void QtLoop::NoticePresses() {
  if (depth_ == 0) return;
  late_ = true;
  hold_.Begin();
  ++held_;
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  --held_;
}

void QtLoop::WaitInALongStep(double seconds) {
  hold_.Begin();
  ++held_;
  PumpFor(seconds, true);
  --held_;
}

void QtLoop::WaitPumping(double seconds) {
  // What was done up to here comes first.
  hold_.Release();
  ++pumping_;
  PumpFor(seconds, true);
  --pumping_;
}

void QtLoop::HandOver() {
  WaitPumping(kHandOverSeconds);
}

}  // namespace zepril

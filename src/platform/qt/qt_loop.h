// The program's one thread on Qt's event loop: the timers, the waits, and the pass that brings the
// controls to the window after everything that may have changed them.
//
// In a plain wait sockets are served and the window is painted, no timer and no user event fires.
// In a pumping wait and a hand-over user events and the pumped timers fire too; `Timer1` never
// does, so that no tick runs inside another step. What fell due meanwhile fires when the outermost
// step ends.
//
// What the operator did during a plain wait arrives behind the step. Of presses of a control one
// acts then, or none, by the control's own rule; and a request to end the program comes before all
// of them: hands that go on pressing can't keep the program from its work, or from its end. In a
// step that has waited for long already the close of a window is heard at once, and everything else
// that the operator does is held until the step is over.
#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "core/controls.h"
#include "core/timer.h"
#include "platform/event.h"
#include "platform/loop.h"
#include "platform/native/system_clock.h"
#include "platform/qt/input_hold.h"

namespace zepril {

class QtLoop final : public SystemClock, public Loop {
 public:
  // Plain waits that make a step a long one: more than the pause behind a frame.
  static constexpr double kLongStepSeconds = 1.0;

  QtLoop();
  ~QtLoop() override;

  void Wait(double seconds) override;
  void WaitPumping(double seconds) override;
  void HandOver() override;

  // Drives the timer from now on; a pumped one also fires in pumping waits and hand-overs. It must
  // outlive the loop or be forgotten before it goes.
  void Drive(const DrivenTimer& timer);
  void ForgetTimers();

  // Runs a step of the program: an event, a timer. Afterwards the controls go out.
  void RunStep(const std::function<void()>& step) override;
  using Loop::RunStep;
  void Post(std::function<void()> work) override;
  bool InStep() const { return depth_ > 0 || catching_up_; }
  // The operator has pressed `control`, which the step acts on. Null: every one of them acts.
  void Press(const void* control, Presses in_waits, const std::function<void()>& step);
  // The program ends: what was pressed and has not acted yet never does, nor what is pressed still.
  void TakeNoMorePresses();
  // The program is to end: whoever waits for another machine gives up. Nothing that is pressed from
  // then on acts.
  void AskForEnd(bool asked) { end_asked_ = asked; }
  bool EndAsked() const override { return end_asked_; }
  void NoticePresses() override;
  // Runs `step` with all timers held, as while a box is open.
  void Hold(const std::function<void()>& step);

  // Brings the controls to the window.
  Event<> ControlsOut;
  // What the operator does to a window in a long step, when it is held.
  Event<const QObject&, const QEvent&>& InputHeld() { return hold_.Holding; }
  // The outermost step has ended.
  Event<> StepEnded;

 private:
  struct Driven {
    Timer* Subject = nullptr;
    bool Pumped = false;
    bool Due = false;
    std::unique_ptr<QTimer> Clockwork;
  };

  struct KeptPress {
    const void* Control = nullptr;
    std::function<void()> Step;
  };

  void Fire(Driven& driven);
  void FireDue();
  void StepsAreOver();
  void CatchUp();
  void TakeLatePresses();
  void RunPosted();
  void RunKeptPress();
  bool MayFire(const Driven& driven) const;
  void PumpFor(double seconds, bool user_events);
  void WaitInALongStep(double seconds);

  std::vector<std::unique_ptr<Driven>> driven_;
  QObject alive_;        // what is put off ends with the loop
  int depth_ = 0;        // steps under way
  int held_ = 0;         // no timer at all
  int pumping_ = 0;      // inside a pumping wait or hand-over
  double waited_ = 0.0;  // seconds of plain waits in this outermost step
  InputHold hold_;
  std::vector<KeptPress> kept_;
  std::deque<std::function<void()>> posted_;
  bool in_posted_ = false;
  bool late_ = false;  // a step has waited: what the operator did meanwhile has not all arrived
  bool catching_up_ = false;
  bool end_asked_ = false;
  bool deaf_ = false;  // no press is taken any more
};

}  // namespace zepril

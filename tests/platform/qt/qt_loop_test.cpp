// Which timers and presses act in a step, in each kind of wait, and behind it.
#include "platform/qt/qt_loop.h"

#include <QCoreApplication>
#include <QCursor>
#include <QTcpServer>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/qt_socket.h"
#include "tests/platform/qt/application_support.h"

namespace zepril {
namespace {

constexpr double kShort = 0.03;  // seconds, many times the timers' millisecond

class PointerWindow final : public QWindow {
 public:
  int Moves = 0;
  std::function<void()> Moved;

 protected:
  void mouseMoveEvent(QMouseEvent*) override {
    ++Moves;
    if (Moved) Moved();
  }
};

// An operator's hand over a shown window: each `Do` is one event of the window system.
class Hand {
 public:
  explicit Hand(std::function<void()> act) {
    window_.setGeometry(0, 0, 200, 200);
    window_.show();
    PumpUntil([this] { return window_.isExposed(); });
    QCursor::setPos(10, 10);
    PumpUntil([this] { return window_.Moves > 0; });
    window_.Moved = std::move(act);
  }
  void Do() { QCursor::setPos(20 + 2 * ++place_, 40); }

 private:
  PointerWindow window_;
  int place_ = 0;
};

class QtLoopTest : public ::testing::Test {
 protected:
  QtLoopTest() {
    Timer1.Elapsed = [this] { ++ticks; };
    Timer2.Elapsed = [this] { ++pumped; };
    loop = std::make_unique<QtLoop>();
    loop->Drive({&Timer1, false});
    loop->Drive({&Timer2, true});
  }
  void Arm() {
    Timer1.Arm(1);
    Timer2.Arm(1);
  }

  Timer Timer1{1000};
  Timer Timer2{1000};
  int ticks = 0;
  int pumped = 0;
  std::unique_ptr<QtLoop> loop;
};

TEST_F(QtLoopTest, ATimerFiresAgainAndAgainUntilItIsStopped) {
  Timer1.Arm(1);
  EXPECT_TRUE(PumpUntil([this] { return ticks >= 3; }));
  Timer1.Stop();
  const int before = ticks;
  loop->Wait(kShort);
  QCoreApplication::processEvents();
  EXPECT_EQ(ticks, before);
}

TEST_F(QtLoopTest, InAPlainWaitNoTimerFires) {
  loop->RunStep([this] {
    Arm();
    loop->Wait(kShort);
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(pumped, 0);
  });
  // What fell due meanwhile fires when the step has ended.
  EXPECT_TRUE(PumpUntil([this] { return ticks > 0 && pumped > 0; }));
}

TEST_F(QtLoopTest, AWaitOutsideOfStepsHoldsTheTimersToo) {
  Arm();
  loop->Wait(kShort);
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(pumped, 0);
  Arm();
  loop->Hold([this] {
    const double start = loop->MonotonicSeconds();
    while (loop->MonotonicSeconds() - start < kShort)
      QCoreApplication::processEvents();
  });
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(pumped, 0);
  EXPECT_TRUE(PumpUntil([this] { return ticks > 0 && pumped > 0; }));
}

TEST_F(QtLoopTest, InAPumpingWaitTimer2FiresAndTimer1DoesNot) {
  loop->RunStep([this] {
    Arm();
    loop->WaitPumping(kShort);
    EXPECT_EQ(ticks, 0);
    EXPECT_GT(pumped, 0);
  });
  EXPECT_TRUE(PumpUntil([this] { return ticks > 0; }));
}

TEST_F(QtLoopTest, APlainWaitInsideAPumpingOneHoldsTheTimers) {
  std::vector<int> seen;
  Timer2.Elapsed = nullptr;
  Timer2.Elapsed = [&] {
    Timer2.Stop();
    Timer1.Arm(1);
    const int before = pumped;
    loop->Wait(kShort);
    seen.push_back(pumped - before);
    ++pumped;
  };
  loop->RunStep([&] {
    Timer2.Arm(1);
    loop->WaitPumping(kShort);
  });
  EXPECT_EQ(seen, (std::vector<int>{0}));
  EXPECT_EQ(ticks, 0);
}

TEST_F(QtLoopTest, ATimerStoppedWhileItWasDueStaysQuiet) {
  loop->RunStep([this] {
    Timer1.Arm(1);
    loop->Wait(kShort);
    Timer1.Stop();
  });
  loop->Wait(kShort);
  QCoreApplication::processEvents();
  EXPECT_EQ(ticks, 0);
}

TEST_F(QtLoopTest, ManyTimesDueIsFiredOnceAfterTheStep) {
  int order = 0;
  int at_end = 0;
  loop->StepEnded = [&] {
    if (at_end == 0) at_end = ++order;
  };
  Timer1.Elapsed = nullptr;
  Timer1.Elapsed = [&] {
    ++ticks;
    Timer1.Stop();
    EXPECT_GT(at_end, 0);
  };
  loop->RunStep([this] {
    Timer1.Arm(1);
    loop->Wait(kShort);
  });
  EXPECT_EQ(ticks, 0);
  EXPECT_TRUE(PumpUntil([this] { return ticks > 0; }));
  EXPECT_EQ(ticks, 1);
}

TEST_F(QtLoopTest, UserEventsComeInPumpingWaitsOnly) {
  PointerWindow window;
  window.setGeometry(0, 0, 200, 200);
  window.show();
  ASSERT_TRUE(PumpUntil([&] { return window.isExposed(); }));
  QCursor::setPos(20, 20);
  ASSERT_TRUE(PumpUntil([&] { return window.Moves > 0; }));
  loop->RunStep([&] {
    const int before = window.Moves;
    QCursor::setPos(60, 60);
    loop->Wait(kShort);
    EXPECT_EQ(window.Moves, before);
    loop->WaitPumping(kShort);
    EXPECT_GT(window.Moves, before);
  });
}

TEST_F(QtLoopTest, OfPressesMadeInAPlainWaitOneActsBehindTheStep) {
  int arrived = 0;
  int acted = 0;
  const int control = 0;
  Hand hand([&] {
    ++arrived;
    loop->Press(&control, Presses::OneKept, [&] { ++acted; });
  });
  loop->RunStep([&] {
    for (int press = 0; press < 5; ++press)
      hand.Do();
    loop->Wait(kShort);
    EXPECT_EQ(arrived, 0);
  });
  EXPECT_TRUE(PumpUntil([&] { return arrived == 5; }));
  loop->Wait(kShort);
  EXPECT_TRUE(PumpUntil([&] { return acted > 0; }));
  EXPECT_EQ(acted, 1);
  // Afterwards each press acts again.
  hand.Do();
  EXPECT_TRUE(PumpUntil([&] { return acted == 2; }));
}

TEST_F(QtLoopTest, PressesOfAControlThatKeepsNoneAreDropped) {
  int arrived = 0;
  int acted = 0;
  const int control = 0;
  Hand hand([&] {
    ++arrived;
    loop->Press(&control, Presses::Dropped, [&] { ++acted; });
  });
  loop->RunStep([&] {
    hand.Do();
    hand.Do();
    loop->Wait(kShort);
  });
  EXPECT_TRUE(PumpUntil([&] { return arrived == 2; }));
  QCoreApplication::processEvents();
  EXPECT_EQ(acted, 0);
  hand.Do();
  EXPECT_TRUE(PumpUntil([&] { return acted == 1; }));
}

TEST_F(QtLoopTest, KeptPressesActInTheirOrderAndMayWaitThemselves) {
  int arrived = 0;
  std::string order;
  const int first = 0;
  const int second = 0;
  Hand hand([&] {
    ++arrived;
    const bool odd = arrived % 2 == 1;
    loop->Press(odd ? &first : &second, Presses::OneKept, [&, odd] {
      order += odd ? "a" : "b";
      loop->Wait(0.001);
    });
  });
  loop->RunStep([&] {
    for (int press = 0; press < 6; ++press)
      hand.Do();
    loop->Wait(kShort);
  });
  EXPECT_TRUE(PumpUntil([&] { return order.size() >= 2; }));
  QCoreApplication::processEvents();
  EXPECT_EQ(order, "ab");
}

TEST_F(QtLoopTest, TheEndComesBeforeWhatIsKept) {
  int arrived = 0;
  int acted = 0;
  const int control = 0;
  Hand hand([&] {
    ++arrived;
    loop->Press(&control, Presses::OneKept, [&] { ++acted; });
  });
  loop->StepEnded = [&] {
    // As the program does when it was asked to end.
    if (arrived > 0) loop->TakeNoMorePresses();
  };
  loop->RunStep([&] {
    hand.Do();
    loop->Wait(kShort);
  });
  EXPECT_TRUE(PumpUntil([&] { return arrived == 1; }));
  for (int turn = 0; turn < 5; ++turn)
    QCoreApplication::processEvents();
  EXPECT_EQ(acted, 0);
}

TEST_F(QtLoopTest, NothingThatIsPressedBehindTheWishToEndActs) {
  int acted = 0;
  const int control = 0;
  Hand hand([&] { loop->Press(&control, Presses::OneKept, [&] { ++acted; }); });
  loop->AskForEnd(true);
  loop->RunStep([&] {
    hand.Do();
    loop->WaitPumping(kShort);
  });
  // The last steps of the program wait as they must, with windows that still hear.
  loop->AskForEnd(false);
  loop->TakeNoMorePresses();
  loop->RunStep([&] {
    hand.Do();
    loop->WaitPumping(kShort);
  });
  for (int turn = 0; turn < 5; ++turn)
    QCoreApplication::processEvents();
  EXPECT_EQ(acted, 0);
}

class ClosedWindow final : public QWindow {
 public:
  int Closes = 0;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Close) ++Closes;
    return QWindow::event(event);
  }
};

TEST_F(QtLoopTest, InALongStepACloseIsHeardAndEverythingElseIsHeld) {
  ClosedWindow window;
  window.show();
  QCoreApplication::processEvents();
  int arrived = 0;
  Hand hand([&] { ++arrived; });
  loop->RunStep([&] {
    loop->Wait(QtLoop::kLongStepSeconds);
    hand.Do();
    hand.Do();
    QTimer::singleShot(0, &window, &QWindow::close);
    loop->Wait(kShort);
    EXPECT_EQ(window.Closes, 1);
    EXPECT_EQ(arrived, 0);
    // Where the operator is heard, what he did before comes first.
    loop->WaitPumping(kShort);
    EXPECT_EQ(arrived, 1);
    hand.Do();
    loop->Wait(kShort);
    EXPECT_EQ(arrived, 1);
  });
  EXPECT_TRUE(PumpUntil([&] { return arrived == 2; }));
  // The next step is not long any more, and what it waits holds nothing back behind it.
  loop->RunStep([&] {
    hand.Do();
    loop->Wait(kShort);
  });
  EXPECT_TRUE(PumpUntil([&] { return arrived == 3; }));
}

TEST_F(QtLoopTest, PressesInAPumpingWaitActAtOnce) {
  int acted = 0;
  const int control = 0;
  Hand hand([&] { loop->Press(&control, Presses::Dropped, [&] { ++acted; }); });
  loop->RunStep([&] {
    hand.Do();
    hand.Do();
    loop->WaitPumping(kShort);
    EXPECT_EQ(acted, 2);
  });
}

TEST_F(QtLoopTest, SocketsAreReadInEveryWait) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  QtSocket socket;
  std::string got;
  socket.DataArrived = [&](std::string_view bytes) { got += bytes; };
  socket.Connect("127.0.0.1", server.serverPort());
  ASSERT_TRUE(PumpUntil(
      [&] { return socket.State() == SocketState::Connected && server.hasPendingConnections(); }));
  QTcpSocket* peer = server.nextPendingConnection();
  loop->RunStep([&] {
    peer->write("one ");
    peer->flush();
    loop->Wait(kShort);
    EXPECT_EQ(got, "one ");
    peer->write("two");
    peer->flush();
    loop->WaitPumping(kShort);
    EXPECT_EQ(got, "one two");
  });
}

TEST_F(QtLoopTest, ControlsGoOutAfterEveryStepAndBeforeEveryWait) {
  int out = 0;
  int ended = 0;
  loop->ControlsOut = [&] { ++out; };
  loop->StepEnded = [&] { ++ended; };
  loop->RunStep([&] {
    EXPECT_TRUE(loop->InStep());
    loop->RunStep([] {});
    EXPECT_EQ(out, 1);
    EXPECT_EQ(ended, 0);
    loop->HandOver();
    EXPECT_GE(out, 2);
  });
  EXPECT_GE(out, 3);
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(loop->InStep());
}

TEST_F(QtLoopTest, WhatIsPostedFollowsTheStepAsOneOfItsOwn) {
  std::string order;
  loop->StepEnded = [&] { order += "|"; };
  loop->RunStep([&] {
    loop->Post([&] {
      EXPECT_TRUE(loop->InStep());
      order += "b";
      loop->Post([&] { order += "d"; });
    });
    loop->Post([&] { order += "c"; });
    loop->WaitPumping(kShort);
    order += "a";
  });
  EXPECT_EQ(order, "a|b|c|d|");
}

TEST_F(QtLoopTest, WhatIsPostedOutsideOfStepsComesBeforeKeptPresses) {
  std::string order;
  const int control = 0;
  loop->RunStep([&] { loop->Wait(kShort); });
  loop->Press(&control, Presses::OneKept, [&] { order += "p"; });
  loop->Post([&] { order += "w"; });
  EXPECT_EQ(order, "");
  PumpUntil([&] { return order.size() >= 2; });
  EXPECT_EQ(order, "wp");
}

TEST_F(QtLoopTest, TheEndOfAStepMayReplaceWhatFollows) {
  int first = 0;
  int second = 0;
  loop->StepEnded = [&] {
    ++first;
    loop->StepEnded = nullptr;
    loop->StepEnded = [&] { ++second; };
  };
  loop->RunStep([] {});
  loop->RunStep([] {});
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
}

TEST_F(QtLoopTest, NothingOfALoopThatIsGoneHappens) {
  loop->RunStep([this] {
    Timer1.Arm(1);
    loop->Wait(kShort);
  });
  loop.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(ticks, 0);
  Timer1.Arm(1);  // nobody drives it any more
  EXPECT_TRUE(Timer1.Enabled());
}

TEST_F(QtLoopTest, AWaitTakesItsTime) {
  const double start = loop->MonotonicSeconds();
  loop->Wait(kShort);
  const double waited = loop->MonotonicSeconds() - start;
  EXPECT_GE(waited, kShort * 0.95);
  loop->Wait(0.0);
  loop->Wait(-1.0);
}

}  // namespace
}  // namespace zepril

#include "platform/qt/qt_loop.h"

#include <QCoreApplication>
#include <QCursor>
#include <QTcpServer>
#include <QWindow>
#include <gtest/gtest.h>

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

 protected:
  void mouseMoveEvent(QMouseEvent*) override { ++Moves; }
};

class QtLoopTest : public ::testing::Test {
 protected:
  QtLoopTest() {
    Timer1.Elapsed = [this] { ++ticks; };
    Timer2.Elapsed = [this] { ++pumped; };
    loop = std::make_unique<QtLoop>();
    loop->Drive(Timer1, false);
    loop->Drive(Timer2, true);
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

TEST_F(QtLoopTest, TheEndOfAStepMayReplaceWhatFollows) {
  int first = 0;
  int second = 0;
  loop->StepEnded = [&] {
    ++first;
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

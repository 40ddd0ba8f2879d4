// A shown window with one widget of each kind, all bound.
#pragma once

#include <QApplication>
#include <QBoxLayout>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "desktop/binder.h"
#include "tests/desktop/desktop_support.h"

namespace zepril {

class BinderTest : public ::testing::Test {
 protected:
  template <class Widget>
  Widget* Place(Widget* widget) {
    box_->addWidget(widget);
    return widget;
  }
  void Show() {
    loop.ControlsOut = [this] { binder.ControlsOut(); };
    binder.ControlsOut();
    window.resize(400, 400);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(PumpUntil([this] { return QApplication::activeWindow() == &window; }));
  }
  std::function<void()> Counted(int& count) {
    return [&count] { ++count; };
  }

  QtLoop loop;
  QWidget window;
  Binder binder{loop, NightLook()};

 private:
  QVBoxLayout* box_ = new QVBoxLayout(&window);
};

}  // namespace zepril

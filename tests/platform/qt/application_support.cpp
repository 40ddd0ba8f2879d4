// The one application of the test program, and waits on its event loop.
#include "tests/platform/qt/application_support.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace zepril {
namespace {

// Fonts, windows and sockets need an application: one serves all tests of this program and goes
// before its statics do.
class Application final : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argc_, argv_.data());
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  std::string name_ = "platform_qt_test";
  std::array<char*, 2> argv_ = {name_.data(), nullptr};
  std::unique_ptr<QGuiApplication> application_;
};
[[maybe_unused]] const auto* const application =
    testing::AddGlobalTestEnvironment(std::make_unique<Application>().release());

}  // namespace

bool PumpUntil(const std::function<bool()>& done) {
  QElapsedTimer spent;
  spent.start();
  while (!done()) {
    if (spent.elapsed() > 20000) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }
  return true;
}

}  // namespace zepril

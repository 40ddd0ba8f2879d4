// Fonts need an application: one serves all tests of this program, and is gone before the statics
// of the toolkit's plugins are.
#include <QByteArray>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <memory>

namespace zepril {
namespace {

class ApplicationEnvironment final : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int argument_count_ = 1;
  char name_[17] = "platform_qt_test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

// The test framework takes it over.
[[maybe_unused]] const auto* const kEnvironment =
    ::testing::AddGlobalTestEnvironment(std::make_unique<ApplicationEnvironment>().release());

}  // namespace
}  // namespace zepril

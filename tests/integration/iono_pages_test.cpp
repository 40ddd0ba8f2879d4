// Updates of the ionosphere's numbers over real HTTP, from pages of all manners.
#include <QCoreApplication>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "core/text_fields.h"
#include "internet/iono_update.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_page_fetcher.h"
#include "tests/doubles/recorded_actions.h"
#include "tool/air_devices.h"
#include "tool/iono_web_pages.h"

namespace zepril {
namespace {

constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

class IonoPagesTest : public ::testing::Test {
 protected:
  // The status, without its time, of an update from pages of these manners.
  std::string Update(const char* manners) {
    const auto device = OpenWebDevice(
        0, {}, IonoWebPages(*IonoPageMannersNamed(manners)),
        [this](const std::string& line) { reported += line; }, loop);
    if (!device) return "no server";
    const std::string host =
        "http://127.0.0.1:" + WholeNumber(ToWhole(Val(device->ReadyLine().substr(10))));
    services.IonoPageA = host + "/magnetogram/index.html";
    services.IonoPageB = host + "/text/sgas.txt";
    internet.SunspotNumber = 40.0;
    internet.KpIndex = 2.0;
    reported.clear();
    update.StartIonoUpdate();
    const double end = loop.MonotonicSeconds() + kPatience;
    while (pages.IsBusy() && loop.MonotonicSeconds() < end) {
      device->Serve(1);
      QCoreApplication::processEvents();
    }
    const std::string& told = status.IonoLabel.Caption;
    return told.starts_with("UP") ? told : told.substr(5);
  }
  void ExpectValues(double sunspots, double k) const {
    EXPECT_EQ(internet.SunspotNumber, sunspots);
    EXPECT_EQ(internet.KpIndex, k);
  }

  QtLoop loop;
  QtPageFetcher pages{loop, "8.08"};
  InternetState internet;
  MapViewState view;
  ServicesState services;
  IonoControls controls;
  StatusControls status;
  RecordedActions actions;
  IonoUpdate update{internet, view, services, controls, status, {pages, loop, actions, actions}};
  std::string reported;
};

TEST_F(IonoPagesTest, WholePagesNeedTheFirstOnly) {
  for (const char* manners : {"whole", "html"}) {
    EXPECT_EQ(Update(manners), " UPDATED (1) ") << manners;
    ExpectValues(88.0, 3.5);
    EXPECT_EQ(reported, "PAGE web /magnetogram/index.html\n");
  }
}

TEST_F(IonoPagesTest, WhatTheFirstLacksTheSecondGives) {
  for (const char* second : {"whole", "html"}) {
    EXPECT_EQ(Update((std::string("k-only,") + second).c_str()), " UPDATED (M) ") << second;
    ExpectValues(101.0, 3.5);
    for (const char* first : {"other,", "empty,", "absent,"}) {
      EXPECT_EQ(Update((first + std::string(second)).c_str()), " UPDATED (2) ") << first << second;
      ExpectValues(101.0, 4.0);
      EXPECT_EQ(reported, "PAGE web /magnetogram/index.html\nPAGE web /text/sgas.txt\n");
    }
  }
}

TEST_F(IonoPagesTest, WhatBothLackStaysAsItWas) {
  for (const char* first : {"other,", "empty,", "absent,"}) {
    for (const char* second : {"k-only", "other", "empty", "absent"}) {
      EXPECT_EQ(Update((first + std::string(second)).c_str()), "UPDATE FAILED") << first << second;
      ExpectValues(40.0, 2.0);
    }
  }
  EXPECT_EQ(actions.CountOf("save"), 0);
}

TEST_F(IonoPagesTest, AServerThatIsNotThereFails) {
  services.IonoPageA = "http://127.0.0.1:1/a";
  services.IonoPageB = "http://127.0.0.1:1/b";
  update.StartIonoUpdate();
  const double end = loop.MonotonicSeconds() + kPatience;
  while (pages.IsBusy() && loop.MonotonicSeconds() < end)
    QCoreApplication::processEvents();
  EXPECT_EQ(status.IonoLabel.Caption, "UPDATE FAILED");
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

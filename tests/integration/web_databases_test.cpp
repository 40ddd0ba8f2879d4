// Internet support over real sockets, from services that are good, slow, silent, broken, endless or
// answer something else.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <string>

#include "core/text_fields.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_page_fetcher.h"
#include "tests/internet/internet_world.h"
#include "tool/web_pages.h"
#include "tool/web_server.h"

namespace zepril {
namespace {

constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

class WebDatabasesTest : public ::testing::Test {
 protected:
  WebDatabasesTest() {
    server = WebServer::Open(0, &world.Time);
    const std::string host = "http://127.0.0.1:" + WholeNumber(server->Port());
    world.Services.AprsRestService = world.Services.AprsCgiService = host;
    server->Asked = [this](std::string_view target) {
      ++asked;
      return WebPageOf(target, world.Time.Now(), manners).value_or(WebAnswer{});
    };
  }
  void Behave(const std::string& name) { manners = WebMannersNamed(name).value(); }
  void FetchMoni1() {
    world.SwitchOn();
    world.FetchMoni1();
  }
  void FetchMoniAll() {
    world.SwitchAreaOn();
    world.FetchMoniAll();
  }
  // Serves both ends until `reached`; false when that lasts too long.
  bool Until(const std::function<bool()>& reached) {
    const double end = loop.MonotonicSeconds() + kPatience;
    while (!reached()) {
      if (loop.MonotonicSeconds() > end) return false;
      if (server) server->Serve(0);
      loop.Wait(0.001);
      QCoreApplication::processEvents();
    }
    return true;
  }
  // The page has come, whatever it was.
  bool Comes() {
    return Until([this] { return !pages.IsBusy(); });
  }
  bool Words(const std::string& words) const {
    return world.Words().find(words) != std::string::npos;
  }

  QtLoop loop;
  QtPageFetcher pages{loop, "8.08"};
  InternetWorld world{&pages};
  std::unique_ptr<WebServer> server;
  WebManners manners;
  int asked = 0;
};

TEST_F(WebDatabasesTest, PacketsOfBothServicesFillTheHistory) {
  FetchMoni1();
  ASSERT_TRUE(Comes());
  EXPECT_TRUE(Words("432 lines, 432 new")) << world.Words();
  EXPECT_EQ(world.HistoryCount(), 432);
  world.Time.SetNow({2024, 5, 14, 13, 35, 0});
  world.Controls.Moni1.Check22.RightClick();
  world.FetchMoni1();
  ASSERT_TRUE(Comes());
  EXPECT_EQ(world.HistoryCount(), 438);
  EXPECT_EQ(world.NewestOfHistory().DateAndTime(), "240514 1330");
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(WebDatabasesTest, StationsOfTheAreaFillTheList) {
  FetchMoniAll();
  ASSERT_TRUE(Comes());
  EXPECT_EQ(world.Heard(), 26);
  EXPECT_EQ(world.AreaWords(), "AREA: 12:35 26 stations, 26 new");
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(WebDatabasesTest, ASlowPageIsAwaited) {
  Behave("slow:30");
  FetchMoni1();
  ASSERT_TRUE(Until([this] { return asked == 1; }));
  for (int second = 0; second < 29; ++second) {
    world.Time.Run(1.0);
    world.Net.Support.SecondPassed();
    server->Serve(1);
    loop.Wait(0.001);
  }
  EXPECT_EQ(world.HistoryCount(), 0);
  EXPECT_TRUE(world.Controls.Status.Text10.Visible);
  world.Time.Run(2.0);
  ASSERT_TRUE(Comes());
  EXPECT_EQ(world.HistoryCount(), 432);
}

TEST_F(WebDatabasesTest, APageSlowerThanAMinuteIsGivenUpAndTheNextOneComes) {
  Behave("slow:600");
  FetchMoni1();
  ASSERT_TRUE(Until([this] { return asked == 1; }));
  world.Time.Run(60.0);
  world.Net.Support.SecondPassed();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_TRUE(Words("no answer")) << world.Words();
  Behave("whole");
  FetchMoni1();
  ASSERT_TRUE(Comes());
  EXPECT_EQ(world.HistoryCount(), 432);
}

TEST_F(WebDatabasesTest, WhoIsSilentIsGivenUp) {
  Behave("silent");
  FetchMoniAll();
  ASSERT_TRUE(Until([this] { return asked == 1; }));
  world.Time.Run(60.0);
  world.Net.Support.SecondPassed();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_FALSE(pages.IsBusy());
}

TEST_F(WebDatabasesTest, ABrokenPageStoresNothing) {
  for (const char* manner : {"cut:0", "cut:100", "cut:5000"}) {
    Behave(manner);
    FetchMoni1();
    ASSERT_TRUE(Comes()) << manner;
    EXPECT_EQ(world.HistoryCount(), 0) << manner;
    EXPECT_TRUE(Words("no answer")) << world.Words();
    EXPECT_EQ(world.Timer2.IntervalMs(), 2000);
  }
}

TEST_F(WebDatabasesTest, APageWithoutEndIsGivenUp) {
  for (const char* manner : {"endless", "huge"}) {
    Behave(manner);
    FetchMoni1();
    ASSERT_TRUE(Comes()) << manner;
    EXPECT_TRUE(Words("answer too large")) << world.Words();
    EXPECT_EQ(world.HistoryCount(), 0);
    EXPECT_TRUE(world.IsAtRest());
    FetchMoniAll();
    ASSERT_TRUE(Comes()) << manner;
    EXPECT_EQ(world.Heard(), 0);
    EXPECT_TRUE(world.IsAtRest());
  }
}

TEST_F(WebDatabasesTest, OtherPagesStoreNothing) {
  for (const char* manner : {"empty", "binary", "no-data"}) {
    Behave(manner);
    FetchMoni1();
    ASSERT_TRUE(Comes()) << manner;
    EXPECT_TRUE(world.IsAtRest()) << manner;
    FetchMoniAll();
    ASSERT_TRUE(Comes()) << manner;
    EXPECT_TRUE(world.IsAtRest()) << manner;
    EXPECT_EQ(world.Heard(), 0) << manner;
    EXPECT_EQ(world.Controls.Moni1.Check22.Value, 1) << manner;
  }
}

TEST_F(WebDatabasesTest, APageThatIsNotThereIsTold) {
  world.Services.AprsRestService += "/elsewhere";
  FetchMoni1();
  ASSERT_TRUE(Comes());
  EXPECT_TRUE(Words("refused (404)")) << world.Words();
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(WebDatabasesTest, WithoutAServerThereIsNoAnswer) {
  server.reset();
  FetchMoni1();
  ASSERT_TRUE(Comes());
  EXPECT_TRUE(Words("no answer")) << world.Words();
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

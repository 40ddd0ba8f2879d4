// The pages of space weather, read as a station program reads them.
#include "tool/iono_web_pages.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

WebAnswer PageOf(const char* manners, std::size_t page) {
  return IonoWebPages(*IonoPageMannersNamed(manners))[page].Answer("");
}

TEST(IonoWebPages, HaveAMannerEach) {
  EXPECT_EQ(PageOf("whole", 0).Body, PageOf("whole,empty", 0).Body);
  EXPECT_EQ(PageOf("whole,empty", 1).Body, "");
  EXPECT_EQ(PageOf("absent,whole", 0).Status, 404);
  EXPECT_EQ(PageOf("absent,whole", 1).Status, 200);
  for (const char* words : {"", "half", "whole,", "whole,html,empty"})
    EXPECT_FALSE(IonoPageMannersNamed(words)) << words;
}

TEST(IonoWebPages, HoldWhatTheirMannerSays) {
  for (const std::size_t page : {std::size_t{0}, std::size_t{1}}) {
    const char* sunspots = page == 0 ? "SUNSPOT NUMBER 88" : " SSN 101 ";
    const char* k = page == 0 ? "KIEL CURRENT K 4" : " Planetary 2 3 2 2 3 3 2 4\n";
    const auto holds = [page](const char* manner, const char* words) {
      return PageOf(manner, page).Body.find(words) != std::string::npos;
    };
    EXPECT_TRUE(holds("whole", sunspots) && holds("whole", k));
    EXPECT_TRUE(holds("html", sunspots) && holds("html", k) && holds("html", "<pre>"));
    EXPECT_TRUE(!holds("k-only", sunspots) && holds("k-only", k));
    EXPECT_TRUE(!holds("other", sunspots) && !holds("other", k));
    EXPECT_EQ(PageOf("whole", page).ContentType, "text/plain");
    EXPECT_EQ(PageOf("html", page).ContentType, "text/html");
    EXPECT_GT(PageOf("whole", 1).Body.size(), 300U);
    EXPECT_GT(PageOf("other", page).Body.size(), 300U);
  }
}

}  // namespace
}  // namespace zepril

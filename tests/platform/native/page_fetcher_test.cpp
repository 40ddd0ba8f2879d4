// The line of pages: one at a time, in their order, dropped and stopped; and addresses.
#include "platform/page_fetcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/fake_pages.h"

namespace zepril {
namespace {

struct Asker {
  PageFetcher::Done Note() {
    return [this](const Page& page) { Told.push_back(page); };
  }
  std::vector<Page> Told;
};

TEST(PageFetcher, FetchesOneAfterTheOther) {
  FakePages pages;
  Asker asker;
  EXPECT_NE(pages.Fetch("http://a", asker.Note()), PageFetcher::kNone);
  pages.Fetch("http://b", asker.Note());
  EXPECT_EQ(pages.Asked, std::vector<std::string>{"http://a"});
  EXPECT_TRUE(pages.IsBusy());
  pages.Answer("first");
  EXPECT_EQ(pages.Asked.back(), "http://b");
  pages.Fail();
  ASSERT_EQ(asker.Told.size(), 2U);
  EXPECT_EQ(asker.Told[0].Url, "http://a");
  EXPECT_EQ(asker.Told[0].Body, "first");
  EXPECT_TRUE(asker.Told[0].IsGood());
  EXPECT_EQ(asker.Told[1].Url, "http://b");
  EXPECT_FALSE(asker.Told[1].IsGood());
  EXPECT_FALSE(pages.IsBusy());
}

TEST(PageFetcher, TellsWhosePageHasItsTurn) {
  FakePages pages;
  const std::int64_t first = pages.Fetch("http://a", {});
  const std::int64_t second = pages.Fetch("http://b", {});
  EXPECT_TRUE(pages.IsUnderWay(first));
  EXPECT_FALSE(pages.IsUnderWay(second));
  pages.Answer("");
  EXPECT_FALSE(pages.IsUnderWay(first));
  EXPECT_TRUE(pages.IsUnderWay(second));
}

TEST(PageFetcher, AStatusOfFaultIsAnAnswerAndNotAGoodOne) {
  FakePages pages;
  Asker asker;
  pages.Fetch("http://a", asker.Note());
  pages.Answer("not here", 404);
  EXPECT_EQ(asker.Told[0].Outcome, PageOutcome::Loaded);
  EXPECT_FALSE(asker.Told[0].IsGood());
}

TEST(PageFetcher, WhoAsksFromWithinTheAnswerWaitsUntilItIsDealtWith) {
  FakePages pages;
  Asker asker;
  std::size_t asked_within = 0;
  pages.Fetch("http://a", [&](const Page&) {
    pages.Fetch("http://b", asker.Note());
    asked_within = pages.Asked.size();
  });
  pages.Answer("");
  EXPECT_EQ(asked_within, 1U);
  EXPECT_EQ(pages.Asked.back(), "http://b");
}

TEST(PageFetcher, ADroppedPageIsNeverTold) {
  FakePages pages;
  Asker asker;
  const std::int64_t first = pages.Fetch("http://a", asker.Note());
  const std::int64_t second = pages.Fetch("http://b", asker.Note());
  pages.Fetch("http://c", asker.Note());
  pages.Drop(second);
  EXPECT_EQ(pages.Abandoned, 0);
  pages.Drop(first);
  EXPECT_EQ(pages.Abandoned, 1);
  EXPECT_EQ(pages.Asked, (std::vector<std::string>{"http://a", "http://c"}));
  EXPECT_TRUE(asker.Told.empty());
  pages.Drop(first);  // gone already
  EXPECT_EQ(pages.Abandoned, 1);
}

TEST(PageFetcher, StoppedItForgetsAll) {
  FakePages pages;
  Asker asker;
  pages.Fetch("http://a", asker.Note());
  pages.Fetch("http://b", asker.Note());
  pages.Stop();
  EXPECT_EQ(pages.Abandoned, 1);
  EXPECT_FALSE(pages.IsBusy());
  pages.Answer("late");
  EXPECT_TRUE(asker.Told.empty());
  EXPECT_EQ(pages.Asked.size(), 1U);
}

TEST(PageFetcher, TheLineHasAnEnd) {
  FakePages pages;
  for (std::size_t at = 0; at <= PageFetcher::kMostWaiting; ++at)
    EXPECT_NE(pages.Fetch("http://a", nullptr), PageFetcher::kNone);
  EXPECT_EQ(pages.Fetch("http://a", nullptr), PageFetcher::kNone);
}

TEST(SendableUrl, EncodesWhatAnAddressCannotCarry) {
  EXPECT_EQ(SendableUrl("http://h/a.cgi?msg=A B{07"), "http://h/a.cgi?msg=A%20B%7B07");
  EXPECT_EQ(SendableUrl("http://h/?m=\xE4\xDF#1"), "http://h/?m=%E4%DF%231");
  EXPECT_EQ(SendableUrl("http://h/?m=\"<>[]^`|\\\r\n\x7F"),
            "http://h/?m=%22%3C%3E%5B%5D%5E%60%7C%5C%0D%0A%7F");
}

TEST(SendableUrl, LeavesWhatIsAnAddress) {
  for (const char* url : {"https://h:8080/a/b?c=d&e=f,g+h;i", "http://[::1]:80/a", "http://h",
                          "http://h/%20%7b", "http://h?a=b"})
    EXPECT_EQ(SendableUrl(url), url);
  EXPECT_EQ(SendableUrl("http://h/?m=100%"), "http://h/?m=100%25");
  EXPECT_EQ(SendableUrl("http://h/?m=5%of"), "http://h/?m=5%25of");
  EXPECT_EQ(SendableUrl(""), "");
}

}  // namespace
}  // namespace zepril

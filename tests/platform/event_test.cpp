// Who hears an event, and that one listener is not set over another.
#include "platform/event.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

TEST(Event, TellsItsListenerTheValues) {
  Event<int, const std::string&> event;
  std::string heard;
  event = [&](int number, const std::string& text) { heard = text + std::to_string(number); };
  event(7, "beacon ");
  EXPECT_EQ(heard, "beacon 7");
}

TEST(Event, WithoutAListenerNothingHappens) {
  const Event<int> event;
  EXPECT_FALSE(event);
  event(1);
}

TEST(Event, GivenBackItTellsNobodyAndMayBeTakenAgain) {
  Event<> event;
  int first = 0;
  int second = 0;
  event = [&] { ++first; };
  event = nullptr;
  EXPECT_FALSE(event);
  event();
  event = [&] { ++second; };
  event();
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 1);
}

TEST(Event, MayBeGivenBackByItsListenerWhileThatRuns) {
  Event<> event;
  std::string told;
  event = [&event, &told, text = std::string("a text too long to be kept in place")] {
    event = nullptr;
    told = text;
  };
  event();
  EXPECT_EQ(told, "a text too long to be kept in place");
  EXPECT_FALSE(event);
}

#ifndef NDEBUG
TEST(EventDeathTest, TakesNoListenerOverAnother) {
  Event<> event;
  event = [] {};
  EXPECT_DEATH(
      event = [] {}, "somebody listens already");
}
#endif

}  // namespace
}  // namespace zepril

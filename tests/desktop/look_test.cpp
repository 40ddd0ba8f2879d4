// Texts and state colours are readable by day and by night.
#include "core/state_colours.h"
#include "desktop/look.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zepril {
namespace {

// The colours that the logic gives to controls, with what they say.
const std::vector<std::pair<std::string, std::uint32_t>> kStateColours = {
    {"collecting for MONI 1", 0x00C000},
    {"collecting for MONI ALL", 0xFF80E0},
    {"scale field", 0xC0C0C0},
    {"active scale", 0x00E0E0},
    {"scale without a tile", 0x808080},
    {"scale with a tile", 0xC0C0A0},
    {"map dark", 0x606046},
    {"map bright", 0xFFFFD6},
    {"distance alarm", 0x00FFFF},
    {"own object that can't go on", state_colours::kOwnObjectDimmed}};

class LookTest : public ::testing::TestWithParam<bool> {
 protected:
  const Look& look = GetParam() ? NightLook() : DayLook();
};

TEST(Contrast, OfBlackAndWhiteIsTwentyOneAndOfOneColourOne) {
  EXPECT_NEAR(ContrastOf(QColor(Qt::black), QColor(Qt::white)), 21.0, 1e-9);
  EXPECT_NEAR(ContrastOf(QColor(Qt::white), QColor(Qt::black)), 21.0, 1e-9);
  EXPECT_EQ(ContrastOf(QColor(Qt::gray), QColor(Qt::gray)), 1.0);
  EXPECT_NEAR(ContrastOf(QColor(0x77, 0x77, 0x77), QColor(Qt::white)), 4.48, 0.01);
}

TEST_P(LookTest, TextIsReadableOnEveryGround) {
  for (const QColor& ground : {look.Window, look.Panel, look.Field}) {
    EXPECT_GE(ContrastOf(look.Text, ground), kReadable) << ground.name().toStdString();
    EXPECT_GE(ContrastOf(look.Dim, ground), kReadable) << ground.name().toStdString();
  }
  // A switch that is on, a selected row.
  EXPECT_GE(ContrastOf(look.Text, look.Accent), kReadable);
  EXPECT_GE(ContrastOf(PaletteOf(look).color(QPalette::HighlightedText),
                       PaletteOf(look).color(QPalette::Highlight)),
            kReadable);
}

TEST_P(LookTest, EveryStateOfAChatLineIsReadableAndOneOfItsOwn) {
  const std::vector<std::uint32_t> states = {250, 0x5FF0, 128, 160, 0x6000, 0x505050};
  for (const std::uint32_t state : states) {
    const auto ink = ChatInk(state, look);
    ASSERT_TRUE(ink) << state;
    for (const QColor& ground : {look.Window, look.Panel})
      EXPECT_GE(ContrastOf(*ink, ground), kReadable) << state << ground.name().toStdString();
    for (const std::uint32_t other : states)
      EXPECT_EQ(*ink == *ChatInk(other, look), other == state) << state << " " << other;
  }
  for (std::uint32_t tries = 250; tries <= 254; ++tries)
    EXPECT_EQ(ChatInk(tries, look), ChatInk(250, look));
  for (const std::uint32_t other : {249U, 255U, 0U, 0xC0C0C0U})
    EXPECT_FALSE(ChatInk(other, look)) << other;
}

TEST_P(LookTest, TextIsReadableOnEveryStateColour) {
  for (const auto& [state, colour] : kStateColours) {
    const QColor shade = StateShade(colour, look);
    EXPECT_GE(ContrastOf(TextOn(shade), shade), kReadable) << state;
    EXPECT_GE(ContrastOf(StateInk(colour, look), shade), kReadable) << state;
    // Every ink that the logic may want there.
    for (std::uint32_t ink : {0x000000U, 0xFFFFFFU, 0xC0C0C0U, 0x00FFFFU}) {
      EXPECT_GE(ContrastOf(InkOn(ink, shade, TextOn(shade)), shade), kReadable) << state;
    }
  }
}

TEST_P(LookTest, StatesOfDifferentHueStayApart) {
  EXPECT_NE(StateShade(0x00C000, look), StateShade(0xFF80E0, look));
  EXPECT_NE(StateShade(0x00E0E0, look), StateShade(0xC0C0C0, look));
  EXPECT_NE(StateShade(0x808080, look), StateShade(0xC0C0A0, look));
}

TEST_P(LookTest, AnInkKeepsItsColourWhereItIsReadable) {
  EXPECT_EQ(InkOn(0x000000, QColor(Qt::white), look.Text), QColor(Qt::black));
  EXPECT_EQ(InkOn(0xC0C0C0, QColor(Qt::white), look.Text), look.Text);
}

TEST_P(LookTest, WhatIsOnTheAirKeepsItsColourAndIsReadable) {
  EXPECT_EQ(PlainColour(state_colours::kOnTheAir), QColor(0xE0, 0x48, 0x48));
  EXPECT_EQ(PlainColour(state_colours::kOwnObject), QColor(0xC0, 0xC0, 0x00));
  const QString sheet = StyleSheetOf(look);
  for (std::uint32_t colour : {state_colours::kOnTheAir, state_colours::kOwnObject}) {
    const QColor ground = PlainColour(colour);
    EXPECT_TRUE(sheet.contains(ground.name()));
    EXPECT_GE(ContrastOf(TextOn(ground), ground), kReadable);
  }
  EXPECT_FALSE(sheet.contains(QLatin1Char('%')));
}

TEST_P(LookTest, ASwitchThatCannotGoOnIsDimmed) {
  EXPECT_EQ(StateShade(state_colours::kOwnObjectDimmed, look), look.Window);
  EXPECT_EQ(StateInk(state_colours::kOwnObjectDimmed, look), look.Dim);
  EXPECT_EQ(StateInk(0x00E0E0, look), TextOn(StateShade(0x00E0E0, look)));
}

INSTANTIATE_TEST_SUITE_P(NightAndDay, LookTest, ::testing::Bool(),
                         [](const auto& row) { return row.param ? "Night" : "Day"; });

}  // namespace
}  // namespace zepril

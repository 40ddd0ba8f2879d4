// Markers of the title in their columns.
#include "core/title_line.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(TitleLine, TheDigipeatersMarkerIsElevenColumnsWide) {
  RadioState radio;
  radio.DigiOn = Digipeater::On;
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    radio.RadioMode = static_cast<int>(mode);
    EXPECT_EQ(DigiMarker(radio), "Digi active");
  }
  radio.DigiOn = Digipeater::Off;
  EXPECT_EQ(DigiMarker(radio), "           ");
}

TEST(TitleLine, OtherInterfacesHaveNone) {
  RadioState radio;
  radio.DigiOn = Digipeater::On;
  for (const RadioMode mode : {RadioMode::AgwLocal, RadioMode::AgwRemote, RadioMode::None}) {
    radio.RadioMode = static_cast<int>(mode);
    EXPECT_EQ(DigiMarker(radio), "           ");
  }
}

TEST(TitleLine, ARelayToAnotherModeIsToldByTheScsTncAlone) {
  RadioState radio;
  radio.RadioMode = static_cast<int>(RadioMode::ScsTnc);
  radio.DigiOn = Digipeater::On;
  radio.BaudMode = "300";
  radio.CrossMode = "1200";
  EXPECT_EQ(DigiMarker(radio), "Digi X-mode");
  radio.CrossMode = "300";
  EXPECT_EQ(DigiMarker(radio), "Digi active");
  // Kept: "R300" and "300R" are the same mode and differ as texts.
  radio.BaudMode = "300R";
  radio.CrossMode = "R300";
  EXPECT_EQ(DigiMarker(radio), "Digi X-mode");
  radio.RadioMode = static_cast<int>(RadioMode::ScsPtc);
  EXPECT_EQ(DigiMarker(radio), "Digi active");
}

TEST(TitleLine, WhatIsWrittenIntoItKeepsItsLength) {
  std::string title = BaseTitle("8.08", "QX7KB-9");
  EXPECT_EQ(title.size(), kTitleColumns);
  PutInTitle(title, 61, "Digi active");
  EXPECT_EQ(title.substr(60, 11), "Digi active");
  BlankInTitle(title, 61, 71);
  EXPECT_EQ(title, BaseTitle("8.08", "QX7KB-9"));
}

}  // namespace
}  // namespace zepril

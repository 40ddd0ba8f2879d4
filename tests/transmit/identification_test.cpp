// Status texts of digipeaters, gateways and relays.
#include "transmit/identification.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

RadioState Station(RadioMode mode, const std::string& baud_mode, const std::string& cross_mode) {
  RadioState radio;
  radio.RadioMode = static_cast<int>(mode);
  radio.DigiOn = Digipeater::On;
  radio.BaudMode = baud_mode;
  radio.CrossMode = cross_mode;
  return radio;
}

TEST(Identification, ADigipeaterIsNamed) {
  const RadioState radio = Station(RadioMode::Pk232, "300", "NONE");
  EXPECT_EQ(IdentificationText(radio, false), "ZEPRIL  Digi active");
  EXPECT_EQ(IdentificationText(radio, true), "ZEPRIL  Digi & IGate R->I active");
}

TEST(Identification, AGatewayToTheInternetAloneIsNamed) {
  RadioState radio = Station(RadioMode::ScsTnc, "300", "1200");
  radio.DigiOn = Digipeater::Off;
  EXPECT_EQ(IdentificationText(radio, true), "ZEPRIL  IGate R->I active");
  EXPECT_EQ(IdentificationText(radio, false), "");
}

TEST(Identification, ARelayToAnotherModeNamesThatMode) {
  const RadioState to_rpr = Station(RadioMode::ScsTnc, "300", "R300");
  EXPECT_EQ(IdentificationText(to_rpr, false), "ZEPRIL  Gate -> RPR 300Bd active");
  EXPECT_EQ(IdentificationText(to_rpr, true), "ZEPRIL  Gate -> RPR 300Bd & IGate R->I active");
  const RadioState to_fsk = Station(RadioMode::ScsTnc, "300R", "1200");
  EXPECT_EQ(IdentificationText(to_fsk, false), "ZEPRIL  Gate to FSK 1200Bd active");
  EXPECT_EQ(IdentificationText(to_fsk, true), "ZEPRIL  Gate to FSK 1200Bd & IGate R->I active");
}

TEST(Identification, TheModeIsComparedAsAText) {
  EXPECT_EQ(IdentificationText(Station(RadioMode::ScsTnc, "300R", "R300"), false),
            "ZEPRIL  Gate -> RPR 300Bd active");
  EXPECT_EQ(IdentificationText(Station(RadioMode::ScsTnc, "1200", "1200"), false),
            "ZEPRIL  Digi active");
}

TEST(Identification, OnlyTheScsTncRelaysBetweenModes) {
  EXPECT_EQ(IdentificationText(Station(RadioMode::ScsPtc, "300", "R300"), false),
            "ZEPRIL  Digi active");
}

}  // namespace
}  // namespace zepril

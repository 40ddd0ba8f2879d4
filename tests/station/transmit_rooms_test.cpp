// The transmitting rooms in a running station: what holds the main cycle, and what may speak to the
// modem meanwhile.
#include "station/transmit_rooms.h"

#include <gtest/gtest.h>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr const char* kOneObject = "ONAM=WORKS\r\nOUTN=5817.860\r\nOUTE=391.394\r\n";

void Press(CheckBox& box, int value) {
  box.Value = value;
  box.Click();
}

TEST(TransmitRooms, ThePanelOfTheObjectHoldsTheCycleWhateverIsRedrawn) {
  StationHarness station(kOneObject);
  ASSERT_TRUE(station.Start());
  ObjectSetupControls& panel = station.Controls().ObjectSetup;
  station.Controls().Transmit.Check18.RightClick();
  ASSERT_TRUE(panel.Frame11.Visible);
  station.Hear("QX1AB", "=5230.00N/01324.00E>");
  station.Ticks(3);
  // The operator moves the map to the object's place.
  station.Controls().Map.Command8.Click();
  station.Ticks(3);
  EXPECT_EQ(station.State().Reception.RawLineCount, 0);
  panel.Command32.Click();
  station.Ticks(2);
  EXPECT_GT(station.State().Reception.RawLineCount, 0);
}

TEST(TransmitRooms, NoReportGoesBetweenTheLinesThatProgramTheModem) {
  StationHarness station("MODEM=1\r\nTXON=0\r\nTXTO=ZEPR\r\nTXPA=\r\nTXID=10\r\n");
  ASSERT_TRUE(station.Start());
  CheckBox& tx = station.Controls().Transmit.Check6;
  ASSERT_EQ(tx.Caption, "TX !");
  int presses = 0;
  station.clock.OnWait = [&](double, bool pumping) {
    if (!pumping || presses > 4) return;
    ++presses;
    Press(tx, 1);
  };
  tx.RightClick();
  station.modem.Written.clear();
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_EQ(presses, 5);
  EXPECT_EQ(station.modem.Written,
            "\x03MYCALL QX7KB-10\rUNPROTO ZEPR\rDIGIPEAT OFF\rDFROM NONE\rMYALIAS NONE\r\rK\r");
  // Behind them a press sends again.
  station.clock.OnWait = nullptr;
  Press(tx, 1);
  EXPECT_NE(station.modem.Written.find("K\r=5230.00N/01324.00E"), std::string::npos)
      << station.modem.Written;
}

}  // namespace
}  // namespace zepril

// USER QTH SETUP in the running station: typed positions, what is refused, and that nobody moves
// the map meanwhile.
#include "map/qth_setup.h"

#include <gtest/gtest.h>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

class QthSetupTest : public ::testing::Test {
 protected:
  void Begin(const std::string& settings = {}) {
    station = std::make_unique<StationHarness>(settings);
    ASSERT_TRUE(station->Start());
  }
  QthSetupControls& Qth() { return station->Controls().Qth; }
  MapViewState& View() { return station->State().Map; }
  void Open() { station->Controls().Map.Option1.RightClick(); }
  // Each letter raises a change, as typing does.
  void Type(TextBox& field, const std::string& text) {
    field.Text = text;
    field.Change();
  }
  void Enter(TextBox& field) { field.KeyDown({13, 0}); }
  void ExpectOwn(double north_km, double east_km) {
    EXPECT_NEAR(View().OwnNorthKm, north_km, 0.0011);
    EXPECT_NEAR(View().OwnEastKm, east_km, 0.0011);
  }
  void Report() {
    station->Hear("QX1AB-9", "=5335.00N/01000.00E>far away");
    station->Ticks(2);
  }

  std::unique_ptr<StationHarness> station;
};

TEST_F(QthSetupTest, TheFieldsShowTheCentre) {
  Begin();
  Open();
  EXPECT_EQ(Qth().TextQthNorth.Text, "5800.000");
  EXPECT_EQ(Qth().TextQthEast.Text, "400.000");
  station->Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0});
  EXPECT_EQ(Qth().TextQthEast.Text, "900.000");
}

TEST_F(QthSetupTest, TypedEnteredAndTakenIsTheOwnPosition) {
  Begin();
  Open();
  Type(Qth().TextQthNorth, "5830");
  Type(Qth().TextQthEast, "380.25");
  Enter(Qth().TextQthEast);
  EXPECT_EQ(View().CentreNorthKm, 5830.0);
  EXPECT_EQ(Qth().TextQthNorth.Text, "5830.000");
  Qth().QthOk.Click();
  ExpectOwn(5830.0, 380.25);
  EXPECT_FALSE(Qth().Frame2.Visible);
  EXPECT_NE(station->File("ZEPRIL.INI").find("UUN=5830\r\n"), std::string::npos);
}

TEST_F(QthSetupTest, OkTakesWhatWasTypedAndNotEntered) {
  Begin();
  Open();
  Type(Qth().TextQthNorth, "5830");
  Type(Qth().TextQthEast, "380.25");
  Qth().QthOk.Click();
  ExpectOwn(5830.0, 380.25);
  EXPECT_EQ(View().CentreEastKm, 380.25);
}

TEST_F(QthSetupTest, DegreesAndLocatorsAreTakenToo) {
  for (const char* typed : {"52.504 13.405167", "52:30.24N 13:24.31E"}) {
    Begin();
    Open();
    Type(Qth().TextQthNorth, typed);
    Qth().QthOk.Click();
    ExpectOwn(5818.292, 391.751);
  }
  Begin();
  Open();
  Type(Qth().TextQthEast, "JO62QM");
  Enter(Qth().TextQthEast);
  EXPECT_EQ(Qth().TextQthEast.Text.size(), 7U);  // in kilometres now
  Qth().QthOk.Click();
  EXPECT_NEAR(View().OwnNorthKm, 5820.2, 0.1);
}

TEST_F(QthSetupTest, AWrongEntryTellsWhyAndLosesNothing) {
  Begin();
  Open();
  for (const bool by_enter : {true, false}) {
    Type(Qth().TextQthNorth, "5830,5");
    Type(Qth().TextQthEast, "380");
    by_enter ? Enter(Qth().TextQthEast) : Qth().QthOk.Click();
    EXPECT_TRUE(Qth().QthNote.Visible);
    EXPECT_NE(Qth().QthNote.Caption.find("POINT"), std::string::npos);
    EXPECT_TRUE(Qth().Frame2.Visible);
    EXPECT_EQ(Qth().TextQthNorth.Text, "5830,5");
    EXPECT_EQ(Qth().TextQthEast.Text, "380");
    EXPECT_EQ(View().CentreNorthKm, 5800.0);
    ExpectOwn(5817.860, 391.394);
  }
  // A step of the scale leaves the typing alone, mended it is taken.
  station->Controls().Map.Command2.Click();
  EXPECT_EQ(Qth().TextQthNorth.Text, "5830,5");
  Type(Qth().TextQthNorth, "5830.5");
  Qth().QthOk.Click();
  ExpectOwn(5830.5, 380.0);
  EXPECT_FALSE(Qth().QthNote.Visible);
}

// The last of both is meant.
TEST_F(QthSetupTest, APressOnTheMapReplacesWhatWasTypedBefore) {
  Begin();
  Open();
  Type(Qth().TextQthNorth, "nonsense");
  Enter(Qth().TextQthNorth);
  station->Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0});
  EXPECT_EQ(Qth().TextQthNorth.Text, "5800.000");
  EXPECT_FALSE(Qth().QthNote.Visible);
  Qth().QthOk.Click();
  ExpectOwn(5800.0, 900.0);
}

TEST_F(QthSetupTest, TheFollowedStationDoesNotMoveTheMapMeanwhile) {
  Begin();
  Open();
  station->Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0});  // redraws
  Report();
  EXPECT_EQ(View().CentreEastKm, 900.0);
  EXPECT_FALSE(station->program->Timer1().Enabled());
  Qth().QthOk.Click();
  ExpectOwn(5800.0, 900.0);
  // It was only put off.
  station->Ticks(2);
  EXPECT_NE(View().CentreEastKm, 900.0);
  EXPECT_EQ(station->State().Stores.Moni1Records.Count(), 1);
}

TEST_F(QthSetupTest, CancelChangesNothingAndTheCycleGoesOn) {
  Begin();
  Open();
  Type(Qth().TextQthNorth, "5830");
  Qth().Command22.Click();
  ExpectOwn(5817.860, 391.394);
  EXPECT_TRUE(station->program->Timer1().Enabled());
  Report();
  EXPECT_EQ(station->State().Stores.Moni1Records.Count(), 1);
  Open();
  EXPECT_NE(Qth().TextQthNorth.Text, "5830");
}

// A first start shows it as help: the station listens until its operator begins.
TEST_F(QthSetupTest, TheHelpOfAFirstStartHoldsNothingUntilTheOperatorBegins) {
  Begin("UUN=0\r\nUUE=0\r\n");
  ASSERT_TRUE(Qth().Frame2.Visible);
  station->Hear("QX2CD", "=5231.00N/01324.00E>hello");
  station->Ticks(1);
  EXPECT_EQ(station->State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_FALSE(Qth().QthRests.Visible);
  station->Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0});
  EXPECT_TRUE(Qth().QthRests.Visible);
  const double east = View().CentreEastKm;
  Report();
  EXPECT_EQ(View().CentreEastKm, east);
  Qth().QthOk.Click();
  EXPECT_EQ(View().OwnEastKm, east);
}

TEST_F(QthSetupTest, TypingBeginsItToo) {
  Begin("UUN=0\r\nUUE=0\r\n");
  station->Ticks(1);
  Qth().TextQthNorth.GotFocus();
  EXPECT_FALSE(station->program->Timer1().Enabled());
  station->Controls().Map.Command2.Click();
  Report();
  EXPECT_EQ(station->State().Stores.Moni1Records.Count(), 0);
}

}  // namespace
}  // namespace zepril

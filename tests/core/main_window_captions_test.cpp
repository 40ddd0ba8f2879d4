// The main window's own texts, letter for letter.
#include "core/main_window_captions.h"

#include <gtest/gtest.h>

#include "core/main_window_controls.h"

namespace zepril {
namespace {

TEST(MainWindowCaptions, PanelsCarryTheirTexts) {
  MainWindowControls c;
  SetInitialControls(c);
  EXPECT_EQ(c.Qth.Frame2.Caption, "USER QTH SETUP: CENTER THE MAP TO YOUR QTH!");
  EXPECT_EQ(c.Qth.Command22.Caption, "CANCEL");
  EXPECT_EQ(c.Places.Label14.Caption, "DELETE POINT: CLEAR TEXT  /  CREATE POINT: TYPE TEXT");
  // The blank in front is part of it.
  EXPECT_EQ(c.Places.Command64.Caption, " POS->CENTER");
  EXPECT_EQ(c.Places.Command67.Caption, "OPEN LINK");
  EXPECT_EQ(c.Iono.Frame18.Caption, "Input of ionospherical data");
}

struct TipRow {
  const Control& Subject;
  const char* Text;
};

TEST(MainWindowCaptions, ToolTipsOfTheMapAreShownWithATenInTheLanguage) {
  MainWindowControls c;
  SetInitialControls(c);
  const TipRow rows[] = {
      {c.Map.Command72, "Background map: normal-dark-bright / Rclick: Show palette (16-inks)"},
      {c.Palette.Command43, "Reset and close palette"},
      {c.Map.Option1, "Recenters map to USER QTH / Rclick: USER QTH SETUP"},
      {c.Map.Option2, "Recenters map to MONI 1 QTH"},
      {c.Map.Command1, "Zooming out to the next scale level"},
      {c.Map.Command2, "Zooming in to the next scale level"},
      {c.Map.Command7, "Zooming out factor 2"},
      {c.Map.Command8, "Zooming in factor 2"},
      {c.Map.Check14,
       "Show GPS tracking data from selected file / Rclick: Scrolling file selection"},
      {c.Tracks.Frame10, "Center map to end of TRK"},
      {c.Tracks.Command68, "Select previous TRK file"},
      {c.Map.Command73, "POIs: 0 / points / points + text"},
      {c.Places.Combo2, "POI file name / Rclick: Create new file"},
      {c.Readouts.Label1,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label2,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Map.Picture1, "POI, TRK, PIC, STN, SUN"}};
  for (const TipRow& row : rows)
    EXPECT_EQ(row.Subject.ToolTip, row.Text);
  SetMainWindowLabels(c, 1);
  for (const TipRow& row : rows)
    EXPECT_EQ(row.Subject.ToolTip, "") << row.Text;
}

}  // namespace
}  // namespace zepril

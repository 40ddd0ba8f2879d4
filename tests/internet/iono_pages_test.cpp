// The numbers on the two pages, and pages that have changed.
#include "internet/iono_pages.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

// ---- The observatory's page -----------------------------------------------------------------

TEST(IonoPageA, KIsTheMeanOfBothToOneDecimalRoundedDown) {
  const struct {
    const char* Text;
    double K;
  } rows[] = {{"KIEL 3-HOUR K 3\r\nKIEL CURRENT K 4\r\n", 3.5},
              {"KIEL 3-HOUR K 3.3 KIEL CURRENT K 3.4", 3.3},
              {"KIEL 3-HOUR K 1.67 KIEL CURRENT K 2", 1.8},
              {"KIEL 3-HOUR K 0 KIEL CURRENT K 0", 0.0},
              {"KIEL 3-HOUR K 9 KIEL CURRENT K 9", 9.0},
              {"now Kiel current k   2, Kiel 3-hour K .4 of 9", 1.2}};
  for (const auto& row : rows) {
    const auto k = ParseIonoPageA(row.Text).KpIndex;
    ASSERT_TRUE(k) << row.Text;
    EXPECT_DOUBLE_EQ(*k, row.K) << row.Text;
  }
}

TEST(IonoPageA, KTakesBothMarksAndTheirNumbers) {
  for (const char* text :
       {"", "KIEL 3-HOUR K 3", "KIEL CURRENT K 4", "KIEL 3-HOUR K 3 KIEL CURRENT K",
        "KIEL 3-HOUR K - KIEL CURRENT K 4", "KIEL 3-HOUR K 3 KIEL CURRENT K N/A",
        "KIEL 3-HOUR K 3 KIEL CURRENT K 99", "KIEL 3-HOUR K -1 KIEL CURRENT K 4"}) {
    EXPECT_FALSE(ParseIonoPageA(text).KpIndex) << text;
  }
}

TEST(IonoPageA, SunspotsStandBehindTheirMark) {
  EXPECT_EQ(ParseIonoPageA("a SUNSPOT NUMBER 101 b").SunspotNumber, 101.0);
  EXPECT_EQ(ParseIonoPageA("Sunspot Number   0").SunspotNumber, 0.0);
  EXPECT_FALSE(ParseIonoPageA("SUNSPOT NUMBER").SunspotNumber);
  EXPECT_FALSE(ParseIonoPageA("SUNSPOT NUMBER: 101").SunspotNumber);
  EXPECT_FALSE(ParseIonoPageA("SUNSPOT NUMBER 4711").SunspotNumber);
  EXPECT_FALSE(ParseIonoPageA("SUNSPOT NUMBER 1e300").SunspotNumber);
}

// ---- The daily text -------------------------------------------------------------------------

const std::string kDay =
    "E.  Daily Indices: (real-time preliminary/estimated values)\r\n"
    "10 cm 178  SSN 101  Afr/Ap 008/012   X-ray Background B9.9\r\n"
    "Daily Proton Fluence (flux accumulation over 24 hrs)\r\n"
    "GT 1 MeV 3.1e+05   GT 10 MeV 1.4e+04 p/(cm2-ster-day)\r\n"
    "Daily Electron Fluence\r\n"
    "GT 2 MeV 1.80e+07 e/(cm2-ster-day)\r\n"
    "3 Hour K-indices\r\n";
const std::string kIndices =
    "Boulder 1 3 2 2 2 3 2 2 Planetary 2 3 2 2 3 3 2 4\r\nF.  Comments\r\n";

TEST(IonoPageB, GivesSunspotsAndTheLastPlanetaryK) {
  const IonoPageBValues values = ParseIonoPageB(kDay + kIndices);
  EXPECT_TRUE(values.IsPage);
  EXPECT_EQ(values.SunspotNumber, 101.0);
  EXPECT_EQ(values.KpIndex, 4.0);
}

TEST(IonoPageB, LinesMayEndInAnyWayAndWithBlanks) {
  for (const char* end : {"\n", "\r", "\r\n", "  \r\n"}) {
    EXPECT_EQ(ParseIonoPageB(kDay + " planetary 2 3 5" + end + "x").KpIndex, 5.0);
  }
}

TEST(IonoPageB, IsNoneUpToThreeHundredCharacters) {
  const std::string page = " SSN 101 ";
  EXPECT_FALSE(ParseIonoPageB(page + std::string(300 - page.size(), '.')).IsPage);
  const IonoPageBValues values = ParseIonoPageB(page + std::string(301 - page.size(), '.'));
  EXPECT_TRUE(values.IsPage);
  EXPECT_EQ(values.SunspotNumber, 101.0);
  EXPECT_FALSE(values.KpIndex);
}

TEST(IonoPageB, WithoutSunspotsItIsNone) {
  EXPECT_FALSE(ParseIonoPageB(std::string(400, 'x') + kIndices).IsPage);
  EXPECT_FALSE(ParseIonoPageB(std::string(400, 'x') + kIndices).KpIndex);
}

TEST(IonoPageB, FourCharactersAreTheSunspots) {
  const std::string rest(300, '.');
  EXPECT_EQ(ParseIonoPageB("a SSN 1234" + rest).SunspotNumber, 123.0);
  EXPECT_EQ(ParseIonoPageB("a SSN   12" + rest).SunspotNumber, 1.0);
  EXPECT_FALSE(ParseIonoPageB("a SSN  -1" + rest).SunspotNumber);
  EXPECT_FALSE(ParseIonoPageB("a SSN ***" + rest).SunspotNumber);
}

TEST(IonoPageB, KMustStandAtTheEndOfItsLine) {
  for (const char* line : {" Planetary 2 3", " Planetary \r\n", " Planetary 2 -1\r\n",
                           " Planetary 2 x\r\n", " Planetary 2 33\r\n", "Planetary2 3\r\n"}) {
    EXPECT_FALSE(ParseIonoPageB(kDay + line).KpIndex) << line;
  }
}

}  // namespace
}  // namespace zepril

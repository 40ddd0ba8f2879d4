// A configuration that somebody has spoilt: whatever it holds, a report is a line of printable
// characters, and the program goes on.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/on_air_support.h"

namespace zepril {
namespace {

class OddSettings : public ::testing::TestWithParam<const char*> {};

// Start, an hour with reports and objects, TX SETUP confirmed as it stands, an hour more, stop.
void LiveTwoHours(RadioMode mode, const std::string& odd) {
  StationHarness station(kOnAirSettings +
                         ("MODEM=" + WholeNumber(static_cast<int>(mode)) + "\r\n") + odd);
  std::vector<std::string> frames;
  const auto note = [&](std::string_view bytes) {
    if (IsEngine(mode) ? bytes[4] == 'V' : bytes[0] == '=' || bytes[0] == ';') {
      frames.emplace_back(bytes);
    }
  };
  station.modem.OnWrite = note;
  station.socket.OnSend = [&, answer = station.socket.OnSend](std::string_view bytes) {
    note(bytes);
    answer(bytes);
  };
  ASSERT_TRUE(station.Start());
  TransmitControls& transmit = station.Controls().Transmit;
  for (int hours = 0; hours < 2; ++hours) {
    for (CheckBox* box : {&transmit.Check6, &transmit.Check18}) {
      box->Value = 1;
      box->Click();
    }
    station.clock.Run(3600.0);
    transmit.Check6.RightClick();
    station.Controls().TxSetup.TxOk.Click();
  }
  EXPECT_TRUE(station.program->Timer1().Enabled());
  station.program->Stop(true);
  for (const std::string& frame : frames) {
    const std::size_t begin = frame.find_last_of("=;");
    ASSERT_NE(begin, std::string::npos);
    const std::string text = frame.substr(begin, frame.size() - begin - (IsEngine(mode) ? 0 : 1));
    EXPECT_LE(text.size(), 200U);
    for (const char c : text)
      EXPECT_GE(Asc(c), 32) << ::testing::PrintToString(frame);
  }
}

TEST_P(OddSettings, GiveWholeLinesOrNone) {
  for (const RadioMode mode : {RadioMode::AgwRemote, RadioMode::Pk232, RadioMode::ScsTnc}) {
    SCOPED_TRACE(static_cast<int>(mode));
    LiveTwoHours(mode, GetParam());
  }
}

INSTANTIATE_TEST_SUITE_P(
    EveryField, OddSettings,
    ::testing::Values(
        "TXSY=0\r\nOSYM=0\r\n", "TXSY=-5\r\nOSYM=-32768\r\n", "TXSY=95\r\nOSYM=100\r\n",
        "TXSY=195\r\nOSYM=200\r\n", "TXSY=201\r\nOSYM=32767\r\n", "TXSY=x\r\nOSYM=\r\n",
        "UUN=0.001\r\nUUE=0\r\n", "UUN=-9999\r\nUUE=99999\r\n", "UUN=1E300\r\nUUE=-1E300\r\n",
        "UUN=nan\r\nUUE=inf\r\n", "OUTN=1E18\r\nOUTE=1E18\r\n", "HBAUD=\r\nXBAUD=\r\n",
        "HBAUD=-1\r\nXBAUD=abc\r\n", "TBAUD=\r\nSBAUD=fast\r\n", "COM=-1\r\nSCOMP=1E9\r\n",
        "TXON=60\r\nUTCD=-32768\r\n", "TXON=1\r\nUTCD=32767\r\n", "TXAF=-32768\r\nTXAFC=x\r\n",
        "TXPA=A,B,C,D,E,F,G,H,I,J,K,L\r\nTXTO=\r\n", "TXPA=,,,\r\nTXTO=,\r\n",
        "TXPA=WIDE1-1 WIDE2-1;X\r\nTXTO=ABCDEFGHIJKLMNOP\r\n", "TXID=99\r\n", "TXID=-\r\n",
        "TXI1A=-1\r\nTXI2A=7\r\nTXI3A=32767\r\n", "TXI2=\r\nTXI5={\r\n",
        "TXSS=\xFE\r\nTXSY=104\r\n", "ONAM=A VERY LONG NAME OF AN OBJECT\r\n",
        "OTXT=\xA0\xFF\x80\r\nOSYN=##\r\n", "DIGI=255\r\nTXTIM=255\r\n", "MSYS=U99\r\n",
        "MSYS=UXX\r\n", "TXON=-5\r\nTXPA=A,B,\r\n",
        "TXI2=a\x1BQ\x03K\r\nONAM=\x1BQ\r\nOTXT=\x03\r\n",
        "USER=QX\x1BQ\r\nTXID=\x03\r\nTXTO=\x1B\r\nTXPA=\x03,\x1BQ\r\nXBAUD=\x1B\r\n"));

}  // namespace
}  // namespace zepril

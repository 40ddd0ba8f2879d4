// A whole station in virtual time whose every transmitted byte is written down with its second.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/station_support.h"

namespace zepril {

// Something that left the program, with the seconds since its start.
struct Outgoing {
  double Seconds = 0.0;
  std::string Bytes;
};

inline void PrintTo(const Outgoing& sent, std::ostream* out) {
  *out << std::fixed << std::setprecision(3) << sent.Seconds << " s "
       << ::testing::PrintToString(sent.Bytes);
}

inline constexpr LocalTime kNoonBeforeALeapDay{2024, 2, 28, 12, 0, 0};

// QX7KB-10 by way of two digipeaters, with two of six info lines and an object.
inline constexpr const char* kOnAirSettings =
    "TXID=10\r\nTXON=10\r\nTXTO=ZEPR\r\nTXPA=WIDE1-1,WIDE2-1\r\nTXSY=30\r\nHBAUD=300\r\n"
    "TXI1=one\r\nTXI1A=0\r\nTXI2=Test\r\nTXI2A=1\r\nTXI3=three\r\nTXI3A=0\r\nTXI4A=0\r\n"
    "TXI5=QRV 144.800 MHz\r\nTXI5A=1\r\nTXI6A=0\r\nUTCD=2\r\nUUN=5395.276\r\nUUE=-10.523\r\n"
    "ONAM=WORKS\r\nOTXT=one lane\r\nOSYM=82\r\nOUTN=5817.860\r\nOUTE=391.394\r\n";

inline std::string Zeros(std::string text, std::size_t width) {
  text.resize(width, '\0');
  return text;
}

inline std::string EngineFrame(char kind, const std::string& to, const std::string& data) {
  return std::string(4, '\0') + kind + std::string(3, '\0') + Zeros("QX7KB-10", 10) +
         Zeros(to, 10) + Chr(static_cast<int>(data.size())) + std::string(3, '\0') + "ZEPR" + data;
}

inline bool IsEngine(RadioMode mode) {
  return mode == RadioMode::AgwLocal || mode == RadioMode::AgwRemote;
}

// `text` as it leaves the program.
inline std::string Framed(RadioMode mode, const std::string& text) {
  if (!IsEngine(mode)) return text + "\r";
  return EngineFrame('V', "ZEPR", "\x02" + Zeros("WIDE1-1", 10) + Zeros("WIDE2-1", 10) + text);
}

// A station whose every byte is written down.
class OnAirStation : public ::testing::TestWithParam<RadioMode> {
 protected:
  explicit OnAirStation(const std::string& more_settings = {})
      : station(kOnAirSettings + ("MODEM=" + WholeNumber(static_cast<int>(GetParam())) + "\r\n") +
                more_settings) {
    station.clock.SetNow(kNoonBeforeALeapDay);
    station.modem.OnWrite = [this](std::string_view bytes) { WriteDown(bytes); };
    station.socket.OnSend = [this, answer = station.socket.OnSend](std::string_view bytes) {
      WriteDown(bytes);
      answer(bytes);
    };
  }
  void WriteDown(std::string_view bytes) {
    sent.push_back({station.clock.MonotonicSeconds(), std::string(bytes)});
  }
  TransmitControls& Transmit() { return station.Controls().Transmit; }
  void Press(CheckBox& box, int value) {
    box.Value = value;
    box.Click();
  }
  void SwitchOn(CheckBox& box) { Press(box, 1); }
  double Now() const { return station.clock.MonotonicSeconds(); }
  void RunTo(double seconds) { station.clock.Run(seconds - Now()); }

  // All that was sent since the last look is this, the times counted from `origin`.
  void ExpectSent(const std::vector<Outgoing>& expected, double origin = 0.0) {
    for (std::size_t at = 0; at < std::min(sent.size(), expected.size()); ++at) {
      ASSERT_EQ(sent[at].Bytes, expected[at].Bytes)
          << "number " << at << ": " << ::testing::PrintToString(sent[at]) << ", expected "
          << ::testing::PrintToString(expected[at]);
      ASSERT_NEAR(sent[at].Seconds - origin, expected[at].Seconds, 0.0005)
          << "number " << at << ": " << ::testing::PrintToString(sent[at]);
    }
    ASSERT_EQ(sent.size(), expected.size())
        << "the first too many or missing: "
        << ::testing::PrintToString(sent.size() > expected.size() ? sent[expected.size()]
                                                                  : expected[sent.size()]);
    sent.clear();
  }

  StationHarness station;
  std::vector<Outgoing> sent;
};

inline std::string NameOf(const ::testing::TestParamInfo<RadioMode>& info) {
  switch (info.param) {
    case RadioMode::AgwLocal:
      return "AgwLocal";
    case RadioMode::Pk232:
      return "Pk232";
    case RadioMode::AgwRemote:
      return "AgwRemote";
    case RadioMode::None:
      return "None";
    case RadioMode::ScsTnc:
      return "ScsTnc";
    case RadioMode::ScsPtc:
      return "ScsPtc";
  }
  return "Unknown";
}

}  // namespace zepril

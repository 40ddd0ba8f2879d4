// Varied packets for measuring, the same ones every time: plain, compressed and Mic-E positions,
// objects, messages, status, telemetry, digipeated and direct, from a few hundred stations that
// move.
#pragma once

#include <cstdint>
#include <string>

namespace zepril {

class Tnc2Lines {
 public:
  // The next packet, without its line end.
  std::string Next() {
    const int station = Pick(700);
    std::string line = Call(station) + ">" + Destination(station) + Path() + ":";
    switch (Pick(10)) {
      case 0:
        return line + ">On the air since morning";
      case 1:
        return line + ":N0CALL   :Hello from " + Call(station) + "{" + Digits(Pick(100), 2);
      case 2:
        return line + ";" + Padded("OBJ" + Digits(station, 3)) + "*" + Stamp() + Position(station) +
               "Event";
      case 3:
        return line + "@" + Stamp() + Position(station) + "Mobile " + Digits(Pick(1000), 3);
      case 4:
        return line + "!/" + Base91(4) + Base91(4) + ">" + Base91(2) + "!" + " compressed";
      case 5:
        return line + "T#" + Digits(Pick(1000), 3) + ",120,034,255,000,013,00000000";
      case 6:
        return Call(station) + ">" + MicEDestination() + Path() + ":`(_f" + Base91(3) + "j/]text " +
               Digits(Pick(1000), 3);
      default:
        return line + "=" + Position(station) + "Station " + Digits(Pick(10000), 4) + " 73";
    }
  }

 private:
  int Pick(int count) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(count));
  }
  static std::string Digits(int value, int width) {
    std::string text(static_cast<std::size_t>(width), '0');
    for (int i = width; i-- > 0; value /= 10)
      text[static_cast<std::size_t>(i)] = static_cast<char>('0' + value % 10);
    return text;
  }
  static std::string Call(int station) {
    std::string call = "N0";
    call += static_cast<char>('A' + station % 26);
    call += static_cast<char>('A' + station / 26 % 26);
    call += 'X';
    return station % 3 == 0 ? call + "-" + Digits(station % 9 + 1, 1) : call;
  }
  static std::string Padded(std::string name) {
    name.resize(9, ' ');
    return name;
  }
  static std::string Destination(int station) { return "APZ" + Digits(station % 1000, 3); }
  std::string Path() {
    switch (Pick(4)) {
      case 0:
        return ",WIDE1-1,WIDE2-1";
      case 1:
        return ",N0DIG*,WIDE2-1";
      case 2:
        return ",N0DIG,N0EDG*";
      default:
        return "";
    }
  }
  std::string Stamp() {
    return Digits(Pick(28) + 1, 2) + Digits(Pick(24), 2) + Digits(Pick(60), 2) + "z";
  }
  std::string Position(int station) {
    return Digits(46 + station % 12, 2) + Digits(Pick(60), 2) + "." + Digits(Pick(100), 2) + "N/" +
           Digits(5 + station % 20, 3) + Digits(Pick(60), 2) + "." + Digits(Pick(100), 2) + "E>";
  }
  std::string Base91(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += static_cast<char>('!' + Pick(90));
    return text;
  }
  std::string MicEDestination() {
    std::string text = "S";
    for (int i = 0; i < 5; ++i)
      text += static_cast<char>((i == 2 ? 'P' : '0') + Pick(10));
    return text;
  }

  std::uint64_t state_ = 20240115;
};

}  // namespace zepril

// What the fields and buttons of TX SETUP do to each other, as functions of their texts.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace zepril {

// ---- Interval -------------------------------------------------------------------------------

// The interval field after its text has changed: minutes from 1 to 60 stay as typed, below 0 is
// "60", and 0, more than 60 or no number is "MANUAL".
std::string IntervalText(std::string_view typed);
// The value of the field one up or down: up from 60 is "MANUAL", down from "MANUAL" is "60".
std::string SteppedInterval(std::string_view text, int direction);
// "TX 10", or "TX !" for an interval of 0.
std::string TxCaption(int interval_minutes);

// ---- Symbol ---------------------------------------------------------------------------------

// One row of the symbol table down (-1) or up (+1): stops at 1 and 194, and leaps over 95 to 100.
int SteppedSymbol(int index, int direction);
// Of a longer input only the last character counts, upper case; blanks around it do not.
std::string OverlayOf(std::string_view typed);

// ---- Radio speed and second mode ------------------------------------------------------------

struct SpeedChoice {
  std::string BaudMode = "300";    // "300", "300R", "1200", "9600", "19200"
  std::string CrossMode = "NONE";  // "NONE", "R300", "300", "1200", "9600", "19200"
  bool HfDual = false;
  bool Digi = false;
  friend bool operator==(const SpeedChoice&, const SpeedChoice&) = default;
};

// A speed was chosen: the digipeater goes off; HF-DUAL and the second mode stay only for the other
// of the two 300 Bd modes.
SpeedChoice WithSpeed(SpeedChoice choice, const std::string& baud_mode);
// The second mode stepped through its cycle, 1 or -1: "19200", "9600", "1200", "300", "R300",
// "NONE".
SpeedChoice WithSecondModeStepped(SpeedChoice choice, int direction);
SpeedChoice WithHfDualOff(SpeedChoice choice);

// HF-DUAL switched on also touches path and interval.
struct HfDualFields {
  SpeedChoice Speeds;
  std::string Path;
  std::string Interval;
  friend bool operator==(const HfDualFields&, const HfDualFields&) = default;
};
HfDualFields WithHfDualOn(HfDualFields fields);

// ---- Path and texts -------------------------------------------------------------------------

// The path field with the caption of a quick button behind it.
std::string PathWith(std::string_view path, std::string_view element);

// Line 0 to 5 that a memory button's text goes into: the last one with "MHZ" when the text has it,
// else the one that had the focus (0 to 5); nothing when there is none.
std::optional<std::size_t> LineForMemory(std::string_view text,
                                         const std::array<std::string, 6>& lines,
                                         std::optional<std::size_t> focused);

// How a packet of the own station comes back through a digipeater: "QX7KB-10*>WIDE1-1>ZEPR". Blanks
// around an element of the path, and empty elements, do not come back.
std::string OwnHeaderPatternOf(std::string_view call, std::string_view path,
                               std::string_view destination);

}  // namespace zepril

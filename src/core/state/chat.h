// Short messages.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zepril {

// The colour of a chat line is its state.
namespace chat_colours {

inline constexpr std::uint32_t kNew = 250;         // five sends are left; each adds 1
inline constexpr std::uint32_t kNewQuery = 252;    // three
inline constexpr std::uint32_t kLastSend = 254;    // one
inline constexpr std::uint32_t kGivenUp = 0x5FF0;  // in place of the value after the last
inline constexpr std::uint32_t kAcknowledged = 128;
inline constexpr std::uint32_t kPingAnswer = 160;  // the own answer
inline constexpr std::uint32_t kForMe = 0x6000;
inline constexpr std::uint32_t kBetweenOthers = 0x505050;

// The pass of repeats still sends the line.
constexpr bool HasSendsLeft(std::uint32_t colour) {
  return colour >= kNew && colour <= kLastSend;
}

// Kept: a line that was not repeated yet takes no acknowledgement, one that was given up does.
constexpr bool TakesAck(std::uint32_t colour) {
  return colour > kNew && colour < 0x5FFF;
}

// Waits for the answer to a ping.
constexpr bool IsOpen(std::uint32_t colour) {
  return HasSendsLeft(colour) || colour == kGivenUp;
}

}  // namespace chat_colours

struct ChatLine {
  std::string Text;  // at most kLongestChatLine characters; empty: nothing yet
  std::uint32_t Colour = 0;
  std::uint32_t FirstColour = 0;  // as it was when the line came
  std::string Trouble;            // why its last send did not leave; empty: it did
};

inline constexpr std::size_t kChatLines = 8;
inline constexpr std::size_t kLongestChatLine = 100;

struct ChatState {
  std::array<ChatLine, kChatLines> Lines;  // newest last
  int ChatSerial = 0;                      // last message number used, 0 to 99
  int AutoAnswerOn = 0;
  std::string AutoAnswerText;
  std::string ChatTxText;     // the message line under transmission
  int ChatPollCountdown = 0;  // ticks to the next pass of repeats
  std::string LogTrouble;     // why the log was not written, in words; empty when it was
  int Unseen = 0;             // messages for me that came while nobody looked
};

}  // namespace zepril

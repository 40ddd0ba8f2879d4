// Virtual key codes of the keys that mean something to the program's logic (`KeyPress::Code`).
#pragma once

namespace zepril {

inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;
inline constexpr int kLeftKey = 37;
inline constexpr int kUpKey = 38;
inline constexpr int kRightKey = 39;
inline constexpr int kDownKey = 40;

constexpr bool IsArrowKey(int code) {
  return code >= kLeftKey && code <= kDownKey;
}

}  // namespace zepril

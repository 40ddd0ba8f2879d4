// Code page 1252 to UTF-8 and back. The five bytes that the code page leaves open (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) map to the control characters of the same number, so that every byte survives.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zepril {

// Unicode code point of a byte.
char32_t CodePointOfByte(unsigned char byte);
// Byte of a code point; nothing in the code page: `otherwise`.
unsigned char ByteOfCodePoint(char32_t code_point, unsigned char otherwise = '?');

// A byte that is no character to be seen: below 32, or 127.
constexpr bool IsControlCharacter(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code < 32 || code == 127;
}

std::string Utf8FromCodePage(std::string_view text);
// Malformed UTF-8 becomes "?".
std::string CodePageFromUtf8(std::string_view text);
// True when the UTF-8 text can be held in the code page without loss.
bool FitsCodePage(std::string_view utf8);

}  // namespace zepril

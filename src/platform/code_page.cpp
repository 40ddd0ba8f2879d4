// The table of the bytes 0x80 to 0x9F, and the way through UTF-8.
#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace zepril {
namespace {

// Code points of the bytes 0x80 to 0x9F; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kMalformed = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Takes one code point off the front of `text`.
char32_t NextCodePoint(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (lead < 0x80) return lead;
  std::size_t more = 0;
  char32_t value = 0;
  if (lead >= 0xC2 && lead < 0xE0) {
    more = 1;
    value = lead & 0x1FU;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    more = 2;
    value = lead & 0x0FU;
  } else if (lead >= 0xF0 && lead < 0xF5) {
    more = 3;
    value = lead & 0x07U;
  } else {
    return kMalformed;
  }
  for (; more > 0; --more) {
    if (text.empty() || (static_cast<unsigned char>(text.front()) & 0xC0U) != 0x80U) {
      return kMalformed;
    }
    value = (value << 6) | (static_cast<unsigned char>(text.front()) & 0x3FU);
    text.remove_prefix(1);
  }
  return value;
}

}  // namespace

char32_t CodePointOfByte(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80U] : byte;
}

unsigned char ByteOfCodePoint(char32_t code_point, unsigned char otherwise) {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point < 0x100)) {
    return static_cast<unsigned char>(code_point);
  }
  const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), code_point);
  if (found == kUpperControls.end()) return otherwise;
  return static_cast<unsigned char>(0x80 + (found - kUpperControls.begin()));
}

std::string Utf8FromCodePage(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text)
    AppendUtf8(out, CodePointOfByte(static_cast<unsigned char>(c)));
  return out;
}

std::string CodePageFromUtf8(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty())
    out += static_cast<char>(ByteOfCodePoint(NextCodePoint(text)));
  return out;
}

bool FitsCodePage(std::string_view utf8) {
  while (!utf8.empty()) {
    if (ByteOfCodePoint(NextCodePoint(utf8), 0) == 0) return false;
  }
  return true;
}

}  // namespace zepril

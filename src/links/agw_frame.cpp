// Lays out and reads the 36 bytes of a frame's header.
#include "links/agw_frame.h"

#include <algorithm>

#include "core/sent_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kCallField = 10;
constexpr std::size_t kLongestData = 65535;
constexpr int kMostDigipeaters = 255;

std::string CallField(std::string_view call) {
  std::string field = Upper(Trim(WithoutControlCharacters(call)));
  field.resize(kCallField, '\0');
  return field;
}

std::string CallText(std::string_view field) {
  return std::string(Trim(field.substr(0, std::min(field.find('\0'), field.size()))));
}

}  // namespace

AgwFrameFields ReadAgwHeader(std::string_view bytes) {
  AgwFrameFields fields;
  fields.Port = Asc(bytes[0]);
  fields.Kind = bytes[4];
  fields.Pid = Asc(bytes[6]);
  fields.From = CallText(bytes.substr(8, kCallField));
  fields.To = CallText(bytes.substr(18, kCallField));
  for (int at = 3; at >= 0; --at) {
    fields.DataLength = (fields.DataLength << 8) |
                        static_cast<std::uint32_t>(Asc(bytes[28 + static_cast<std::size_t>(at)]));
  }
  fields.User = bytes.substr(32, 4);
  return fields;
}

std::string MakeAgwFrame(int port, char kind, std::string_view from, std::string_view to,
                         std::string_view data) {
  const std::string_view held = data.substr(0, kLongestData);
  std::string frame;
  frame += Chr(port);
  frame.append(3, '\0');
  frame += kind;
  frame.append(3, '\0');
  frame += CallField(from);
  frame += CallField(to);
  frame += Chr(static_cast<int>(held.size() % 256));
  frame += Chr(static_cast<int>(held.size() / 256));
  frame.append(2, '\0');
  frame += "ZEPR";
  frame += held;
  return frame;
}

std::string AgwUnprotoData(std::string_view path, std::string_view text) {
  std::string digipeaters;
  int count = 0;
  for (std::string_view element : Split(path, ',')) {
    if (Trim(WithoutControlCharacters(element)).empty()) continue;
    if (count == kMostDigipeaters) break;
    digipeaters += CallField(element);
    ++count;
  }
  return std::string(1, Chr(count)) + digipeaters + std::string(text);
}

int AgwPortOf(std::string_view baud_mode, int held) {
  if (Val(baud_mode) == 300.0) return 0;
  return baud_mode == "1200" ? 1 : held;
}

}  // namespace zepril

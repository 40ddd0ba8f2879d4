// Calls, speeds and commands as the modems read them.
#include "links/modem_lines.h"

#include "core/sent_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr int kMostBaud = 4'000'000;

}  // namespace

std::string CallText(const std::string& call, const std::string& ssid) {
  if (ssid.empty() || call.find('-') != std::string::npos) return call;
  return call + "-" + ssid;
}

int BaudOf(const std::string& text) {
  return WholeVal(text, 0, kMostBaud).value_or(0);
}

void AddLine(ModemScript& script, const std::string& line, double wait_seconds, const char* end) {
  script.Send(WithoutControlCharacters(line) + end, wait_seconds);
}

void AddEsc(ModemScript& script, const std::string& command, double wait_seconds, const char* end) {
  if (command.empty()) return;
  script.Send("\x1B" + WithoutControlCharacters(command) + end, wait_seconds);
}

std::string ScsSpeedCommand(const std::string& before, const std::string& baud_mode) {
  if (baud_mode == "300R") return before + "R300";
  for (const char* speed : {"300", "1200", "9600", "19200"}) {
    if (baud_mode == speed) return before + speed;
  }
  return {};
}

std::string ScsDevice(const RadioState& radio) {
  return ShortNumber(radio.ScsPort);
}

std::string ScsSpeed(const RadioState& radio) {
  return radio.ScsBaud;
}

}  // namespace zepril

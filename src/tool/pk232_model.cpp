// The commands of a PK-232 and what each changes or answers.
#include "tool/pk232_model.h"

#include <algorithm>
#include <array>

#include "core/text_fields.h"
#include "tool/tnc2.h"

namespace zepril {
namespace {

constexpr std::string_view kPrompt = "cmd:";
constexpr std::string_view kBanner = "\r\nZEPRIL model of a PK-232\r\n";

constexpr char kBreak = 3;  // leaves converse mode
constexpr char kCancelLine = 24;
constexpr char kHostBegin = 1;  // a host block, up to
constexpr char kHostEnd = 23;   // its end
constexpr std::size_t kLongestHostBlock = 300;
constexpr char kKissEnd = '\xC0';
constexpr char kKissReturn = '\xFF';

constexpr auto kText = CommandValue::Text;
constexpr auto kOnOff = CommandValue::OnOff;
constexpr auto kAction = CommandValue::Action;

// Of two that a short form could mean the first holds.
constexpr std::array<ModemCommand, 23> kCommands{{
    {"8BITCONV", "OFF", kOnOff, 2}, {"ACRDISP", "0", kText, 2},    {"ALFDISP", "ON", kOnOff, 2},
    {"AWLEN", "7", kText, 2},       {"CONOK", "ON", kOnOff, 4},    {"CONVERSE", "", kAction, 4},
    {"DFROM", "ALL", kText, 2},     {"DIGIPEAT", "ON", kOnOff, 3}, {"ECHO", "ON", kOnOff, 1},
    {"HBAUD", "1200", kText, 2},    {"K", "", kAction, 1},         {"KISS", "OFF", kOnOff, 4},
    {"MFILTER", "$80", kText, 3},   {"MFROM", "ALL", kText, 3},    {"MONITOR", "4", kText, 1},
    {"MYCALL", "PK232", kText, 2},  {"MYALIAS", "NONE", kText, 3}, {"PACKET", "", kAction, 2},
    {"PASSALL", "OFF", kOnOff, 3},  {"RESTART", "", kAction, 7},   {"TBAUD", "1200", kText, 2},
    {"UNPROTO", "CQ", kText, 1},    {"VHF", "ON", kOnOff, 1},
}};

const ModemCommand* FindCommand(std::string_view word) {
  const auto* const found =
      std::find_if(kCommands.begin(), kCommands.end(), [&](const ModemCommand& command) {
        return word.size() >= command.Shortest && command.Name.starts_with(word);
      });
  return found == kCommands.end() ? nullptr : found;
}

std::string SevenBits(std::string text) {
  for (char& c : text)
    c = Chr(Asc(c) & 0x7F);
  return text;
}

}  // namespace

Pk232Model::Pk232Model() {
  Pk232Model::Reset();
}

void Pk232Model::Reset() {
  SetFirstValues(kCommands);
  converse_ = false;
  host_bytes_ = 0;
}

std::string Pk232Model::Heard(const AirPacket& packet) const {
  std::string normal;
  if (Val(Setting("MONITOR")) == 0 || Setting("MFROM") == "NONE") return normal;
  std::string line = packet.From + '>' + packet.To;
  if (!packet.Via.empty()) line += ',' + packet.Via;
  Tnc2ToNormal(line + ':' + packet.Information, normal);
  return normal;
}

bool Pk232Model::TakeControl(char byte) {
  if (byte == kBreak) {
    converse_ = false;
    host_bytes_ = 0;
    DropLine();
    Print("\r\n");
    Print(kPrompt);
    return true;
  }
  if (byte == kCancelLine) {
    DropLine();
    return true;
  }
  if (converse_) return false;
  if (host_bytes_ > 0) {
    host_bytes_ = byte == kHostEnd || host_bytes_ == kLongestHostBlock ? 0 : host_bytes_ + 1;
    return true;
  }
  if (byte == kHostBegin) {
    host_bytes_ = 1;
    return true;
  }
  // What ends KISS mode, and the stars by which the line's speed is found, mean nothing here.
  return byte == kKissEnd || byte == kKissReturn || (byte == '*' && AtLineBegin());
}

void Pk232Model::TakeLine(const std::string& line) {
  if (converse_) {
    if (!line.empty()) Transmit(line);
    return;
  }
  if (!Trim(line).empty()) Obey(std::string(Trim(line)));
  if (!converse_) Print(kPrompt);
}

void Pk232Model::Obey(const std::string& line) {
  TellCommand(line);
  const std::string upper = Upper(line);
  const std::size_t blank = upper.find(' ');
  const ModemCommand* command = FindCommand(std::string_view(upper).substr(0, blank));
  const std::string value(blank == std::string::npos ? "" : Trim(upper.substr(blank)));
  if (command == nullptr) {
    Print("?What?\r\n");
  } else if (command->Value == CommandValue::Action) {
    Act(*command);
  } else if (value.empty()) {
    Print(PadRight(command->Name, 9) + Setting(command->Name) + "\r\n");
  } else if (command->Value == CommandValue::OnOff && value != "ON" && value != "OFF") {
    Print("?bad\r\n");
  } else {
    Change(*command, value);
  }
}

void Pk232Model::Change(const ModemCommand& command, const std::string& value) {
  const std::string name = PadRight(command.Name, 9);
  Print(name + "was " + Setting(command.Name) + "\r\n" + name + "now " + value + "\r\n");
  Set(command.Name, value);
}

void Pk232Model::Act(const ModemCommand& command) {
  if (command.Name == "CONVERSE" || command.Name == "K") converse_ = true;
  if (command.Name == "RESTART") Print(kBanner);
}

void Pk232Model::Transmit(const std::string& text) {
  const bool eight_bits = Setting("8BITCONV") == "ON";
  Send(Setting("HBAUD"), Setting("MYCALL"), Setting("UNPROTO"),
       eight_bits ? text : SevenBits(text));
}

}  // namespace zepril

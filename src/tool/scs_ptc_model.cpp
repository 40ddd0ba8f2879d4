// The menus and commands of an SCS PTC and what each changes or answers.
#include "tool/scs_ptc_model.h"

#include <array>
#include <utility>

#include "core/text_fields.h"
#include "tool/scs_text.h"

namespace zepril {
namespace {

constexpr char kEsc = 27;
constexpr std::string_view kBanner = "\r\nZEPRIL model of an SCS PTC\r\n";
constexpr int kChannels = 31;

constexpr auto kText = CommandValue::Text;
constexpr auto kAction = CommandValue::Action;

constexpr std::array<ModemCommand, 3> kMainCommands{{
    {"MYCALL", "NOCALL", kText},
    {"PAC", "", kAction},
    {"TERM", "4", kText},
}};

constexpr std::array<ModemCommand, 17> kPacketCommands{{
    {"APRS", "0", kText},
    {"B", "1200", kText},
    {"DIGI", "OFF", kText},
    {"K", "", kAction},
    {"MFI", "0", kText},
    {"MONITOR", "0", kText},
    {"MYCALL", "NOCALL", kText},
    {"PORT", "1", kText},
    {"PRBOX", "1", kText},
    {"Q", "", kAction},
    {"RESET", "", kAction},
    {"SETCHN", "1", kText},
    {"TXDELAY", "1:250", kText},
    {"TXL A", "100", kText},
    {"TXL F", "100", kText},
    {"UNPROTO", "CQ", kText},
    {"USERS", "1", kText},
}};

// Each channel has a call of its own; the first one's is the modem's.
std::string NameOfCall(int channel) {
  return channel == 1 ? "MYCALL" : "MYCALL " + WholeNumber(channel);
}

}  // namespace

ScsPtcModel::ScsPtcModel() {
  ScsPtcModel::Reset();
}

void ScsPtcModel::Reset() {
  place_ = Place::MainMenu;
  command_ = false;
  SetFirstValues(kMainCommands);
  SetFirstValues(kPacketCommands);
}

std::string ScsPtcModel::CallOfChannel(int channel) const {
  return Setting(NameOfCall(channel));
}

std::string ScsPtcModel::Heard(const AirPacket& packet) const {
  if (place_ == Place::MainMenu || Setting("MONITOR") == "0") return {};
  return Setting("PORT") + ':' + ScsMonitorText(packet);
}

bool ScsPtcModel::TakeControl(char byte) {
  if (byte != kEsc) return false;
  // Half a line of text in front of it is forgotten.
  DropLine();
  command_ = true;
  return true;
}

void ScsPtcModel::TakeLine(const std::string& line) {
  const bool command = std::exchange(command_, false) || place_ != Place::Converse;
  if (!command) {
    const int channel = WholeVal(Setting("SETCHN"), 1, kChannels).value_or(1);
    if (!line.empty()) Send(Setting("B"), CallOfChannel(channel), Setting("UNPROTO"), line);
    return;
  }
  if (!Trim(line).empty()) Obey(std::string(Trim(line)));
  Prompt();
}

void ScsPtcModel::Prompt() {
  if (place_ == Place::MainMenu) Print("cmd: ");
  if (place_ == Place::PacketMenu) Print("pac: ");
}

void ScsPtcModel::Obey(const std::string& line) {
  TellCommand(line);
  const ModemCommand* command = place_ == Place::MainMenu
                                    ? FindScsCommand(kMainCommands, line, true)
                                    : FindScsCommand(kPacketCommands, line, true);
  // Whatever it is doing, it can be told to begin anew.
  if (EqualFolded(line, "RESET")) command = FindScsCommand(kPacketCommands, line, true);
  if (command == nullptr) {
    Print("*** UNKNOWN COMMAND: " + line + "\r\n");
  } else if (command->Value == CommandValue::Action) {
    Act(*command);
  } else {
    Change(*command, std::string(Trim(Upper(line.substr(command->Name.size())))));
  }
}

void ScsPtcModel::Change(const ModemCommand& command, const std::string& value) {
  std::string name(command.Name);
  if (name == "MYCALL" && place_ != Place::MainMenu) {
    name = NameOfCall(WholeVal(Setting("SETCHN"), 1, kChannels).value_or(1));
  }
  if (!value.empty()) Set(name, value);
  Print("*** " + name + ": " + Setting(name) + "\r\n");
}

void ScsPtcModel::Act(const ModemCommand& command) {
  if (command.Name == "PAC") place_ = Place::PacketMenu;
  if (command.Name == "K") place_ = Place::Converse;
  if (command.Name == "Q") place_ = Place::MainMenu;
  if (command.Name == "RESET") {
    Reset();
    Print(kBanner);
  }
}

}  // namespace zepril

// The ESC commands of an SCS TNC and what each changes or answers.
#include "tool/scs_tnc_model.h"

#include <array>
#include <utility>

#include "core/text_fields.h"
#include "tool/scs_text.h"

namespace zepril {
namespace {

constexpr char kEsc = 27;
constexpr char kCancelLine = 24;
constexpr std::string_view kBanner = "\r\nZEPRIL model of an SCS TNC\r\n";

constexpr auto kText = CommandValue::Text;
constexpr auto kAction = CommandValue::Action;

constexpr std::array<ModemCommand, 26> kCommands{{
    {"%A", "0", kText},        // automatic mode
    {"%AD", "0", kText},       // digipeating by APRS rules
    {"%AG", "NONE", kText},    // second mode
    {"%AM", "NOCALL", kText},  // call for APRS
    {"%AU", "0", kText},       // second mode listens
    {"%B", "1200", kText},     // radio speed
    {"%F", "2000", kText},     // middle frequency
    {"%R", "", kAction},       // restart
    {"%T", "0", kText},        // frequency correction
    {"%X", "100", kText},      // transmit level
    {"%ZL", "", kAction},      // the program leaves
    {"A", "1", kText},         // line feed behind each return
    {"C", "CQ", kText},        // destination and path
    {"E", "1", kText},         // echo
    {"I", "NOCALL", kText},    // call
    {"K", "0", kText},         // time stamps
    {"M", "N", kText},         // kinds of frames that are monitored
    {"P", "64", kText},        // persistence
    {"R", "1", kText},         // digipeating
    {"S", "0", kText},         // channel
    {"T", "25", kText},        // transmitter delay
    {"U", "0", kText},         // text for callers
    {"W", "10", kText},        // slot time
    {"X", "1", kText},         // transmitter
    {"Y", "4", kText},         // connections
    {"Z", "3", kText},         // handshake
}};

}  // namespace

ScsTncModel::ScsTncModel() {
  ScsTncModel::Reset();
}

void ScsTncModel::Reset() {
  SetFirstValues(kCommands);
  command_ = false;
}

bool ScsTncModel::Runs() const {
  return Setting("M").find('U') != std::string::npos;
}

std::string ScsTncModel::Heard(const AirPacket& packet) const {
  return Runs() ? ScsMonitorText(packet) : std::string();
}

bool ScsTncModel::TakeControl(char byte) {
  if (byte == kCancelLine) {
    DropLine();
    command_ = false;
    return true;
  }
  if (byte != kEsc || !AtLineBegin()) return false;
  command_ = true;
  return true;
}

void ScsTncModel::TakeLine(const std::string& line) {
  if (std::exchange(command_, false)) {
    Obey(line);
  } else if (!line.empty() && Setting("X") == "1") {
    Send(Setting("%B"), Setting("I"), Setting("C"), line);
  }
}

void ScsTncModel::Obey(const std::string& line) {
  TellCommand(line);
  const ModemCommand* command = FindScsCommand(kCommands, line, false);
  if (command == nullptr) {
    Print("* INVALID COMMAND: " + line + " *\r\n");
    return;
  }
  const std::string value(Trim(Upper(line.substr(command->Name.size()))));
  if (command->Name == "%R") {
    SetFirstValues(kCommands);
    Print(kBanner);
  } else if (command->Value == CommandValue::Text && value.empty()) {
    Print("* " + std::string(command->Name) + ' ' + Setting(command->Name) + " *\r\n");
  } else {
    if (command->Value == CommandValue::Text) Set(command->Name, value);
    Print("* OK *\r\n");
  }
}

}  // namespace zepril

// Mixes the passcode, words the login, reads its answer.
#include "gate/aprs_is_login.h"

#include <cstdint>

#include "core/text_fields.h"

namespace zepril {
namespace {

bool Tells(std::string_view received, std::string_view call, std::string_view outcome) {
  std::string answer = "# LOGRESP ";
  answer.append(Upper(CallOfLogin(call))).append(outcome);
  return Upper(received).find(answer) != std::string::npos;
}

}  // namespace

std::string_view CallOfLogin(std::string_view call) {
  return Trim(call.substr(0, call.find('-')));
}

std::string PasscodeOf(std::string_view call) {
  constexpr std::uint32_t kSeed = 0x73E2;
  constexpr std::uint32_t kMask = 0xFFFF;
  const std::string name = Upper(CallOfLogin(call));
  if (name.empty()) return std::string(kNoPasscode);
  std::uint32_t mixed = kSeed;
  for (std::size_t at = 0; at < name.size(); ++at) {
    const auto code = static_cast<std::uint32_t>(Asc(name[at]));
    mixed ^= at % 2 == 0 ? code * 256 : code;
  }
  return WholeNumber(mixed & kMask);
}

std::string LoginLine(std::string_view call, std::string_view passcode, std::string_view version) {
  std::string line = "user ";
  line.append(CallOfLogin(call)).append(" pass ").append(passcode);
  line.append(" vers ZEPRIL ").append(version).append(" filter b/ZZ9ZZZ\r\n");
  return line;
}

bool TellsVerified(std::string_view received, std::string_view call) {
  return Tells(received, call, " VERIFIED");
}

bool TellsUnverified(std::string_view received, std::string_view call) {
  return Tells(received, call, " UNVERIFIED");
}

}  // namespace zepril

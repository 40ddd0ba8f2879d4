// Cuts messages by their columns and puts together what is shown and sent.
#include "messages/message_texts.h"

#include <algorithm>

#include "core/sent_text.h"
#include "core/state/chat.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kCallPlaces = 9;
constexpr std::string_view kQuery = "?APRS";
constexpr std::string_view kPing = "?APRST";
constexpr std::string_view kAutoAnswer = "AA: ";

std::string_view CutToLine(std::string_view text) {
  return text.substr(0, kLongestChatLine);
}

// The digipeaters between the first ">" of a header and its destination, which the last ">" opens.
std::string_view PathOf(std::string_view header, std::string_view destination) {
  if (destination.empty()) return {};
  const std::size_t first = header.find('>');
  const std::size_t last = header.rfind('>' + std::string(destination));
  if (first == std::string_view::npos || last == std::string_view::npos || last <= first) return {};
  return header.substr(first + 1, last - first - 1);
}

}  // namespace

// ---- Received -------------------------------------------------------------------------------

std::string AddresseeOf(std::string_view info) {
  return Upper(Trim(Mid(info, 2, kCallPlaces)));
}

bool IsOwnCall(std::string_view addressee, const IdentityState& identity) {
  const std::string_view call = Trim(addressee);
  return !call.empty() &&
         (EqualFolded(call, Trim(identity.MyCall)) || EqualFolded(call, Trim(identity.MyCallFull)));
}

std::string_view MessageTextOf(std::string_view info) {
  return Mid(info, 12);
}

bool BeginsLikeAck(std::string_view message_text) {
  return message_text.starts_with("ack") || message_text.starts_with("mok");
}

std::string_view AckedNumber(std::string_view info) {
  return Trim(Mid(info, 15, 5));
}

bool IsPing(std::string_view message_text) {
  return EqualFolded(Trim(message_text), kPing);
}

bool HoldsPing(std::string_view line) {
  return InStr(line, kPing) > 0;
}

bool MayAnswerPing(std::string_view info) {
  return info.find_first_of(">*") != std::string_view::npos || InStr(Upper(info), "PATH") > 0;
}

std::optional<std::string_view> NumberIn(std::string_view line) {
  const std::size_t opened = line.find('{');
  if (opened == std::string_view::npos) return std::nullopt;
  return Trim(line.substr(opened + 1));
}

// A "{" that was typed: stations differ in which one they take for the number's.
bool IsNumberOf(std::string_view line, std::string_view number) {
  const std::size_t last = line.rfind('{');
  return last != std::string_view::npos &&
         (NumberIn(line) == number || Trim(line.substr(last + 1)) == number);
}

std::optional<std::string> NumberToAcknowledge(std::string_view from, std::string_view info) {
  const std::size_t places = std::min(std::max(from.size(), kCallPlaces), kLongestChatLine);
  const auto number = NumberIn(info.substr(0, kLongestChatLine - places));
  if (!number) return std::nullopt;
  return std::string(*number);
}

// ---- Lines ----------------------------------------------------------------------------------

std::string ReceivedLine(std::string_view from, std::string_view info) {
  std::string line = PadRight(CutToLine(from), kCallPlaces);
  line += CutToLine(info);
  return std::string(CutToLine(line));
}

std::string OwnLine(std::string_view my_call_full, std::string_view frame_text) {
  const std::string call = PadLeft(CallInLine(my_call_full), kCallPlaces);
  return std::string(CutToLine(call + std::string(frame_text)));
}

std::string_view CallInLine(std::string_view my_call_full) {
  return TrimRight(Left(Trim(my_call_full), kCallPlaces));
}

std::string_view CallOfLine(std::string_view line) {
  return Trim(Left(line, kCallPlaces));
}

std::string_view FrameTextOfLine(std::string_view line) {
  return Trim(Mid(line, kCallPlaces + 1));
}

bool IsAnswerTo(std::string_view line, std::string_view my_call_full, std::string_view from,
                std::string_view answer) {
  return CallOfLine(line) == CallInLine(my_call_full) && Trim(Mid(line, 11, kCallPlaces)) == from &&
         (answer.empty() || InStr(Mid(line, 21), answer) > 0);
}

std::string LogLine(std::string_view day_and_time, std::string_view chat_line) {
  return std::string(day_and_time) + "  " + WithoutControlCharacters(Trim(chat_line));
}

// ---- Sent -----------------------------------------------------------------------------------

std::string AddressedTo(std::string_view call) {
  return ":" + PadRight(call, kCallPlaces) + ":";
}

std::string AckText(std::string_view to, std::string_view number) {
  return AddressedTo(to) + "ack" + std::string(number);
}

std::string InternetAckText(std::string_view to, std::string_view number) {
  return AddressedTo(to) + "mok" + std::string(number);
}

std::string PingAnswerText(std::string_view from, std::string_view header,
                           std::string_view destination) {
  return AddressedTo(from) + "PATH = " + std::string(from) + " VIA " +
         std::string(PathOf(header, destination)) + " TO " + std::string(destination);
}

TypedMessage MessageToSend(std::string_view to, std::string_view text, int serial) {
  TypedMessage message;
  message.FrameText = AddressedTo(Upper(Trim(to)));
  const std::string number = "{" + ZeroPadded(serial, 2);
  const std::size_t taken = kCallPlaces + message.FrameText.size() + number.size();
  const std::size_t room = kLongestChatLine - std::min(taken, kLongestChatLine);
  if (room == 0) return {{}, false, true};
  const std::string typed = WithoutControlCharacters(Trim(text));
  message.WasCut = typed.size() > room;
  message.FrameText += TrimRight(Left(typed, static_cast<std::ptrdiff_t>(room)));
  // Kept: the small letters alone turn into capitals, and those of the whole text.
  if (Mid(message.FrameText, 12, 5) == "?aprs") message.FrameText = Upper(message.FrameText);
  message.IsQuery = InStr(Upper(message.FrameText), kQuery) > 0;
  if (!message.IsQuery) message.FrameText += number;
  return message;
}

std::string TextAsSent(std::string_view to, std::string_view answer) {
  const TypedMessage message = MessageToSend(to, AutoAnswerOf(answer), 0);
  const std::string_view text = Mid(message.FrameText, std::ssize(AddressedTo(Trim(to))) + 1);
  return std::string(message.IsQuery ? text : text.substr(0, text.rfind('{')));
}

std::string AutoAnswerOf(std::string_view text) {
  if (text.starts_with(kAutoAnswer)) return std::string(text);
  return std::string(kAutoAnswer) + std::string(text);
}

bool IsForWebOnly(std::string_view frame_text) {
  return Mid(frame_text, 11, 4) == ":mok";
}

std::string WebMessageUrl(std::string_view service, std::string_view my_call_full,
                          std::string_view frame_text) {
  return std::string(service) + "/cgi-bin/sendmsg.cgi?fromcall=" + std::string(my_call_full) +
         "&tocall=" + AddresseeOf(frame_text) + "&msg=" + std::string(MessageTextOf(frame_text));
}

}  // namespace zepril

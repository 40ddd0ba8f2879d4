// Messages as text: what a received one says, the lines of the chat, and what is sent. Columns are
// counted from 1; "{" opens the number by which a message is acknowledged.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/state/identity.h"

namespace zepril {

// ---- Received -------------------------------------------------------------------------------

// The addressee in columns 2 to 10, trimmed, upper case.
//   ":qx7kb    :Hello{07" gives "QX7KB"
std::string AddresseeOf(std::string_view info);

// The call without or with its SSID, in any case. Nobody when it is empty.
bool IsOwnCall(std::string_view addressee, const IdentityState& identity);

// The text behind the addressee.
std::string_view MessageTextOf(std::string_view info);

// "ack" and "mok" at the front of the text; capitals are something else.
bool BeginsLikeAck(std::string_view message_text);
// The number that an acknowledgement names: five columns, trimmed.
std::string_view AckedNumber(std::string_view info);

// Exactly "?APRST", in any case.
bool IsPing(std::string_view message_text);
// A line that asked for the path of signals.
bool HoldsPing(std::string_view line);
// May be the answer to a ping: "PATH" in any case, ">" or "*" anywhere.
bool MayAnswerPing(std::string_view info);

// All that stands behind the first "{", trimmed; nothing without one.
std::optional<std::string_view> NumberIn(std::string_view line);
// True when `number` stands behind the first or the last "{" of the line.
bool IsNumberOf(std::string_view line, std::string_view number);
// The number of a received message as far as a line of the chat shows it.
std::optional<std::string> NumberToAcknowledge(std::string_view from, std::string_view info);

// ---- Lines ----------------------------------------------------------------------------------

// The sender on 9 places, then the message; cut to what a line holds.
//   "N0CALL   :QX7KB    :Hello{07"
std::string ReceivedLine(std::string_view from, std::string_view info);

// The own call at the right of 9 places, then what is sent.
//   "    QX7KB:AB1CD    :Hello{07"
std::string OwnLine(std::string_view my_call_full, std::string_view frame_text);
// The call as it stands in front of a line: it has nine places.
std::string_view CallInLine(std::string_view my_call_full);
// Whose line it is, and what of it is sent.
std::string_view CallOfLine(std::string_view line);
std::string_view FrameTextOfLine(std::string_view line);

// An own line that answered `from` with `answer`, a text as it was sent.
bool IsAnswerTo(std::string_view line, std::string_view my_call_full, std::string_view from,
                std::string_view answer);

// A line of the log: "20240115 1234  " and the line; "20240115<1234  " behind a clearing. Control
// characters are blanks, so that it stays one line.
std::string LogLine(std::string_view day_and_time, std::string_view chat_line);

// ---- Sent -----------------------------------------------------------------------------------

// ":N0CALL   :", a longer call is not cut.
std::string AddressedTo(std::string_view call);

std::string AckText(std::string_view to, std::string_view number);
// The same for a message that came by the internet; only the web form carries it.
std::string InternetAckText(std::string_view to, std::string_view number);

// ":N0CALL   :PATH = N0CALL VIA WIDE1-1* TO APRS"; nothing stands for a path heard directly.
std::string PingAnswerText(std::string_view from, std::string_view header,
                           std::string_view destination);

// A typed message as it is sent. Queries ("?APRS" anywhere, in any case) carry no number.
struct TypedMessage {
  std::string FrameText;  // ":AB1CD    :Hello{07"; empty where the addressee leaves no room
  bool IsQuery = false;
  bool WasCut = false;  // it would not have fitted into a line
};
// `serial`: 0 to 99.
TypedMessage MessageToSend(std::string_view to, std::string_view text, int serial);

// What of an automatic answer stands in its line.
std::string TextAsSent(std::string_view to, std::string_view answer);

// "AA: " in front of it, unless it stands there.
std::string AutoAnswerOf(std::string_view text);

// A message that only the web form may carry: the reply to a station on the internet alone.
bool IsForWebOnly(std::string_view frame_text);

// The address of the web form; nothing of it is escaped.
std::string WebMessageUrl(std::string_view service, std::string_view my_call_full,
                          std::string_view frame_text);

}  // namespace zepril

// The words of the chat: what became of a line, why nothing leaves, and the banner of the message
// service.
#pragma once

#include "core/texts/text.h"

namespace zepril::chat_texts {

// The state of a line. %1: sends done, %2: sends in all.
inline constexpr Text kNotSentYet{"not sent yet, up to %2 sends"};
inline constexpr Text kSent{"sent, try %1 of %2"};
inline constexpr Text kAcknowledged{"acknowledged"};
inline constexpr Text kPingAnswered{"answered"};
inline constexpr Text kGivenUp{"given up after try %1 of %2, not acknowledged"};
inline constexpr Text kSentToService{"handed to the message service"};
inline constexpr Text kPingAnswer{"own answer to a ping"};
inline constexpr Text kForMe{"message for me"};
inline constexpr Text kBetweenOthers{"message between others"};
// %1: sends tried, %2: sends in all, %3: the reason.
inline constexpr Text kLastOneLost{"try %1 of %2 did not leave: %3"};
inline constexpr Text kGivenUpFor{"given up, the last try did not leave: %1"};
inline constexpr Text kGivenUpUnsent{"given up: %1"};

// Why a send did not leave.
inline constexpr Text kLinkLost{"radio link lost"};
inline constexpr Text kModemBusy{"modem busy"};
inline constexpr Text kNoRadio{"no radio"};
inline constexpr Text kOtherCall{"typed under another call"};
inline constexpr Text kServiceOff{"no host of the message service in SERVICES.TXT"};
inline constexpr Text kServiceSilent{"the message service did not answer"};
inline constexpr Text kServiceRefused{"the message service refused it (%1)"};
inline constexpr Text kChatClosed{"the chat was closed before its turn came"};
inline constexpr Text kServiceFull{"too many messages wait for the message service"};

// What the panel says of itself.
inline constexpr Text kListener{"LISTENER: a call without a digit in third place sends no message"};
inline constexpr Text kNoLink{"RADIO LINK LOST: nothing leaves, tries count all the same"};
inline constexpr Text kNoService{"NO MESSAGE SERVICE: its host is missing in SERVICES.TXT"};
inline constexpr Text kNotSentByWeb{"NOT SENT: %1"};
inline constexpr Text kLogNotWritten{"CHAT LOG NOT WRITTEN: %1"};
inline constexpr Text kNoAddressee{"TO WHOM? The call at the left of the message is empty"};
inline constexpr Text kTextCut{"THE TEXT WAS CUT: a line holds %1 characters"};
inline constexpr Text kCallTooLong{"NOT SENT: the addressee leaves no room for a text"};

// The CHAT switch. %1: how many.
inline constexpr Text kChat{"CHAT"};
inline constexpr Text kChatUnseen{"CHAT %1"};
inline constexpr Text kChatTip{
    "Messages / closed, none is sent or repeated / acknowledgements leave then, and with TX off"};
inline constexpr Text kChatWaits{"Messages / %1 to be sent wait until it is opened"};
inline constexpr Text kChatNeedsPosition{"Messages / only with a position of the own station"};

// The banner while a message goes to the service.
inline constexpr Text kSendingOverInternet{"SENDING CHAT MESSAGE VIA INTERNET..."};

}  // namespace zepril::chat_texts

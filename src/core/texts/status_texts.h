// The words that change as the program goes: captions that it steps on, status words, the words of
// the lamp, of alarms and of long work. Columns of lines in the fixed font count: a language keeps
// them.
#pragma once

#include "core/texts/text.h"

namespace zepril::status_texts {

// Buttons. %1: the level, or minutes with a blank before them.
inline constexpr Text kCentre{"MAP"};
inline constexpr Text kCentreLocked{"MAP L"};
inline constexpr Text kTrackStyle{"TRACK %1"};
inline constexpr Text kPlaceLevel{"POI %1"};
inline constexpr Text kWeatherLabels{"WX"};
inline constexpr Text kTxNow{"TX !"};
inline constexpr Text kTxEvery{"TX%1"};
inline constexpr Text kOk{"OK"};
inline constexpr Text kAbort{"ABORT"};
inline constexpr Text kClear{"CLEAR"};
inline constexpr Text kWorking{"..."};
inline constexpr Text kAutoAnswerField{"AUTO ANSWER TEXT:"};
inline constexpr Text kAutoAnswer{"AUTO-A"};
inline constexpr Text kOwnPlace{"QTH="};
inline constexpr Text kDelete{"DELETE"};
inline constexpr Text kOlder{"<"};
inline constexpr Text kNewer{">"};
inline constexpr Text kCutOlder{"<X"};
inline constexpr Text kCutNewer{"X>"};

// The list of heard stations: its columns, and an age.
inline constexpr Text kCall{"CALL"};
inline constexpr Text kAge{"AGE"};
inline constexpr Text kDistance{"KM"};
inline constexpr Text kDirection{"DIR"};
inline constexpr Text kSeconds{"%1 s"};
inline constexpr Text kMinutes{"%1 min"};
inline constexpr Text kHours{"%1 h"};
inline constexpr Text kDays{"%1 d"};

// The start window. %1: seconds left, %2: port, %3: speed.
inline constexpr Text kStart{"START"};
inline constexpr Text kStartPk232{"40 s ..."};
inline constexpr Text kStartScsTnc{"12 s ..."};
inline constexpr Text kStartScsPtc{"25 s ..."};
inline constexpr Text kCommPort{"COMM PORT"};
inline constexpr Text kCommBaud{"COMM BAUD"};
inline constexpr Text kHostName{"HOST NAME"};
inline constexpr Text kHostPort{"HOST PORT"};
inline constexpr Text kPort{"port %1"};
inline constexpr Text kModemSetUp{"%1 s left   modem on %2, %3 Bd"};

// The lamp of the radio link. %1: how long, or what was heard last.
inline constexpr Text kNoLink{"no radio link"};
inline constexpr Text kLastData{"last data %1 s ago"};
inline constexpr Text kNoDataYet{"no data yet"};
inline constexpr Text kLost{"LOST %1"};
inline constexpr Text kLinkLost{"link lost, %1"};
inline constexpr Text kPaused{"paused"};
inline constexpr Text kReceptionPaused{"reception rests while a panel is open, %1"};

// Transmission. %1: the reason, the time, the minutes.
inline constexpr Text kSending{"SENDING"};
inline constexpr Text kSent{"SENT %1"};
inline constexpr Text kNotSent{"NOT SENT: %1"};
inline constexpr Text kReasonLinkLost{"LINK LOST"};
inline constexpr Text kReasonModemBusy{"MODEM BUSY"};
inline constexpr Text kReasonNoRadio{"NO RADIO"};
inline constexpr Text kReasonNoCall{"NO CALL"};
inline constexpr Text kReasonNoPosition{"NO POSITION"};
inline constexpr Text kReasonStillLeaving{"ONE STILL LEAVING"};
inline constexpr Text kNextReport{"next position report in %1 min"};
inline constexpr Text kNotInTerminal{"Not while the terminal is open"};
inline constexpr Text kTncLevel{" SCS TNC: AFSK TX LEVEL ( 30 mV - 3000 mV )"};
inline constexpr Text kPtcLevel{" SCS PTC: AFSK TX LEVEL ( 30 mV - 3000 mV )"};

// Long work. %1: what, %2: how much of it, %3: how long.
inline constexpr Text kProgress{"%1  %2 %"};
inline constexpr Text kTimeLeft{"  %1 s left"};
inline constexpr Text kReadingTrack{"Reading track %1"};
inline constexpr Text kReadingPlaces{"Reading places %1"};
inline constexpr Text kTakingOver{"Taking over %1"};
inline constexpr Text kModemWork{"MODEM SET-UP"};
inline constexpr Text kTxSetupWork{"TX SETUP"};

// The banner and the title line.
inline constexpr Text kCollectingMoni1{"COLLECTING INTERNET DATA (MONI 1) ..."};
inline constexpr Text kCollectingMoniAll{"COLLECTING INTERNET DATA (MONI ALL) ..."};
inline constexpr Text kTitle{"ZEP RIL  V %1  %2"};
inline constexpr Text kGateConnected{"IGate connected"};
inline constexpr Text kConnected{"      connected"};
inline constexpr Text kGate{"IGate"};
inline constexpr Text kDigiOutside{"Digi: AGWUI"};
inline constexpr Text kDigiCross{"Digi X-mode"};
inline constexpr Text kDigiActive{"Digi active"};

// The distance alarm. %1: kilometres with a blank before them, %2: the time; call and distance.
inline constexpr Text kAlarmMoniAll{"MONI ALL  <%1 km  ALARM   %2"};
inline constexpr Text kAlarmMoni1{"MONI 1  <%1 km  ALARM   %2"};
inline constexpr Text kAlarmLine{"%1    D = %2 km !"};

// Lines about the followed station and the sun. "\xB0" is the degree sign, "\xB2" a small two.
inline constexpr Text kStationLine{"DIST:       km   DIR:     \xB0   SPEED:     km/h   VIA:"};
inline constexpr Text kLastText{"TEXT: %1"};
inline constexpr Text kSunTitle{"%1  SUN CURVE  %2       N %3   E   UTC %4"};
inline constexpr Text kSunToday{"SOL.EL.PWR (Wh/d/m\xB2hor):"};
inline constexpr Text kSunJune{" ... 06-21 (Wh/d/m\xB2hor):"};
inline constexpr Text kSunDecember{" ... 12-21 (Wh/d/m\xB2hor):"};
inline constexpr Text kSunAmpereHours{"> (Ah @12V):"};

}  // namespace zepril::status_texts

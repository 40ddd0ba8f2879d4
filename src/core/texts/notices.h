// The notices: what is told over the map or beside a field while the program goes on.
#pragma once

#include "core/texts/text.h"

namespace zepril::notices {

// Histories and logs. %1: the file, %2: why.
inline constexpr Text kHistoryUnread{
    "%1 can't be read: %2. It is left as it is; new positions are not stored in it."};
inline constexpr Text kHistoryLonger{
    "%1 is longer than is read. Its last %2 positions are shown, new ones are added at its end; "
    "nothing is lost."};
inline constexpr Text kHistoryNotAnew{
    "%1 can't be written anew: %2. New positions are added at its end; nothing is lost."};
inline constexpr Text kHistoryUnwritten{
    "%1 can't be written: %2. New positions are held and written as soon as it can be."};
inline constexpr Text kHistoryNotShortened{
    "%1 is not shortened, for no copy of it can be kept: %2. It stays whole; new positions are "
    "added at its end."};
inline constexpr Text kTenCopies{"ten copies stand beside it already"};
inline constexpr Text kHistoryAsItWas{"%1 can't be written: %2. It is as it was."};
inline constexpr Text kLogsRest{
    "%1 can't be written: %2. Logs rest and are tried again every 10 minutes; reception goes on."};

// The radio link.
inline constexpr Text kLocalEngineSilent{
    "The packet engine on this computer does not answer. Nothing is heard or sent. It is tried "
    "again every ten seconds."};
inline constexpr Text kRemoteEngineSilent{
    "The packet engine at %1, port %2, does not answer. Nothing is heard or sent. It is tried "
    "again every ten seconds."};
inline constexpr Text kModemTakesNothing{"The modem's line takes no bytes."};
inline constexpr Text kModemNotReached{"START has not reached the modem."};
inline constexpr Text kModemLostPower{"The modem has lost its power."};
inline constexpr Text kModemSilent{"The modem does not answer."};
inline constexpr Text kTemporaryFsk{
    "TEMPORARY MODE FSK 300 Bd RELEASE BUTTON TO RETURN TO RPR 300 Bd"};
inline constexpr Text kTemporaryRobust{
    "TEMPORARY MODE RPR 300 Bd RELEASE BUTTON TO RETURN TO FSK 300 Bd"};

// Serial ports. %1: the device, %2: the group that may use it.
inline constexpr Text kNoPortSet{"No serial port is set."};
inline constexpr Text kPortAbsent{"%1 is not there."};
inline constexpr Text kPortNumberAbsent{
    "%1 is not there: this computer has fewer serial devices, and none is chosen for that number."};
inline constexpr Text kPortNoDevice{"%1 is no serial device."};
inline constexpr Text kPortNotPermitted{
    "%1 may not be opened by you: it belongs to the group %2. To join it: sudo usermod -aG %2 "
    "$USER, then log in again."};
inline constexpr Text kPortUsed{"%1 is used by another program."};
inline constexpr Text kPortOtherDevice{
    "%1 is another device now. The one that was chosen is not there."};
inline constexpr Text kPortNeverThere{
    "No serial device stood behind %1 at START. Plug it in and start the program anew."};
inline constexpr Text kPortSpeed{"%1 can't be opened at that speed."};
inline constexpr Text kPortClosed{"%1 can't be opened."};

// Beside the fields of the start window.
inline constexpr Text kCallWanted{"your call sign, 3 characters or more"};
inline constexpr Text kNoDevice{"no serial device is there"};
inline constexpr Text kPortNumbers{"port numbers go from 1 to %1"};
inline constexpr Text kNoGpsSource{
    "neither a port nor a file (4 characters or more, without SAVE)"};
inline constexpr Text kSpeedIsNumber{"the speed is a number, such as 9600"};
inline constexpr Text kSunspotsAre{"SUNSPOT(R): a number from 0 to 400"};
inline constexpr Text kKIs{"K: a number from 0 to 9"};
inline constexpr Text kPortIsNumber{"the port is a number"};

// TX SETUP.
inline constexpr Text kCallFollows{"the call follows at the next START"};

// A position that was typed.
inline constexpr Text kBothWanted{"TYPE NORTH AND EAST"};
inline constexpr Text kOnePosition{"TWO POSITIONS: CLEAR ONE OF THE FIELDS"};
inline constexpr Text kUsePoint{"NUMBERS TAKE A POINT, NO COMMA"};
inline constexpr Text kNoPosition{
    "NOT A POSITION. KILOMETRES, DEGREES (52.5041 13.4051) OR A LOCATOR"};
inline constexpr Text kBeyondMap{"THIS PLACE LIES OUTSIDE THE MAP"};
inline constexpr Text kNoSuchDegrees{"DEGREES GO TO 90 NORTH AND 180 EAST, MINUTES BELOW 60"};
inline constexpr Text kMixedUnits{"NORTH AND EAST: BOTH IN KILOMETRES OR BOTH IN DEGREES"};
inline constexpr Text kShortLocator{"A LOCATOR OF 6 CHARACTERS OR MORE IS NEEDED"};
inline constexpr Text kAreKilometres{"TAKEN AS KILOMETRES. DEGREES ARE TYPED AS 52.5N 13.4E"};

// In place of a picture; %1: its name.
inline constexpr Text kPictureDamaged{"%1: THE PICTURE CAN'T BE SHOWN"};
inline constexpr Text kPictureOutside{"%1: TO BE OPENED OUTSIDE"};
inline constexpr Text kPictureGone{"%1: NOT FOUND"};
inline constexpr Text kNoPicture{"NO PICTURE"};

}  // namespace zepril::notices

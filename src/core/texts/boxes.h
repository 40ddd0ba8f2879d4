// The boxes: titles, questions and messages that the program halts with. Named by what they are
// about.
#pragma once

#include "core/texts/text.h"

namespace zepril::boxes {

inline constexpr Text kTitle{"ZEP RIL"};

// The program folder and its settings.
inline constexpr Text kRunsAlready{
    "ZEPRIL RUNS IN  %1  ALREADY.\n\nYes brings it to the front, No ends this start. Nothing has "
    "been changed."};
inline constexpr Text kSettingsUnread{
    "CAN'T READ  %1\n\n%2\n\nGo on with the default settings? The file stays as it is, and no "
    "setting of this run is kept."};

// The start window.
inline constexpr Text kStartTitle{"ZEP RIL  START"};
inline constexpr Text kSetUserCall{"SET USER CALL !"};
inline constexpr Text kCantWrite{"CAN'T WRITE  %1"};
inline constexpr Text kSetupTitle{"ZEP RIL  SETUP"};
inline constexpr Text kPortConflict{"NMEA PORT / COMM PORT  CONFLICT !"};

// Packet engine.
inline constexpr Text kEngineTitle{"ZEP RIL  TCP/IP AGWPE"};
inline constexpr Text kHostNotFound{"TCP/IP AGWPE HOST NOT FOUND !"};
inline constexpr Text kEngineNotFound{"TCP/IP AGWPE NOT FOUND !"};
inline constexpr Text kEngineSendFailed{"TCP/IP AGWPE ERROR !"};

// Terminal of a modem.
inline constexpr Text kTerminalTitle{"ZEP RIL          TERMINAL"};
inline constexpr Text kHalfLine{
    "A LINE IS TYPED WITHOUT ITS END. DO YOU WANT TO SEND IT OFF NOW ?   (NO: IT IS WIPED)"};

// Transmission.
inline constexpr Text kRetransmitTitle{"ZEP RIL          RETRANSMIT STATION'S POSITION"};
inline constexpr Text kRetransmit{"DO YOU WANT TO RETRANSMIT THIS STATION'S POSITION NOW ?"};

// The followed station's positions; %1: time and place.
inline constexpr Text kDeleteOlderTitle{"ZEP RIL         DELETE OLDER POSITIONS"};
inline constexpr Text kDeleteNewerTitle{"ZEP RIL         DELETE NEWER POSITIONS"};
inline constexpr Text kDeleteOlder{"DELETE ALL POSITIONS OLDER THAN THIS ONE:  %1  ?"};
inline constexpr Text kDeleteNewer{"DELETE ALL POSITIONS NEWER THAN THIS ONE:  %1  ?"};

// The map window.
inline constexpr Text kSaveMap{"SAVE MAP WINDOW TO FILE...  %1"};

// Ionospheric data.
inline constexpr Text kSunspotsRange{"SUNSPOT(R) must be a number from 0 to 400."};
inline constexpr Text kKRange{"K must be a number from 0 to 9."};

// Track files.
inline constexpr Text kTrackName{"\"%1\" can't be the name of a track file."};
inline constexpr Text kTrackUnread{"The track file %1 can't be read."};
inline constexpr Text kTrackMissing{"There is no track file %1.  CREATE AN EMPTY ONE?"};
inline constexpr Text kTrackNotCreated{"The track file %1 can't be created."};

// Place files.
inline constexpr Text kPlaceFileName{"\"%1\" can't be the name of a place file."};
inline constexpr Text kTypeName{"Type the name of the new place file first."};
inline constexpr Text kPlacesNotCreated{"The place file %1 can't be created."};
inline constexpr Text kPlacesUnread{"The place file %1 can't be read."};
inline constexpr Text kNoPlaceFile{
    "There is no place file yet.  TYPE A FILE NAME FIRST AND PRESS ENTER."};
inline constexpr Text kNoRoom{"There is no room for another place."};
inline constexpr Text kRemovePlace{"REMOVE THE PLACE  %1  FROM THE FILE %2?"};
inline constexpr Text kPlacesCut{
    "The file %1 holds more than %2 places, or longer lines than are read.  WRITE IT WITHOUT THE "
    "REST?"};
inline constexpr Text kPlacesChanged{
    "The file %1 on the disk is no longer the one that was read.  WRITE OVER IT?"};
inline constexpr Text kPlacesUnwritten{"The place file %1 can't be written.  NOTHING WAS CHANGED."};
inline constexpr Text kPlacesGone{"The place file %1 can't be read any more."};
inline constexpr Text kPlacesFull{"The file %1 is full: only its first %2 places are read."};

}  // namespace zepril::boxes

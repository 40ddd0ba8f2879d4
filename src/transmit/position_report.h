// Texts of the frames that tell a position: the own station's report, the own object, and the
// position of a heard station that is sent again.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/station_record.h"
#include "core/symbol_table.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

// A position in the degree and minute texts of the read-outs, nine characters each: " 48:30.15".
struct DegreeTexts {
  std::string Latitude;
  std::string Longitude;
};

// Texts of a position given in kilometres of the map's zone.
DegreeTexts DegreeTextsOf(double north_km, double east_km, double central_meridian,
                          double false_easting);

// "4830.15N/00805.20E>": latitude, table character, longitude, symbol character.
// Kept: the first digit of the longitude is always "0", so 123 degrees go out as 023, and west of
// 100 degrees the sign is lost with it.
std::string PositionField(const DegreeTexts& texts, char table, char symbol);

// Whether a table row takes an overlay character: its name has "No.".
bool TakesOverlay(const SymbolTable& symbols, int row);

// The same with the symbol of a table row. A row with "No." takes the overlay character; kept: at
// position 10, which is the first digit of the longitude and not the table character.
std::string PositionFieldOfRow(const DegreeTexts& texts, const SymbolTable& symbols, int row,
                               std::string_view overlay);

// "312330z": day, hour and minute of the local time less the offset.
std::string UtcStamp(const LocalTime& now, int utc_offset_hours);

// A comment as it is appended: a blank and the text for one of a field, the text alone for one of a
// file. A field of the form "{C:\WX.TXT}" names a file: its longest trimmed line counts, without
// the characters below 32; a file that can't be read gives nothing. At most 63 characters; nothing
// for an empty comment.
std::string CommentField(std::string_view comment, const Files& files);

// The next line number, 1 to 6, of those that are active, from `index`, the one used last.
// Kept: with none active the number ends on 6.
int NextInfoLine(int index, const std::array<int, 6>& active);

// ";NAME     *141230z" with the position field, a blank, and the text.
std::string ObjectReport(std::string_view name, std::string_view stamp, std::string_view position,
                         std::string_view text);

// "}CALL>ZEPRRE,OWN*:" with the record's time, position, symbol and comment. A record of an earlier
// month than today carries no time.
std::string RetransmittedReport(const StationRecord& record, std::string_view own_call, int today,
                                const DegreeTexts& texts);

}  // namespace zepril

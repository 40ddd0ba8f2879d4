// The symbols in use with their classes, and the row of any pair of characters.
#include "core/symbol_table.h"

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::string_view kDefaultRow = R"(\~ Q4  No Symbol  1)";

// The symbols in use, in index order. The names are the field's own abbreviations.
constexpr std::string_view kListedRows[] = {
    R"(/! BB  Police Stn 1)", R"(/# BD  Digi       2)", R"(/$ BE  Phone      1)",
    R"(/% BF  DX Cluster 2)", R"(/& BG  HF Gateway 2)", R"(/' BH  Plane sm   0)",
    R"(/( BI  Mob SatStn 0)", R"(/) BJ  WheelChair 0)", R"(/* BK  Snowmobile 0)",
    R"(/+ BL  Red Cross  1)", R"(/, BM  Boy Scout  0)", R"(/- BN  Home       1)",
    R"(/. BO  X          1)", R"(// BP  Red Dot    1)", R"(/0 P0  Circle (0) 1)",
    R"(/1 P1  Circle (1) 1)", R"(/2 P2  Circle (2) 1)", R"(/3 P3  Circle (3) 1)",
    R"(/4 P4  Circle (4) 1)", R"(/5 P5  Circle (5) 1)", R"(/6 P6  Circle (6) 1)",
    R"(/7 P7  Circle (7) 1)", R"(/8 P8  Circle (8) 1)", R"(/9 P9  Circle (9) 1)",
    R"(/: MR  Fire       1)", R"(/; MS  Campground 1)", R"(/< MT  Motorcycle 0)",
    R"(/= MU  Rail Eng.  0)", R"(/> MV  Car        0)", R"(/? MW  File svr   1)",
    R"(/@ MX  HC Future  1)", R"(/A PA  Aid Stn    1)", R"(/B PB  BBS        1)",
    R"(/C PC  Canoe      0)", R"(/D PD  No Symbol  1)", R"(/E PE  Eyeball    1)",
    R"(/F PF  Tractor    0)", R"(/G PG  Grid Squ.  1)", R"(/H PH  Hotel      1)",
    R"(/I PI  Tcp/ip     2)", R"(/J PJ  No Symbol  1)", R"(/K PK  School     1)",
    R"(/L PL  Usr Log-ON 1)", R"(/M PM  MacAPRS    1)", R"(/N PN  NTS Stn    1)",
    R"(/O PO  Balloon    0)", R"(/P PP  Police     0)", R"(/Q PQ  TBD        1)",
    R"(/R PR  Rec Veh'le 0)", R"(/S PS  Shuttle    0)", R"(/T PT  SSTV       1)",
    R"(/U PU  Bus        0)", R"(/V PV  ATV        1)", R"(/W PW  WX Service 1)",
    R"(/X PX  Helo       0)", R"(/Y PY  Yacht      0)", R"(/Z PZ  WinAPRS    1)",
    R"(/[ HS  Jogger     0)", R"(/\ HT  Triangle   1)", R"(/] HU  PBBS       1)",
    R"(/^ HV  Plane lrge 0)", R"(/_ HW  WX Station 4)", R"(/` HX  Dish Ant.  1)",
    R"(/a LA  Ambulance  0)", R"(/b LB  Bike       0)", R"(/c LC  ICP        1)",
    R"(/d LD  Fire Stn   1)", R"(/e LE  Horse      0)", R"(/f LF  Fire Truck 0)",
    R"(/g LG  Glider     0)", R"(/h LH  Hospital   1)", R"(/i LI  IOTA       1)",
    R"(/j LJ  Jeep       0)", R"(/k LK  Truck      0)", R"(/l LL  Laptop     1)",
    R"(/m LM  Mic-E Rptr 1)", R"(/n LN  Node       1)", R"(/o LO  EOC        1)",
    R"(/p LP  Rover      0)", R"(/q LQ  Grid squ.  1)", R"(/r LR  Antenna    1)",
    R"(/s LS  Power Boat 0)", R"(/t LT  Truck Stop 1)", R"(/u LU  Truck 18wh 0)",
    R"(/v LV  Van        0)", R"(/w LW  Water Stn  1)", R"(/x LX  XAPRS      1)",
    R"(/y LY  Yagi       1)", R"(/z LZ  Shelter    1)", R"(/{ J1  No Symbol  1)",
    R"(/| J2  res.(StSw) 1)", R"(/} J3  No Symbol  1)", R"(/~ J4  res.(StSw) 1)",
    R"(\! OB  Emergency  0)", R"(\# OD# No. Digi   2)", R"(\$ OE  Bank       1)",
    R"(\% OF  No Symbol  1)", R"(\& OG# No. Diam'd 1)", R"(\' OH  Crash site 1)",
    R"(\( OI  Cloudy     1)", R"(\) OJ  MEO        1)", R"(\* OK  Snow       1)",
    R"(\+ OL  Church     1)", R"(\, OM  Girl Scout 0)", R"(\- ON  Home (HF)  1)",
    R"(\. OO  UnknownPos 1)", R"(\/ OP  Destinatn  1)", R"(\0 A0# No. Circle 1)",
    R"(\1 A1  No Symbol  1)", R"(\2 A2  No Symbol  1)", R"(\3 A3  No Symbol  1)",
    R"(\4 A4  No Symbol  1)", R"(\5 A5  No Symbol  1)", R"(\6 A6  No Symbol  1)",
    R"(\7 A7  No Symbol  1)", R"(\8 A8  No Symbol  1)", R"(\9 A9  Petrol Stn 1)",
    R"(\: NR  Hail       1)", R"(\; NS  Park       1)", R"(\< NT  Gale Fl    1)",
    R"(\= NU  No Symbol  1)", R"(\> NV# No. Car    0)", R"(\? NW  Info Kiosk 1)",
    R"(\@ NX  Hurricane  1)", R"(\A AA# No. Box    1)", R"(\B AB  Snow blwng 1)",
    R"(\C AC  Coast G'rd 0)", R"(\D AD  Drizzle    1)", R"(\E AE  Smoke      1)",
    R"(\F AF  Fr'ze Rain 1)", R"(\G AG  Snow Shwr  1)", R"(\H AH  Haze       1)",
    R"(\I AI  Rain Shwr  1)", R"(\J AJ  Lightning  1)", R"(\K AK  Kenwood    1)",
    R"(\L AL  Lighthouse 1)", R"(\M AM  No Symbol  1)", R"(\N AN  Nav Buoy   1)",
    R"(\O AO  Rocket     0)", R"(\P AP  Parking    1)", R"(\Q AQ  Quake      1)",
    R"(\R AR  Restaurant 1)", R"(\S AS  Sat/Pacsat 0)", R"(\T AT  T'storm    1)",
    R"(\U AU  Sunny      1)", R"(\V AV  VORTAC     1)", R"(\W AW  No. WXS    1)",
    R"(\X AX  Pharmacy   1)", R"(\Y AY  No Symbol  1)", R"(\Z AZ  No Symbol  1)",
    R"(\[ DS  Wall Cloud 1)", R"(\\ DT  No Symbol  1)", R"(\] DU  No Symbol  1)",
    R"(\^ DV# No. Plane  0)", R"(\_ DW  No. WX Stn 4)", R"(\` DX  Rain       1)",
    R"(\a SA  No.Diamond 1)", R"(\b SB  Dust blwng 1)", R"(\c SC  No. CivDef 0)",
    R"(\d SD  DX Spot    1)", R"(\e SE  Sleet      1)", R"(\f SF  Funnel Cld 1)",
    R"(\g SG  Gale       1)", R"(\h SH  HAM store  1)", R"(\i SI  No.Blk Box 1)",
    R"(\j SJ  WorkZone   1)", R"(\k SK  SUV        0)", R"(\l SL  Area Locns 1)",
    R"(\m SM  Milepost   1)", R"(\n SN# No. Triang 1)", R"(\o SO  Circle sm  1)",
    R"(\p SP  Part Cloud 1)", R"(\q SQ  No Symbol  1)", R"(\r SR  Restrooms  1)",
    R"(\s SS# No. Boat   0)", R"(\t ST  Tornado    1)", R"(\u SU# No. Truck  0)",
    R"(\v SV# No. Van    0)", R"(\w SW  Flooding   1)", R"(\x SX  No Symbol  1)",
    R"(\y SY  Sky Warn   1)", R"(\z SZ  No.Shelter 1)", R"(\{ Q1  Fog        1)",
    R"(\| Q2  res.(StSw) 1)", R"(\} Q3  No Symbol  1)", R"(\~ Q4  res.(StSw) 1)",
};

}  // namespace

SymbolTable::SymbolTable() {
  rows_.fill(std::string(kDefaultRow));
  for (std::string_view row : kListedRows) {
    rows_[static_cast<std::size_t>(RawSymbolIndex(row[0], row[1]))] = row;
  }
}

const std::string& SymbolTable::Row(int index) const {
  const int held = index < 0 || index >= kRows ? kLastIndex : index;
  return rows_[static_cast<std::size_t>(held)];
}

std::string SymbolTable::Name(int index) const {
  return std::string(Trim(Mid(Row(index), 8, 10)));
}

std::string SymbolTable::NameAndClass(int index) const {
  return std::string(TrimRight(Mid(Row(index), 8, 12)));
}

int SymbolTable::ClassDigit(int index) const {
  const char digit = Row(index)[18];
  return IsDigit(digit) ? digit - '0' : 0;
}

int RawSymbolIndex(char table, char code) {
  return ((Asc(table) - 47) / 45) * 100 + Asc(code) - 32;
}

TableSymbol ClampedSymbol(std::string_view symbol) {
  TableSymbol result{0, std::string(symbol)};
  if (symbol.size() >= 2) result.Index = RawSymbolIndex(symbol[0], symbol[1]);
  if (result.Index < 1 || result.Index > SymbolTable::kLastIndex) {
    result = {SymbolTable::kLastIndex, "\\~"};
  }
  return result;
}

}  // namespace zepril

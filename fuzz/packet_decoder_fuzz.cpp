// One frame through header analysis and decoding: an accepted packet lies on the grid, and its
// record reads back what was decoded.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/text_fields.h"
#include "reception/packet_decoder.h"
#include "reception/record_builder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const zepril::SymbolTable symbols;
  std::string frame(reinterpret_cast<const char*>(data), size);
  // Every input has a header, so that most of them come to decoding.
  if (frame.find(":\r\n") == std::string::npos) frame = "N0CALL*>WIDE1-1>S32U6T <UI>:\r\n" + frame;

  zepril::AnalysedFrame analysed;
  if (zepril::AnalyseHeader(frame, "QX7KB", "QX7KB*>ZEPR", analysed) !=
      zepril::HeaderOutcome::Frame) {
    return 0;
  }
  zepril::DecodeContext context;
  context.Now = {2024, 1, 15, 12, 34, 0};
  zepril::DecodedPacket packet;
  const zepril::DecodeResult result = zepril::DecodePacket(analysed, context, symbols, packet);
  if (result.Outcome != zepril::DecodeOutcome::Packet) return 0;

  if (!(std::fabs(packet.NorthMetres) <= 9999000.0 && std::fabs(packet.EastMetres) <= 9999001.0)) {
    std::abort();
  }
  if (packet.PacketInfoText.size() > 47) std::abort();
  if (packet.PacketIsEmergency != (packet.SymbolIndex == 101) && packet.PacketLatText != "YYYY") {
    std::abort();
  }
  if (packet.SymbolIndex < 1 || packet.SymbolIndex > 194) std::abort();

  const zepril::StationRecord record = zepril::BuildRecord(packet);
  if (std::fabs(record.NorthKm() * 1000.0 - packet.NorthMetres) > 1e-6) std::abort();
  if (std::fabs(record.EastKm() * 1000.0 - packet.EastMetres) > 1e-6) std::abort();
  if (record.Info() != zepril::Trim(packet.PacketInfoText)) std::abort();
  if (record.ClassDigit() != symbols.ClassDigit(packet.SymbolIndex)) std::abort();
  return 0;
}

// The models of the serial modems: bytes that come in pieces mean what they mean at once, no line
// outgrows its limit, and whatever a modem was told, reception reads the packets that it prints.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "reception/pk232_monitor.h"
#include "reception/scs_monitor.h"
#include "tool/pk232_model.h"
#include "tool/scs_ptc_model.h"
#include "tool/scs_tnc_model.h"

namespace {

const std::string kNormal = "N0CALL>RELAY*>WIDE2-1>APRS <UI>:\r\n!tst\r\n";

std::string Read(const zepril::Pk232Model&, const std::string& text) {
  return std::string(zepril::Pk232Text(text));
}
std::string Read(const zepril::ScsTncModel&, const std::string& text) {
  std::string normal;
  zepril::TakeScsFrames(text, zepril::ScsDialect::Tnc, normal);
  return normal;
}
std::string Read(const zepril::ScsPtcModel& modem, const std::string& text) {
  if (modem.Setting("PORT") != "1") return kNormal;  // only the first port is read
  std::string normal;
  zepril::TakeScsFrames(text, zepril::ScsDialect::Ptc, normal);
  return normal;
}

template <class Model>
void Try(std::string_view bytes) {
  Model whole;
  Model pieces;
  whole.Sent = [](const zepril::ModemSending& sending) {
    const std::size_t size = sending.Text.size();
    if (size == 0 || size > zepril::ModemModel::kLongestLine) std::abort();
  };
  whole.CommandCame = [](const std::string& command) {
    if (command.size() > zepril::ModemModel::kLongestLine) std::abort();
  };
  const std::string printed = whole.Take(bytes);
  std::string together;
  for (const char byte : bytes)
    together += pieces.Take({&byte, 1});
  if (printed != together || whole.Runs() != pieces.Runs()) std::abort();
  const std::string text = whole.Heard({0, "N0CALL", "APRS", "RELAY*,WIDE2-1", "!tst", {}});
  if (!text.empty() && Read(whole, text) != kNormal) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Try<zepril::Pk232Model>(bytes);
  Try<zepril::ScsTncModel>(bytes);
  Try<zepril::ScsPtcModel>(bytes);
  return 0;
}

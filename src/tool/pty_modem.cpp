// Moves bytes between the line and the model.
#include "tool/pty_modem.h"

#include <utility>

namespace zepril {

std::unique_ptr<PtyModem> PtyModem::Open(const std::string& link,
                                         std::unique_ptr<ModemModel> model) {
  auto line = PtyLine::Open(link);
  if (!line) return nullptr;
  return std::make_unique<PtyModem>(std::move(line), std::move(model));
}

PtyModem::PtyModem(std::unique_ptr<PtyLine> line, std::unique_ptr<ModemModel> model)
    : line_(std::move(line)), model_(std::move(model)) {}

void PtyModem::Serve(int milliseconds) {
  line_->Serve(milliseconds, [this](std::string_view bytes) {
    taken_ += bytes.size();
    line_->Say(model_->Take(bytes));
  });
}

void PtyModem::Hear(const AirPacket& packet) {
  if (line_->SomebodyIsThere()) line_->Say(model_->Heard(packet));
}

}  // namespace zepril

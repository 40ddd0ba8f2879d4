// The machine of a test: its parts are doubles that the test plays, or real ones that it meets.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/machine.h"
#include "tests/doubles/fake_pages.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {

// Hands out the parts in their order, each again when it was given back, and `more()` when all are
// in use. The parts must outlive what is handed out.
template <typename Part, typename More>
auto HandedOut(std::vector<Part*> parts, More more) {
  auto free = std::make_shared<std::vector<Part*>>(std::move(parts));
  return [free, more](auto... values) -> std::shared_ptr<Part> {
    for (Part*& part : *free) {
      if (part == nullptr) continue;
      return {std::exchange(part, nullptr), [&part, free](Part* back) { part = back; }};
    }
    return more(values...);
  };
}

// What a test plays of its machine's sockets, ports and surfaces; what is asked for beyond these is
// quiet.
struct PlayedParts {
  std::vector<TcpSocket*> Sockets;
  std::vector<SerialPort*> Ports;
  std::vector<DrawingSurface*> Surfaces;
  std::shared_ptr<PageFetcher> Pages = std::make_shared<FakePages>();
  CompanionPrograms* Programs = nullptr;
};

// For a test without programs beside the one under test.
inline CompanionPrograms& NoPrograms() {
  static NoCompanionPrograms none;
  return none;
}

inline Machine MachineOf(Files& files, Clock& clock, Loop& loop, Dialogs& boxes,
                         DesktopActions& desktop, PlayedParts parts,
                         SerialDeviceList devices = {}) {
  return {files,
          clock,
          loop,
          boxes,
          desktop,
          HandedOut(std::move(parts.Sockets), [] { return std::make_shared<FakeSocket>(); }),
          HandedOut(std::move(parts.Ports), [] { return std::make_shared<FakeSerial>(); }),
          HandedOut(std::move(parts.Surfaces),
                    [](int width, int height) {
                      return std::make_shared<RecorderSurface>(width, height);
                    }),
          std::move(parts.Pages),
          parts.Programs != nullptr ? *parts.Programs : NoPrograms(),
          std::move(devices)};
}

}  // namespace zepril

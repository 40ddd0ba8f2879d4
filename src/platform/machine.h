// What the machine gives to one running program.
#pragma once

#include <functional>
#include <memory>

#include "platform/clock.h"
#include "platform/companion_programs.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"
#include "platform/loop.h"
#include "platform/page_fetcher.h"
#include "platform/serial_device.h"
#include "platform/serial_port.h"
#include "platform/sound.h"
#include "platform/tcp_socket.h"

namespace zepril {

// Whoever makes a socket, a port or a surface keeps it as long as he works with it; the machine may
// hold on to it longer.
using SocketFactory = std::function<std::shared_ptr<TcpSocket>()>;
using SerialPortFactory = std::function<std::shared_ptr<SerialPort>()>;
// Width and height in pixels.
using SurfaceFactory = std::function<std::shared_ptr<DrawingSurface>(int width, int height)>;

struct Machine {
  Files& FileSystem;
  Clock& LocalClock;
  Loop& Steps;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  SocketFactory MakeSocket;
  SerialPortFactory MakeSerialPort;
  SurfaceFactory MakeSurface;
  std::shared_ptr<PageFetcher> Pages;   // one for all who ask web services
  CompanionPrograms& Programs;          // beside this one
  SerialDeviceList Devices;             // for the lists of port fields; may be empty
  std::shared_ptr<Sound> Speaker = {};  // may be missing: silence
};

}  // namespace zepril
